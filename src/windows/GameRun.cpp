#include "windows/GameRun.h"

namespace gw {

GameRun::GameRun(Sound& sound, Delay& delay, MessageBox& messages, std::unique_ptr<Random> random)
    : sound_(sound),
      delay_(*this, delay),
      main_(sound, delay_),
      rulesWindow_(main_),
      windows_(rulesWindow_, sound, delay_),
      board_(windows_, std::move(random)),
      start_(board_, sound, messages),
      end_(main_),
      debtHelp_(main_, board_, yesToAll_),
      history_(windows_.jflCard) {
    rulesWindow_.addListener(history_);
    main_.setOnChanged([this] {
        history_.noteMessage(main_.Label1());
        narrator_.noteMessage(main_.Label1());
        if (mainChanged_) mainChanged_();
    });
    start_.setOnStart([this](const GameSetup& setup) { beginGame(setup); });
    main_.setOnExit([this] { requestExit(); });
    main_.setOnAbout([this] { about_.show(); });
    main_.setOnGameEnd([this] { end_.Form_Load(); });
    end_.setOnNewGame([this] { requestNewGame(); });
    end_.setOnExit([this] { requestExit(); });
    board_.setOnTurnPlayed([this] { return !isWindingDown(); });
}

void GameRun::start() {
    start_.Form_Load();
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
    rulesWindow_.setWatcher(&watcher);
    onGameBegin_ = std::move(onGameBegin);
}

void GameRun::click(const std::function<void()>& handler) {
    if (exited_) return;
    ++clickDepth_;
    handler();
    --clickDepth_;
    if (clickDepth_ == 0) finishPending();
}

void GameRun::RunDelay::wait(Integer ticks) {
    if (run_.isWindingDown()) return;
    inner_.wait(ticks);
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
    history_.close();
    start_.startNew();
}

void GameRun::beginGame(const GameSetup& setup) {
    board_.addPlayers(setup);
    history_.begin(board_);
    if (onGameBegin_) onGameBegin_();
    main_.init(board_);
    main_.show();
    main_.startGame();
}

}  // namespace gw
