// SPDX-License-Identifier: GPL-3.0-or-later
// One run of the program: the board with its source of chance, the main window, the four
// card windows, the set-up, end and About windows, and the sound, delay and message-box
// interfaces that the desktop program or a test supplies. Nothing here is global, so
// several runs can live in one process.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "game/Board.h"
#include "game/Random.h"
#include "ports/Delay.h"
#include "ports/Sound.h"
#include "windows/DebtHelp.h"
#include "windows/GameEnd.h"
#include "windows/GameStart.h"
#include "windows/GameStory.h"
#include "windows/History.h"
#include "windows/MainWindow.h"
#include "windows/MainWindowTee.h"
#include "windows/MessageBox.h"
#include "windows/Narrator.h"
#include "windows/Question.h"
#include "windows/ReplayRandom.h"
#include "windows/Voice.h"
#include "windows/Windows.h"

namespace gw {

class GameRun {
public:
    GameRun(Sound& sound, Delay& delay, MessageBox& messages, std::unique_ptr<Random> random);
    GameRun(const GameRun&) = delete;
    GameRun& operator=(const GameRun&) = delete;

    // Opens the set-up window, as the program does when it starts.
    void start();

    // Every click, key and menu entry of a view enters through here. The handler runs
    // at once; a new game or the end of the program asked for inside it happens when
    // the outermost handler returns, after the waits still on the stack have been cut
    // short and any run of computer turns has stopped.
    void click(const std::function<void()>& handler);

    // The program ends: the desktop program quits its event loop, a headless run notes it.
    void setOnExit(std::function<void()> hook) { onExit_ = std::move(hook); }
    // Fires whenever any window model changed. A view marks itself dirty and repaints
    // from the event loop, which runs inside every wait: one rule step may change a
    // model several times, and only the last state needs drawing.
    void setOnChanged(std::function<void()> hook);
    // A second main window that hears every call the rules make to the first, and a hook
    // run as each game begins, its players seated and no turn played: for tools that keep
    // their own books of what people do through the windows.
    void watchMainWindow(MainWindowPort& watcher, std::function<void()> onGameBegin);

    // The game watched again: the draws and the clicks of the game just over, played from
    // memory on the same windows until its end. Clicks are ignored while it runs; Stop
    // plays the rest at once, without waits. The hook hears the start (true) and the end.
    bool canWatchAgain() const;
    void watchAgain();
    void stopWatching() { stopWatching_ = true; }
    bool isReplaying() const { return replaying_; }
    void setOnReplay(std::function<void(bool)> hook) { onReplay_ = std::move(hook); }

    // The questions the windows put to the person at the screen; headless, every answer
    // is Yes.
    void setQuestion(Question& question);
    // The voice of File > Voice; headless, silence.
    void setVoice(Voice& voice) { narrator_.setVoice(voice); }
    // The main window's close box: during a game it asks first and leaves on Yes as Exit
    // does; with no game on the board it leaves at once.
    void closeMainWindow();

    // True from the moment the end of the program or a new game is asked for until it
    // has happened: waits return at once and no further computer turn starts.
    bool isWindingDown() const { return exitPending_ || newGamePending_; }
    bool hasExited() const { return exited_; }
    // Computer turns played in the game now running or just over.
    long long computerTurns() const { return computerTurns_; }

    // The story of the game now running or just over, for the end window.
    const GameStory& story() const { return story_; }
    Board& board() { return board_; }
    const Board& board() const { return board_; }
    MainWindow& mainWindow() { return main_; }
    const MainWindow& mainWindow() const { return main_; }
    Windows& windows() { return windows_; }
    const Windows& windows() const { return windows_; }
    GameStart& gameStart() { return start_; }
    GameEnd& gameEnd() { return end_; }
    About_Help& about() { return about_; }
    DebtHelp& debtHelp() { return debtHelp_; }
    History& history() { return history_; }
    Narrator& narrator() { return narrator_; }
    const History& history() const { return history_; }
    const DebtHelp& debtHelp() const { return debtHelp_; }

private:
    // The supplied delay, skipped while the run winds down.
    class RunDelay final : public Delay {
    public:
        RunDelay(GameRun& run, Delay& inner) : run_(run), inner_(inner) {}
        void wait(Integer ticks) override;

    private:
        GameRun& run_;
        Delay& inner_;
    };

    // A click of the game being played, and the wait in progress when it came.
    struct RecordedClick {
        std::function<void()> handler;
        long long wait = 0;  // 0: between the chains of the rules
    };
    void replayClicksInside(long long wait);
    void requestExit();
    void requestNewGame();
    void newGame();
    void beginGame(const GameSetup& setup);
    void finishPending();

    Sound& sound_;
    Delay& realDelay_;
    RunDelay delay_;
    ReplayRandom* random_ = nullptr;
    MainWindow main_;
    GameStory story_;
    // The story hears what the main window hears, and passes it on to a tool's watcher.
    MainWindowTee storyWindow_;
    MainWindowTee rulesWindow_;
    Windows windows_;
    Board board_;
    GameStart start_;
    GameEnd end_;
    About_Help about_;
    ScriptedQuestion yesToAll_;
    Question* question_ = &yesToAll_;
    DebtHelp debtHelp_;
    History history_;
    SilentVoice silence_;
    Narrator narrator_{silence_};

    int clickDepth_ = 0;
    bool exitPending_ = false;
    bool newGamePending_ = false;
    bool exited_ = false;
    long long computerTurns_ = 0;
    GameSetup setup_;
    std::vector<RecordedClick> clicks_;
    std::size_t nextClick_ = 0;
    long long waitsStarted_ = 0;
    std::vector<long long> waitsRunning_;
    bool recording_ = false;
    bool replaying_ = false;
    bool stopWatching_ = false;
    std::function<void(bool)> onReplay_;
    std::function<void()> onExit_;
    std::function<void()> onGameBegin_;
    std::function<void()> mainChanged_;
};

}  // namespace gw
