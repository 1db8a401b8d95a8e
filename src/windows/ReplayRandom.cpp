// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/ReplayRandom.h"

namespace gw {

void ReplayRandom::record() {
    draws_.clear();
    mode_ = Mode::Recording;
}

void ReplayRandom::replay() {
    next_ = 0;
    mode_ = Mode::Replaying;
}

void ReplayRandom::goLive() {
    mode_ = Mode::Live;
}

double ReplayRandom::draw() {
    if (mode_ == Mode::Replaying && next_ < draws_.size()) return draws_[next_++];
    const double r = live_->draw();
    if (mode_ == Mode::Recording) draws_.push_back(r);
    return r;
}

}  // namespace gw
