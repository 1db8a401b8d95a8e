// SPDX-License-Identifier: GPL-3.0-or-later
// A voice that reads sentences aloud. Saying never waits and never fails: with no engine
// or no device it is silence, and no rule depends on it.
#pragma once

#include <string>
#include <vector>

namespace gw {

class Voice {
public:
    virtual ~Voice() = default;
    // Starts reading the sentence, cutting off the one being read.
    virtual void say(const std::string& sentence) = 0;
    // Stops at once.
    virtual void stop() = 0;
};

class SilentVoice final : public Voice {
public:
    void say(const std::string&) override {}
    void stop() override {}
};

// Keeps what it was asked to say: tests.
class RecordedVoice final : public Voice {
public:
    std::vector<std::string> said;
    int stops = 0;
    void say(const std::string& sentence) override { said.push_back(sentence); }
    void stop() override { ++stops; }
};

}  // namespace gw
