// SPDX-License-Identifier: GPL-3.0-or-later
// The game's source of chance with a memory: it keeps every draw of the game being played,
// and can give the same draws again, in order, so that the game can be watched again.
#pragma once

#include <memory>
#include <vector>

#include "game/Random.h"

namespace gw {

class ReplayRandom final : public Random {
public:
    explicit ReplayRandom(std::unique_ptr<Random> live) : live_(std::move(live)) {}

    // Forgets what was kept and keeps the draws from now on: a board is about to be built.
    void record();
    // Gives the kept draws again from the first; past the last, fresh ones.
    void replay();
    // Fresh draws again, kept no more until record().
    void goLive();

    double draw() override;
    std::size_t kept() const { return draws_.size(); }

private:
    enum class Mode { Live, Recording, Replaying };

    std::unique_ptr<Random> live_;
    std::vector<double> draws_;
    std::size_t next_ = 0;
    Mode mode_ = Mode::Live;
};

}  // namespace gw
