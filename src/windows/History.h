// SPDX-License-Identifier: GPL-3.0-or-later
// The story of one game, kept in memory for the History window: every message of the
// message line and every payment, purchase, mortgage, release, hotel, trade, card drawn,
// jail and bankruptcy, with the round and the player. It learns all of it from what the
// rules tell the main window, as a second listener beside the window model, and reads the
// board only to name who and what.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/Integer.h"
#include "base/Limits.h"
#include "ports/MainWindowPort.h"
#include "windows/Control.h"

namespace gw {

class Board;
class JFLCardWindow;
class player;

struct HistoryEntry {
    enum class Kind {
        Message,
        Payment,
        Purchase,
        Mortgage,
        Release,
        Hotel,
        Trade,
        Card,
        Jail,
        Bankruptcy
    };
    Kind kind;
    int round;
    int token;  // the player's token picture
    std::string name;
    std::string text;
};

class History final : public MainWindowPort, public WindowModel {
public:
    explicit History(const JFLCardWindow& jflCard) : jflCard_(jflCard) {}

    // A new game on this board, its players seated: the story starts empty at round 1.
    void begin(const Board& board);
    const std::vector<HistoryEntry>& entries() const { return entries_; }

    // View > History and its key; the window's close box.
    void History_Click() { setVisible(true); }
    void close() { setVisible(false); }

    // The message line now reads msg, whoever wrote it: the rules or the window itself.
    void noteMessage(const std::string& msg);

    // What the rules tell the main window; the message line is heard through noteMessage.
    void showInfo(std::string_view) override {}
    void UpdateTurnPlaying(TurnButtons opt) override;
    void Showdice(Integer, Integer) override {}
    void MoveToken(Integer, Integer, Integer) override { noteJail(); }
    void UpdatePlayers() override;
    void showCell(const OnCell&, Integer) override {}
    void showOwner(Integer cellId) override;
    void showHotel(Integer cellId) override;
    void showMort(Integer cellId) override;
    void showInJail() override { noteJail(); }
    void showNegBalance(bool) override {}
    void showBankRupt() override;
    void setEnabled(bool) override {}
    void showGameEnd() override {}

private:
    void add(HistoryEntry::Kind kind, const player& p, std::string text);
    void noteRound();
    void noteJail();
    const player& current() const;
    const std::string& cellName(Integer cellId) const;

    const JFLCardWindow& jflCard_;
    const Board* board_ = nullptr;
    std::vector<HistoryEntry> entries_;
    std::string lastMessage_;
    int round_ = 1;
    Integer lastTurn_ = 0;
    std::array<Integer, kMaxPlayers> balances_{};
    std::array<bool, kMaxPlayers> inJail_{};
    std::array<const player*, kCellCount> owners_{};
    std::array<bool, kCellCount> mortgaged_{};
    std::array<Integer, kCellCount> hotels_{};
};

}  // namespace gw
