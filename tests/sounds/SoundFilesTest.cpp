// SPDX-License-Identifier: GPL-3.0-or-later
// The generated sound files as the game will find them: one per effect under its own name,
// in the format the player expects, levelled and faded, padded with silence, and shaped
// the way each effect should sound (a rattle that slows, a siren that alternates ...).
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <filesystem>
#include <map>
#include <ostream>
#include <string>
#include <vector>

#include "Measures.h"
#include "WavReader.h"
#include "ports/Sound.h"

namespace gw {

// Names the effect by its file in test output.
void PrintTo(SoundEffect effect, std::ostream* out) {
    *out << soundFile(effect);
}

}  // namespace gw

namespace {

using gw::SoundEffect;
using namespace gw::soundtest;

constexpr int kRate = 44100;
constexpr double kFullScale = 32767.0;

double seconds(std::size_t samples) {
    return static_cast<double>(samples) / kRate;
}
double decibels(double level) {
    return 20.0 * std::log10(level / kFullScale);
}

// Each file is read once for the whole run.
const WavFile& sound(SoundEffect effect) {
    static std::map<SoundEffect, WavFile> cache;
    auto found = cache.find(effect);
    if (found == cache.end()) {
        const auto path = std::filesystem::path(GILDENWAY_SOUND_DIR) / gw::soundFile(effect);
        found = cache.emplace(effect, readWav(path)).first;
    }
    return found->second;
}

std::array<SoundEffect, gw::kSoundEffectCount> allEffects() {
    std::array<SoundEffect, gw::kSoundEffectCount> effects{};
    for (std::size_t i = 0; i < effects.size(); ++i) effects[i] = static_cast<SoundEffect>(i);
    return effects;
}

class EverySound : public ::testing::TestWithParam<SoundEffect> {
protected:
    const WavFile& wav() const { return sound(GetParam()); }
    const Samples& samples() const { return wav().samples; }
};

TEST_P(EverySound, IsAShortMono16BitPcmFileAt44100Hz) {
    ASSERT_EQ(wav().error, "");
    EXPECT_EQ(wav().format, 1);
    EXPECT_EQ(wav().channels, 1);
    EXPECT_EQ(wav().bitsPerSample, 16);
    EXPECT_EQ(wav().sampleRate, 44100u);
    EXPECT_FALSE(samples().empty());
    EXPECT_LE(wav().seconds(), 3.0);
    const double sounding = seconds(soundLength(samples()));
    EXPECT_LE(sounding, GetParam() == SoundEffect::GameStart ? 2.5 : 1.5);
    if (GetParam() == SoundEffect::TokenMove) {
        EXPECT_LT(sounding, 0.16);  // over before the next step
    }
}

TEST_P(EverySound, IsNeverAtFullScaleAndCentred) {
    ASSERT_EQ(wav().error, "");
    EXPECT_LT(peak(samples()), kFullScale) << "a sample at full scale";
    const Samples heard(samples().begin(), samples().begin() + soundLength(samples()));
    EXPECT_GT(decibels(rms(heard)), -40.0) << "too quiet to be heard";
    EXPECT_LT(std::abs(mean(heard)), 0.01 * kFullScale) << "DC offset";
}

TEST_P(EverySound, FadesInAndOutThenStaysSilentForThePlayerToSwallow) {
    ASSERT_EQ(wav().error, "");
    const std::size_t end = soundLength(samples());
    ASSERT_GT(end, static_cast<std::size_t>(kRate / 100));
    EXPECT_LT(std::abs(samples().front()), 100);
    EXPECT_LT(std::abs(samples().back()), 100);
    // A sound cut off without its fade ends loud; a faded one is near silence at the end.
    const Samples lastMoments(samples().begin() + end - kRate / 500, samples().begin() + end);
    EXPECT_LT(peak(lastMoments), 0.01 * peak(samples()));
    EXPECT_GE(seconds(trailingSilence(samples())), 0.15);
}

INSTANTIATE_TEST_SUITE_P(Effects, EverySound, ::testing::ValuesIn(allEffects()),
                         [](const ::testing::TestParamInfo<SoundEffect>& info) {
                             std::string name(gw::soundFile(info.param));
                             for (char& c : name)
                                 c = std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
                             return name;
                         });

// The dice, heard most often, must not be drowned by a coin or a siren: every effect is as
// loud as the middle of the set, within 3 dB; the siren and "Bankrupt" may stand above it.
TEST(Loudness, EverySoundIsWithin3dBOfTheMedianAndTheAccentsStandUpTo6dBAbove) {
    std::map<SoundEffect, double> levels;
    std::vector<double> sorted;
    for (const SoundEffect effect : allEffects()) {
        ASSERT_EQ(sound(effect).error, "") << gw::soundFile(effect);
        levels[effect] = decibels(soundingRms(sound(effect).samples, kRate));
        sorted.push_back(levels[effect]);
    }
    std::sort(sorted.begin(), sorted.end());
    const double median = (sorted[sorted.size() / 2 - 1] + sorted[sorted.size() / 2]) / 2.0;
    EXPECT_NEAR(median, -17.0, 3.0);
    for (const auto& [effect, level] : levels) {
        const bool accent = effect == SoundEffect::Police || effect == SoundEffect::Bankrupt;
        EXPECT_GE(level, median - 3.0) << gw::soundFile(effect);
        EXPECT_LE(level, median + (accent ? 6.0 : 3.0)) << gw::soundFile(effect);
    }
}

TEST(Loudness, TheSoundingPartIgnoresSilenceAndGaps) {
    // A tone of half full scale, then as long again of silence: the silence does not count.
    Samples tone(4410);
    for (std::size_t i = 0; i < tone.size(); ++i) tone[i] = i % 2 ? 16384 : -16384;
    Samples gapped = tone;
    gapped.resize(2 * tone.size(), 0);
    EXPECT_NEAR(soundingRms(gapped, kRate), 16384.0, 1.0);
    EXPECT_NEAR(rms(gapped), 16384.0 / std::sqrt(2.0), 1.0);
}

TEST(EffectShapes, EachPlayerSlotHasItsOwnLongerCue) {
    for (int slot = 2; slot <= 6; ++slot) {
        const Samples& shorter = sound(gw::playerCue(slot - 1)).samples;
        const Samples& longer = sound(gw::playerCue(slot)).samples;
        EXPECT_NE(shorter, longer) << "Player" << slot - 1 << " and Player" << slot;
        // One more note each time: the cue takes audibly longer.
        EXPECT_GT(seconds(soundLength(longer)), seconds(soundLength(shorter)) + 0.05)
            << "Player" << slot;
    }
}

TEST(EffectShapes, DiceRattleSlowsDownOverSixToNineHits) {
    const Samples& rattle = sound(SoundEffect::DiceRoll).samples;
    const auto hits = onsets(rattle, kRate);
    ASSERT_GE(hits.size(), 6u);
    ASSERT_LE(hits.size(), 9u);
    const std::size_t firstGap = hits[1] - hits[0];
    const std::size_t lastGap = hits.back() - hits[hits.size() - 2];
    EXPECT_GT(lastGap, 2 * firstGap);
}

TEST(EffectShapes, SirenAlternatesBetweenTwoTones) {
    const Samples& siren = sound(SoundEffect::Police).samples;
    const std::size_t window = kRate / 20;
    std::vector<double> rates;
    for (std::size_t at = 0; at + window <= soundLength(siren); at += window) {
        rates.push_back(crossingRate(siren, at, at + window, kRate));
    }
    ASSERT_GE(rates.size(), 4u);
    const auto [low, high] = std::minmax_element(rates.begin(), rates.end());
    EXPECT_GT(*high, 1.2 * *low) << "one tone only";
    const double middle = (*low + *high) / 2.0;
    int changes = 0;
    for (std::size_t i = 1; i < rates.size(); ++i) {
        if ((rates[i - 1] > middle) != (rates[i] > middle)) ++changes;
    }
    EXPECT_GE(changes, 3);
}

TEST(EffectShapes, CoinsFallWhenPaidAndRiseWhenReceived) {
    const auto firstAndLastPitch = [](SoundEffect effect) {
        const Samples& coins = sound(effect).samples;
        const std::size_t window = kRate / 25;
        const std::size_t end = soundLength(coins);
        return std::pair{crossingRate(coins, 0, window, kRate),
                         crossingRate(coins, end - 3 * window, end - 2 * window, kRate)};
    };
    const auto [payStart, payEnd] = firstAndLastPitch(SoundEffect::Pay);
    EXPECT_GT(payStart, payEnd);
    const auto [buyStart, buyEnd] = firstAndLastPitch(SoundEffect::Buy);
    EXPECT_LT(buyStart, buyEnd);
}

}  // namespace
