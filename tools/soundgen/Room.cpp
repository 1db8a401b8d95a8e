// SPDX-License-Identifier: GPL-3.0-or-later
// Four damped feedback combs in parallel, then two allpass diffusers: the classic small
// reverberator, enough for a short tail on effects of a few hundred milliseconds.
#include "Room.h"

#include <array>
#include <cmath>

namespace gw::soundgen {

namespace {

class Comb {
public:
    Comb(double delaySeconds, double reverbTime, double damping)
        : line_(samplesIn(delaySeconds), 0.0f),
          feedback_(std::pow(10.0, -3.0 * delaySeconds / reverbTime)),
          smoothing_(std::exp(-kTwoPi * damping / kSampleRate)) {}

    float process(float input) {
        const float delayed = line_[index_];
        lowpassed_ = static_cast<float>((1.0 - smoothing_) * delayed + smoothing_ * lowpassed_);
        line_[index_] = static_cast<float>(input + feedback_ * lowpassed_);
        index_ = (index_ + 1) % line_.size();
        return delayed;
    }

private:
    Signal line_;
    double feedback_;
    double smoothing_;
    float lowpassed_ = 0.0f;
    std::size_t index_ = 0;
};

class Allpass {
public:
    explicit Allpass(double delaySeconds) : line_(samplesIn(delaySeconds), 0.0f) {}

    float process(float input) {
        const float delayed = line_[index_];
        const float output = delayed - kGain * input;
        line_[index_] = input + kGain * output;
        index_ = (index_ + 1) % line_.size();
        return output;
    }

private:
    static constexpr float kGain = 0.6f;
    Signal line_;
    std::size_t index_ = 0;
};

}  // namespace

Signal inRoom(const Signal& dry, RoomShape shape, double tailSeconds) {
    // Delays with no common factor, so the echoes do not pile up into a pitch.
    std::array<Comb, 4> combs = {Comb(0.0297, shape.reverbTime, shape.damping),
                                 Comb(0.0371, shape.reverbTime, shape.damping),
                                 Comb(0.0411, shape.reverbTime, shape.damping),
                                 Comb(0.0437, shape.reverbTime, shape.damping)};
    std::array<Allpass, 2> diffusers = {Allpass(0.0050), Allpass(0.0017)};

    Signal out(dry.size() + samplesIn(tailSeconds), 0.0f);
    for (std::size_t i = 0; i < out.size(); ++i) {
        const float input = i < dry.size() ? dry[i] : 0.0f;
        float tail = 0.0f;
        for (Comb& comb : combs) tail += comb.process(input);
        for (Allpass& diffuser : diffusers) tail = diffuser.process(tail);
        out[i] = input + static_cast<float>(shape.wet * 0.25) * tail;
    }
    return out;
}

}  // namespace gw::soundgen
