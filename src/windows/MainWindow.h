// SPDX-License-Identifier: GPL-3.0-or-later
// The main window as a model: the board's marks, the players' panel, the message line
// and the five buttons of the turn, with the handlers of its clicks and menu. The rules
// tell it what to show through MainWindowPort; a view draws this state and forwards
// clicks. It holds no game state of its own beyond what it shows.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "base/Integer.h"
#include "ports/MainWindowPort.h"
#include "windows/CellFaces.h"
#include "windows/Control.h"

namespace gw {

class Board;
class Delay;
class Sound;
class player;

constexpr int kNoPicture = -1;

// What the main window shows, apart from its links: an unload drops all of it and a
// load brings back these values.
struct MainWindowShown {
    MainWindowShown();

    // One row of the players' panel.
    struct PanelRow {
        Control name{false, true, ""};
        Control balance{false, true, "Bankrupt"};
        int token = kNoPicture;  // Token(i): the player's token picture
        bool tokenVisible = false;
    };
    // The large token that walks the board.
    struct BigToken {
        bool visible = false;
        Integer cell = 0;
    };

    bool enabled_ = true;
    bool gameEndShown_ = false;
    bool askingDebtTests_ = false;
    bool turnButtonBusy_ = false;
    std::string label1_ = "Let the game begin!";
    std::string label2_ = "Label2";
    int playToken_ = kNoPicture;
    int turnBar_ = kNoPicture;
    Control rollDice_{true, true, "Roll Dice"};
    Control declareBank_{false, true, "Declare Bankruptcy"};
    Control endTurn_{true, true, "End Turn"};
    Control pay50Rent_{false, true, "Pay $50 to get out of jail "};
    Control useJFLCard_{false, true, "Use Your JFL get out of jail card"};
    std::array<PanelRow, kMaxPlayers> panel_{};
    std::array<int, kMaxPlayers> tokenTags_{};
    std::array<BigToken, kMaxPlayers> bigTokens_{};
    std::array<std::array<int, kMaxPlayers>, kCellCount> squares_{};
    std::array<int, kCellCount> hotels_{};
    std::array<bool, kCellCount> mortgaged_{};
    std::array<int, kCellCount> ownedBy_{};
    Integer die1_ = 0;
    Integer die2_ = 0;
};

class MainWindow final : public MainWindowPort, public WindowModel, private MainWindowShown {
public:
    using PanelRow = MainWindowShown::PanelRow;
    using BigToken = MainWindowShown::BigToken;

    MainWindow(Sound& sound, Delay& delay);

    // Set-up
    void init(Board& bBoard1);
    // Draws the order of play, fills the panel and opens the first turn.
    void startGame();
    // Reads what the board prints on its forty cells, once the cells exist.
    void readCellFaces(const Board& board) { faces_ = CellFaces(board); }

    // What the rules call
    void showInfo(std::string_view msg) override;
    void UpdateTurnPlaying(TurnButtons opt) override;
    void Showdice(Integer die1, Integer die2) override;
    void MoveToken(Integer id, Integer from, Integer to) override;
    void UpdatePlayers() override;
    void ShowPlayers();
    void showCell(const OnCell& onCell, Integer cellId) override;
    void showOwner(Integer cellId) override;
    void showHotel(Integer cellId) override;
    void showMort(Integer cellId) override;
    void showInJail() override;
    void showNegBalance(bool neg) override;
    void showBankRupt() override;
    void setEnabled(bool enabled) override;
    void showGameEnd() override;

    // Clicks and menu
    void rollDice_Click();
    void endTurn_Click();
    void pay50Rent_Click();
    void useJFLCard_Click();
    void declareBank_Click();
    void cell_Click(Integer Index);
    // Space or Enter on the window: whichever of Roll Dice and End Turn is open.
    void turnKey_Press();
    void Mute_Click();
    void Enable_Click();
    void setOnExit(std::function<void()> hook) { onExit_ = std::move(hook); }
    void setOnAbout(std::function<void()> hook) { onAbout_ = std::move(hook); }
    void Exit_Click() const;
    void About_Click() const;
    // The game is over: the end window takes over.
    void setOnGameEnd(std::function<void()> hook) { onGameEnd_ = std::move(hook); }
    void show() {
        gameEndShown_ = false;
        setVisible(true);
    }
    // Drops what the window shows, back to its state at load; the board link stays.
    void unload();

    // State for the view
    // Every control by its name, as a view binds them.
    void forEachControl(const ControlVisitor& fn) const;
    bool isEnabled() const { return enabled_; }
    // The board of the game shown, or null before init.
    const Board* board() const { return board_; }
    bool gameEndShown() const { return gameEndShown_; }
    const std::string& Label1() const { return label1_; }
    const std::string& Label2() const { return label2_; }
    int playToken() const { return playToken_; }
    int turnBar() const { return turnBar_; }
    const Control& rollDice() const { return rollDice_; }
    const Control& declareBank() const { return declareBank_; }
    const Control& endTurn() const { return endTurn_; }
    const Control& pay50Rent() const { return pay50Rent_; }
    const Control& useJFLCard() const { return useJFLCard_; }
    const PanelRow& panel(int id) const { return panel_[static_cast<std::size_t>(id)]; }
    const BigToken& bigToken(int id) const { return bigTokens_[static_cast<std::size_t>(id)]; }
    // The token picture in small square s (0 to 5) of a cell, or kNoPicture.
    int square(int cellId, int s) const {
        return squares_[static_cast<std::size_t>(cellId)][static_cast<std::size_t>(s)];
    }
    // The token picture that square s of a cell shows on the board, or kNoPicture: a player
    // stands on the board once, so its square stays empty while its large token is out.
    int squareShown(int cellId, int s) const;
    int hotelsShown(int cellId) const { return hotels_[static_cast<std::size_t>(cellId)]; }
    bool mortgageShown(int cellId) const { return mortgaged_[static_cast<std::size_t>(cellId)]; }
    int ownerMark(int cellId) const { return ownedBy_[static_cast<std::size_t>(cellId)]; }
    // The printed face of a cell: its kind, name, price and district.
    const CellFace& cellFace(int cellId) const { return faces_.face(cellId); }
    // The faces on top of each die, 0 before the first roll.
    Integer dieFace1() const { return die1_; }
    Integer dieFace2() const { return die2_; }

private:
    enum class Layout { Free, InDebtHuman, InDebtComputer };
    void applyLayout(Layout layout);
    player& current() const;
    // A turn button acts only for a human whose turn it is, and not inside another one.
    bool turnButtonsLive() const;
    template <class Action>
    void runTurnButton(const Control& button, Action action);

    Sound& sound_;
    Delay& delay_;
    Board* board_ = nullptr;
    CellFaces faces_;

    std::function<void()> onExit_;
    std::function<void()> onAbout_;
    std::function<void()> onGameEnd_;
};

}  // namespace gw
