// SPDX-License-Identifier: GPL-3.0-or-later
// A question put to the person at the screen, answered yes or no. The core owns the
// interface so that a test scripts the answers; the desktop program shows a modal box.
#pragma once

#include <deque>
#include <string>
#include <vector>

namespace gw {

class Question {
public:
    virtual ~Question() = default;
    // Shows the question and returns true for Yes.
    virtual bool ask(const std::string& title, const std::string& text) = 0;
};

// Answers from a script, Yes once it runs out, and remembers every question asked.
class ScriptedQuestion final : public Question {
public:
    std::vector<std::string> asked;
    std::deque<bool> answers;
    bool ask(const std::string&, const std::string& text) override {
        asked.push_back(text);
        if (answers.empty()) return true;
        const bool answer = answers.front();
        answers.pop_front();
        return answer;
    }
};

}  // namespace gw
