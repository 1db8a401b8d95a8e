// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/GameEnd.h"

#include <array>

#include "game/Board.h"
#include "players/player.h"
#include "windows/MainWindow.h"

namespace gw {

namespace {
constexpr const char* kHumanWon = "The city is yours.";
constexpr const char* kComputerWon = "The machines hold the city.";
}  // namespace

// The winner is the row of the panel whose balance does not read "Bankrupt": rows of
// players who went bankrupt say so, and so do the rows that no player used.
void GameEnd::Form_Load() {
    for (int i = 0; i < kMaxPlayers; ++i) {
        const MainWindow::PanelRow& row = main_.panel(i);
        if (row.balance.caption != "Bankrupt") {
            label1_.caption = row.name.caption + ", the richest person in Kestrovia!";
            image2_ = row.token;
            const player* winner =
                main_.board() ? main_.board()->getPlayer(static_cast<Integer>(i)) : nullptr;
            closingLine_ = winner && winner->isComputer2() ? kComputerWon : kHumanWon;
        }
    }
    setVisible(true);
}

void GameEnd::Command1_Click() const {
    if (isVisible() && onNewGame_) onNewGame_();
}

void GameEnd::Command2_Click() const {
    if (isVisible() && onExit_) onExit_();
}

void GameEnd::unload() {
    label1_.caption = "Label1";
    image2_ = -1;
    closingLine_.clear();
    setVisible(false);
}

void GameEnd::forEachControl(const ControlVisitor& fn) const {
    fn("Label1", label1_);
    fn("Command1", command1_);
    fn("Command2", command2_);
}

namespace {

struct Credit {
    const char* name;
    const char* text;
};

// The three columns of the team, each under its heading; the members follow the headings.
constexpr std::size_t kHeadings = 3;
constexpr std::array<Credit, 13> kCredits = {{
    {"Label1", "Requirements Team"},
    {"Label8", "Design Team"},
    {"Label4", "Implementation Team"},
    {"Label2", "Maren (lead)"},
    {"Label3", "Tobiah"},
    {"Label5", "Ilse"},
    {"Label6", "Oskar (art)"},
    {"Label7", "Priya"},
    {"Label9", "Dario (lead)"},
    {"Label10", "Wen"},
    {"Label11", "Sunniva"},
    {"Label12", "Kofi (sound)"},
    {"Label13", "Lucja"},
}};

}  // namespace

void About_Help::forEachControl(const ControlVisitor& fn) const {
    for (const Credit& credit : kCredits) fn(credit.name, Control{true, true, credit.text});
    fn("Command1", command1_);
}

void About_Help::forEachMember(const ControlVisitor& fn) const {
    for (std::size_t i = kHeadings; i < kCredits.size(); ++i)
        fn(kCredits[i].name, Control{true, true, kCredits[i].text});
}

}  // namespace gw
