// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/MainWindow.h"

#include <cstdlib>

#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "game/Board.h"
#include "ports/Delay.h"
#include "ports/Sound.h"

namespace gw {
namespace {

constexpr Integer kStepTicks = 2;   // a walking token: 160 ms a cell
constexpr Integer kFrameTicks = 1;  // a falling die: 80 ms a frame
constexpr Integer kPoliceCell = 30;

int tokenNumber(const player& p) {
    return std::atoi(p.getTokenName().c_str());
}

}  // namespace

MainWindowShown::MainWindowShown() {
    for (auto& cell : squares_) cell.fill(kNoPicture);
    tokenTags_.fill(kNoPicture);
    ownedBy_.fill(kNoPicture);
}

MainWindow::MainWindow(Sound& sound, Delay& delay) : sound_(sound), delay_(delay) {}

// The window's controls go back to their stored state, and so does the players' volume.
void MainWindow::unload() {
    static_cast<MainWindowShown&>(*this) = MainWindowShown{};
    Enable_Click();
    setVisible(false);
}

void MainWindow::init(Board& bBoard1) {
    board_ = &bBoard1;
}

player& MainWindow::current() const {
    return board_->getCurrPlayer();
}

void MainWindow::startGame() {
    board_->shufflePlayers();
    for (Integer i = 0; i < board_->getNumPlayer() && i < kMaxPlayers; ++i) {
        tokenTags_[static_cast<std::size_t>(i)] = tokenNumber(*board_->getPlayer(i));
    }
    UpdatePlayers();
    ShowPlayers();
    if (current().isComputer2()) {
        UpdateTurnPlaying(TurnButtons::Neither);
        board_->playTurn();
    } else {
        UpdateTurnPlaying(TurnButtons::Roll);
    }
}

void MainWindow::showInfo(std::string_view msg) {
    label1_ = msg;
    changed();
}

void MainWindow::UpdateTurnPlaying(TurnButtons opt) {
    const player& p = current();
    playToken_ = panel_[static_cast<std::size_t>(p.getId())].token;
    label2_ = p.getName();
    turnBar_ = p.getId();
    rollDice_.show();
    endTurn_.show();
    declareBank_.hide();
    switch (opt) {
        case TurnButtons::Roll:
            rollDice_.enable();
            endTurn_.enable(false);
            break;
        case TurnButtons::Finish:
            rollDice_.enable(false);
            endTurn_.enable();
            break;
        case TurnButtons::Neither:
            rollDice_.enable(false);
            endTurn_.enable(false);
            break;
    }
    // A human whose turn it is to throw or to finish while a debt stands is offered only
    // Declare Bankruptcy, whatever made the debt: a card, a rent outside his turn.
    if (opt != TurnButtons::Neither && !p.isComputer2() && p.getBalance() < 0) {
        applyLayout(Layout::InDebtHuman);
    }
    changed();
}

// The first die runs through its faces from 6 down, the second from 1 up, a frame a
// tick; then the thrown faces stay.
void MainWindow::Showdice(Integer die1, Integer die2) {
    for (Integer f = 1; f <= 6; ++f) {
        delay_.wait(kFrameTicks);
        die1_ = static_cast<Integer>(7 - f);
        die2_ = f;
        changed();
    }
    die1_ = die1;
    die2_ = die2;
    changed();
}

// One step on every cell from `from` to `to`, the first included.
void MainWindow::MoveToken(Integer id, Integer from, Integer to) {
    if (id < 0 || id >= kMaxPlayers) return;
    for (Integer k = from; k <= to; ++k) {
        delay_.wait(kStepTicks);
        bigTokens_[static_cast<std::size_t>(id)].cell = k;
        changed();
        sound_.play(MediaPlayer::Main1, SoundEffect::TokenMove);
    }
}

void MainWindow::UpdatePlayers() {
    for (Integer i = 0; i < board_->getNumPlayer() && i < kMaxPlayers; ++i) {
        const player* p = board_->getPlayer(i);
        if (p == nullptr) continue;
        PanelRow& row = panel_[static_cast<std::size_t>(i)];
        row.name.caption = p->getName();
        row.name.show();
        row.balance.caption = p->isBankrupt2() ? "Bankrupt" : std::to_string(p->getBalance());
        row.balance.show();
        row.token = tokenNumber(*p);
        row.tokenVisible = true;
    }
    changed();
}

void MainWindow::ShowPlayers() {
    for (Integer i = 0; i < board_->getNumPlayer() && i < kMaxPlayers; ++i) {
        bigTokens_[static_cast<std::size_t>(i)].visible = true;
    }
    changed();
}

// The squares fill from the first, in order of player number; the rest are hidden.
void MainWindow::showCell(const OnCell& onCell, Integer cellId) {
    if (cellId == kPoliceCell || cellId < 0 || cellId >= kCellCount) return;
    auto& squares = squares_[static_cast<std::size_t>(cellId)];
    std::size_t s = 0;
    for (std::size_t i = 0; i < onCell.size(); ++i) {
        if (onCell[i]) squares[s++] = tokenTags_[i];
    }
    while (s < squares.size()) squares[s++] = kNoPicture;
    changed();
}

int MainWindow::squareShown(int cellId, int s) const {
    const int picture = square(cellId, s);
    for (std::size_t id = 0; id < bigTokens_.size(); ++id) {
        if (bigTokens_[id].visible && panel_[id].token == picture) return kNoPicture;
    }
    return picture;
}

void MainWindow::showOwner(Integer cellId) {
    const PropertyCell* prop = board_->propertyAt(cellId);
    if (prop == nullptr) return;
    const player* owner = prop->getProp().getOwners();
    ownedBy_[static_cast<std::size_t>(cellId)] =
        owner == nullptr ? kNoPicture : panel_[static_cast<std::size_t>(owner->getId())].token;
    changed();
}

void MainWindow::showHotel(Integer cellId) {
    const Street* s = board_->streetAt(cellId);
    if (s == nullptr) return;
    hotels_[static_cast<std::size_t>(cellId)] = s->getHotelCount();
    changed();
}

void MainWindow::showMort(Integer cellId) {
    const PropertyCell* prop = board_->propertyAt(cellId);
    if (prop == nullptr) return;
    const bool mortgaged = prop->getProp().isMortgaged2();
    mortgaged_[static_cast<std::size_t>(cellId)] = mortgaged;
    changed();
    if (mortgaged) sound_.play(MediaPlayer::Main1, SoundEffect::Mortgaged);
}

void MainWindow::showBankRupt() {
    const player& p = current();
    bigTokens_[static_cast<std::size_t>(p.getId())].visible = false;
    panel_[static_cast<std::size_t>(p.getId())].balance.caption = "Bankrupt";
    changed();
    sound_.play(MediaPlayer::Main1, SoundEffect::Bankrupt);
}

// The ways out of jail are offered only before the throw of the turn: to a player who
// went to jail in this turn they would give a further throw.
void MainWindow::showInJail() {
    const player& p = current();
    pay50Rent_.hide();
    useJFLCard_.hide();
    if (p.IsInJail()) {
        showInfo(p.getName() + ", you are in jail. Please roll a double or pay 50 to get out!");
        if (rollDice_.isOpen()) {
            pay50Rent_.show();
            pay50Rent_.enable(p.getBalance() >= kJailFee);
            if (p.hasGoJFC()) useJFLCard_.show();
        }
    }
    changed();
}

void MainWindow::applyLayout(Layout layout) {
    switch (layout) {
        case Layout::Free:
            rollDice_.show();
            endTurn_.show();
            declareBank_.hide();
            declareBank_.enable(false);
            break;
        case Layout::InDebtHuman:
            rollDice_.hide();
            endTurn_.hide();
            declareBank_.show();
            declareBank_.enable();
            break;
        case Layout::InDebtComputer:
            rollDice_.hide();
            rollDice_.enable(false);
            endTurn_.show();
            endTurn_.enable(false);
            declareBank_.show();
            declareBank_.enable(false);
            break;
    }
    changed();
}

// The buttons follow the player's ability to pay. On a tax cell or a buyable cell the
// answer of the payment test counts, not `neg`. Those tests call back here while the
// player is short; the inner call only sets the layout and the outer one decides, which
// cuts what would otherwise be an endless exchange.
void MainWindow::showNegBalance(bool neg) {
    player& p = current();
    const Layout inDebt = p.isComputer2() ? Layout::InDebtComputer : Layout::InDebtHuman;
    applyLayout(neg ? inDebt : Layout::Free);
    if (askingDebtTests_) return;
    BoardCell* c = board_->getCell(p.getPosition());
    if (c == nullptr || !(c->isTax() || c->isProperty())) return;
    askingDebtTests_ = true;
    const Integer answer =
        c->isTax() ? p.canPayTax(p.getPosition()) : p.canPayRent(p.getPosition());
    askingDebtTests_ = false;
    applyLayout(answer != 0 ? inDebt : Layout::Free);
}

void MainWindow::setEnabled(bool enabled) {
    enabled_ = enabled;
    changed();
}

void MainWindow::showGameEnd() {
    gameEndShown_ = true;
    setVisible(false);
    if (onGameEnd_) onGameEnd_();
}

bool MainWindow::turnButtonsLive() const {
    return board_ != nullptr && enabled_ && !turnButtonBusy_ && !current().isComputer2() &&
           !current().isBankrupt2();
}

// A click that arrives inside a wait of the turn it belongs to, or in a computer's turn,
// is dropped: one roll for one turn.
template <class Action>
void MainWindow::runTurnButton(const Control& button, Action action) {
    if (!button.isOpen() || !turnButtonsLive()) return;
    turnButtonBusy_ = true;
    action();
    turnButtonBusy_ = false;
}

void MainWindow::rollDice_Click() {
    runTurnButton(rollDice_, [this] {
        sound_.play(MediaPlayer::Main1, SoundEffect::DiceRoll);
        pay50Rent_.hide();
        useJFLCard_.hide();
        changed();
        board_->playTurn();
    });
}

void MainWindow::pay50Rent_Click() {
    runTurnButton(pay50Rent_, [this] {
        current().pay50GOJ();
        showInJail();
        board_->playTurn();
    });
}

void MainWindow::useJFLCard_Click() {
    runTurnButton(useJFLCard_, [this] {
        current().useGOJFC();
        showInJail();
        board_->playTurn();
    });
}

void MainWindow::endTurn_Click() {
    runTurnButton(endTurn_, [this] {
        board_->endTurn();
        showInfo(label2_ + ", its your turn to play.");
    });
}

void MainWindow::declareBank_Click() {
    runTurnButton(declareBank_, [this] { current().declareBankruptcy(); });
}

void MainWindow::turnKey_Press() {
    if (rollDice_.isOpen()) {
        rollDice_Click();
    } else if (endTurn_.isOpen()) {
        endTurn_Click();
    }
}

void MainWindow::cell_Click(Integer Index) {
    if (board_ == nullptr || !enabled_) return;
    player& p = current();
    if (p.isComputer2() || p.isBankrupt2()) return;
    PropertyCell* prop = board_->propertyAt(Index);
    if (prop == nullptr) return;
    Integer opt = 0;
    // During the walk the token is not yet on the cell it walks to.
    if (p.getPosition() == Index && !p.isWalking()) {
        if (!p.getDidAction()) {
            prop->doAction(p);
        } else {
            prop->showInfo(p, opt);
        }
        return;
    }
    prop->showInfo(p, opt);
    if (p.IsInJail()) showInJail();
}

void MainWindow::Mute_Click() {
    sound_.setVolume(MediaPlayer::Main1, kMutedVolume);
    sound_.setVolume(MediaPlayer::Main2, kMutedVolume);
}

void MainWindow::Enable_Click() {
    sound_.setVolume(MediaPlayer::Main1, kNormalVolume);
    sound_.setVolume(MediaPlayer::Main2, kNormalVolume);
}

void MainWindow::Exit_Click() const {
    if (onExit_) onExit_();
}

void MainWindow::About_Click() const {
    if (onAbout_) onAbout_();
}

void MainWindow::forEachControl(const ControlVisitor& fn) const {
    fn("rollDice", rollDice_);
    fn("declareBank", declareBank_);
    fn("endTurn", endTurn_);
    fn("pay50Rent", pay50Rent_);
    fn("useJFLCard", useJFLCard_);
    fn("Label1", Control{true, true, label1_});
    fn("Label2", Control{true, true, label2_});
    for (int i = 0; i < kMaxPlayers; ++i) {
        std::string index = std::to_string(i);
        index.insert(0, 1, '(').push_back(')');
        fn("PlayerName" + index, panel_[static_cast<std::size_t>(i)].name);
        fn("Balance" + index, panel_[static_cast<std::size_t>(i)].balance);
    }
}

}  // namespace gw
