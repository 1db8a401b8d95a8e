// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/GameRun.h"
#include "windows/Windows.h"

namespace gw {

namespace {

// A pause between two clicks of a person in a game watched again, so the eye can follow.
constexpr Integer kReplayClickTicks = 4;

std::unique_ptr<ReplayRandom> withMemory(std::unique_ptr<Random> live, ReplayRandom*& kept) {
    auto random = std::make_unique<ReplayRandom>(std::move(live));
    kept = random.get();
    return random;
}

}  // namespace

GameRun::GameRun(Sound& sound, Delay& delay, MessageBox& messages, std::unique_ptr<Random> random)
    : sound_(sound),
      realDelay_(delay),
      delay_(*this, delay),
      main_(sound, delay_),
      storyWindow_(story_),
      rulesWindow_(main_),
      windows_(rulesWindow_, sound, delay_),
      board_(windows_, withMemory(std::move(random), random_)),
      start_(board_, sound, messages),
      end_(main_),
      debtHelp_(main_, board_, yesToAll_),
      history_(windows_.jflCard) {
    rulesWindow_.setWatcher(&storyWindow_);
    rulesWindow_.addListener(history_);
    main_.setOnChanged([this] {
        history_.noteMessage(main_.Label1());
        narrator_.noteMessage(main_.Label1());
        if (mainChanged_) mainChanged_();
    });
    start_.setOnStart([this](const GameSetup& setup) { beginGame(setup); });
    main_.setOnExit([this] { requestExit(); });
    main_.setOnAbout([this] { about_.show(); });
    main_.setOnGameEnd([this] {
        recording_ = false;
        end_.Form_Load();
    });
    end_.setOnNewGame([this] { requestNewGame(); });
    end_.setOnExit([this] { requestExit(); });
    board_.setOnTurnPlayed([this] {
        ++computerTurns_;
        return !isWindingDown();
    });
}

void GameRun::start() {
    random_->record();
    start_.Form_Load();
    main_.readCellFaces(board_);
}

void GameRun::setOnChanged(std::function<void()> hook) {
    mainChanged_ = hook;
    windows_.setOnChanged(hook);
    start_.setOnChanged(hook);
    end_.setOnChanged(hook);
    history_.setOnChanged(hook);
    about_.setOnChanged(std::move(hook));
}

void GameRun::setQuestion(Question& question) {
    question_ = &question;
    debtHelp_.setQuestion(question);
}

void GameRun::closeMainWindow() {
    if (main_.isVisible() && !question_->ask("Gildenway", "Leave the game in progress?")) return;
    requestExit();
}

void GameRun::watchMainWindow(MainWindowPort& watcher, std::function<void()> onGameBegin) {
    storyWindow_.setWatcher(&watcher);
    onGameBegin_ = std::move(onGameBegin);
}

void GameRun::click(const std::function<void()>& handler) {
    if (exited_ || replaying_) return;
    if (recording_) {
        clicks_.push_back(
            {handler, clickDepth_ == 0 || waitsRunning_.empty() ? 0 : waitsRunning_.back()});
    }
    ++clickDepth_;
    handler();
    --clickDepth_;
    if (clickDepth_ == 0) finishPending();
}

// Waits are counted from the start of a game, so a click made inside one can be made
// again inside the same one when the game is watched again.
void GameRun::RunDelay::wait(Integer ticks) {
    const long long index = ++run_.waitsStarted_;
    run_.waitsRunning_.push_back(index);
    if (run_.replaying_) run_.replayClicksInside(index);
    const bool hurried = run_.replaying_ && run_.stopWatching_;
    if (!run_.isWindingDown() && !hurried) inner_.wait(ticks);
    run_.waitsRunning_.pop_back();
}

bool GameRun::canWatchAgain() const {
    return end_.isVisible() && !replaying_ && !recording_ && !setup_.seats.empty();
}

// The same board built anew from the same draws, the same seats, then every click of the
// people in the order and inside the waits they came in: the game ends where it ended.
void GameRun::watchAgain() {
    if (!canWatchAgain()) return;
    replaying_ = true;
    stopWatching_ = false;
    windows_.forgetPlayers();
    main_.unload();
    end_.unload();
    if (onReplay_) onReplay_(true);
    random_->replay();
    board_.deleteAllPlayer();
    board_.init();
    board_.addPlayers(setup_);
    computerTurns_ = 0;
    story_.begin(board_);
    history_.begin(board_);  // the old players are gone; the history follows the game anew
    waitsStarted_ = 0;
    nextClick_ = 0;
    main_.init(board_);
    main_.show();
    main_.startGame();
    while (nextClick_ < clicks_.size() && !isWindingDown()) {
        if (!stopWatching_) realDelay_.wait(kReplayClickTicks);
        const std::function<void()> handler = clicks_[nextClick_++].handler;
        handler();
    }
    random_->goLive();
    replaying_ = false;
    if (onReplay_) onReplay_(false);
}

void GameRun::replayClicksInside(long long wait) {
    while (nextClick_ < clicks_.size() && clicks_[nextClick_].wait == wait) {
        const std::function<void()> handler = clicks_[nextClick_++].handler;
        handler();
    }
}

void GameRun::requestExit() {
    exitPending_ = true;
}

void GameRun::requestNewGame() {
    newGamePending_ = true;
}

void GameRun::finishPending() {
    if (exitPending_) {
        exited_ = true;
        if (onExit_) onExit_();
        return;
    }
    if (newGamePending_) {
        newGame();
        newGamePending_ = false;
    }
}

// Every window back to its state at load, the cards without players, the same board
// built anew and the set-up window up with its sound.
void GameRun::newGame() {
    windows_.forgetPlayers();
    main_.unload();
    end_.unload();
    about_.unload();
    random_->record();
    history_.close();
    start_.startNew();
}

void GameRun::beginGame(const GameSetup& setup) {
    board_.addPlayers(setup);
    setup_ = setup;
    clicks_.clear();
    waitsStarted_ = 0;
    recording_ = true;
    computerTurns_ = 0;
    story_.begin(board_);
    history_.begin(board_);
    if (onGameBegin_) onGameBegin_();
    main_.init(board_);
    main_.show();
    main_.startGame();
}

}  // namespace gw
