// SPDX-License-Identifier: GPL-3.0-or-later
#include "Monkey.h"

#include "Invariants.h"
#include "MoneyBooks.h"

#include <functional>
#include <memory>
#include <random>
#include <string_view>
#include <vector>

#include "windows/CellInfoWindow.h"
#include "windows/GameRun.h"
#include "windows/JFLCardWindow.h"
#include "windows/TradingCardWindow.h"
#include "windows/Windows.h"
#include "windows/taxCellWindow.h"

namespace gw::monkey {
namespace {

using Action = std::function<void()>;

// Waits that sometimes let the monkey click inside them, as a real wait serves clicks.
class MonkeyDelay final : public Delay {
public:
    std::function<void()> inside;
    void wait(Integer) override {
        if (inside && depth_ < 2) {
            ++depth_;
            inside();
            --depth_;
        }
    }

private:
    int depth_ = 0;
};

class Monkey {
public:
    Monkey(std::uint64_t seed) : seed_(seed), pick_(seed) { newRun(); }

    MonkeyResult play(long steps) {
        MonkeyResult result;
        for (step_ = 0; step_ < steps && failure_.empty(); ++step_) {
            if (run_->hasExited()) newRun();
            const bool ended = run_->gameEnd().isVisible();
            if (!act()) fail("nothing can be clicked");
            if (!ended && run_->gameEnd().isVisible()) ++result.games;
            check();
        }
        result.steps = step_;
        result.failure = failure_;
        return result;
    }

private:
    void newRun() {
        run_ = std::make_unique<GameRun>(sound_, delay_, boxes_,
                                         std::make_unique<SeededRandom>(pick_()));
        run_->watchMainWindow(books_.window(), [this] { books_.begin(run_->board()); });
        delay_.inside = [this] {
            checkInsideAWait();
            if (chance(0.05)) books_.readApart([this] { act(); });
        };
        run_->start();
    }

    bool chance(double p) { return std::uniform_real_distribution<>(0, 1)(pick_) < p; }
    int below(int n) { return std::uniform_int_distribution<>(0, n - 1)(pick_); }

    std::string randomText() {
        static constexpr std::string_view kPieces[] = {"a", "Z", "7", " ", "0", "é", "Ann", "-"};
        switch (below(5)) {
            case 0:
                return "";
            case 1:
                return std::to_string(100000 + below(900000));  // a pasted 6-digit number
            default: {
                std::string text;
                const int n = 1 + below(40);
                for (int i = 0; i < n; ++i) text += kPieces[below(std::size(kPieces))];
                return text;
            }
        }
    }

    // Offers each control of a window that is shown and open.
    template <class Model>
    void offerControls(std::vector<Action>& actions, const Model& model,
                       const std::function<void(std::string_view)>& clickByName) {
        model.forEachControl([&](std::string_view name, const Control& c) {
            if (c.isOpen())
                actions.push_back([clickByName, n = std::string(name)] { clickByName(n); });
        });
    }

    std::vector<Action> possibleActions() {
        std::vector<Action> a;
        GameRun& r = *run_;
        GameStart& start = r.gameStart();
        if (start.isVisible()) {
            a.push_back([&] { start.Token_Click(below(kTokenControls)); });
            if (start.Image1()) a.push_back([&] { start.Image1_Click(); });
            if (start.Image4()) a.push_back([&] { start.Image4_Click(); });
            if (start.NickName().isOpen())
                a.push_back([&] { start.NickName_Change(randomText()); });
            if (start.Command1().isOpen()) {
                for (int i = 0; i < 4; ++i) a.push_back([&] { start.Command1_Click(); });
            }
            if (start.Command2().isOpen()) a.push_back([&] { start.Command2_Click(); });
        }
        MainWindow& main = r.mainWindow();
        if (main.isVisible() && main.isEnabled()) {
            offerControls(a, main, [&](std::string_view n) {
                if (n == "rollDice") main.rollDice_Click();
                if (n == "endTurn") main.endTurn_Click();
                if (n == "declareBank" && chance(0.2)) main.declareBank_Click();
                if (n == "pay50Rent") main.pay50Rent_Click();
                if (n == "useJFLCard") main.useJFLCard_Click();
            });
            a.push_back([&] { main.cell_Click(static_cast<Integer>(below(kCellCount))); });
            a.push_back([&] { chance(0.5) ? main.Mute_Click() : main.Enable_Click(); });
            a.push_back([&] { main.About_Click(); });
        }
        Windows& w = r.windows();
        CellInfoWindow& card = w.cellInfo;
        if (card.isVisible()) {
            offerControls(a, card, [&](std::string_view n) {
                if (n == "buy") card.buy_Click();
                if (n == "forget") card.forget_Click();
                if (n == "payRent") card.payRent_Click();
                if (n == "trade") card.trade_Click();
                if (n.starts_with("Ok")) card.Ok_Click(0);
                if (n.starts_with("Mortgage")) card.Mortgage_Click(0);
                if (n == "Unmortgage") card.Unmortgage_Click();
                if (n == "buyHotel") card.buyHotel_Click();
                if (n == "sellHotel") card.sellHotel_Click();
            });
            a.push_back([&] { card.close(); });
        }
        TradingCardWindow& trade = w.trading;
        if (trade.isVisible()) {
            offerControls(a, trade, [&](std::string_view n) {
                if (n == "doneDeal") trade.doneDeal_Click();
                if (n == "wantIt") trade.wantIt_Click();
                if (n == "wantMore") trade.wantMore_Click();
                if (n == "forgetIt") trade.forgetIt_Click();
            });
            a.push_back([&] {
                trade.amount_GotFocus();
                for (char key : randomText()) trade.typeKey(key);
            });
            a.push_back([&] { trade.close(); });
        }
        if (w.jflCard.isVisible()) a.push_back([&] { w.jflCard.close(); });
        if (w.taxCard.isVisible()) {
            if (w.taxCard.payRent().isOpen()) a.push_back([&] { w.taxCard.payRent_Click(); });
            a.push_back([&] { w.taxCard.close(); });
        }
        if (r.gameEnd().isVisible()) {
            a.push_back([&] { r.gameEnd().Command1_Click(); });
            if (chance(0.1)) a.push_back([&] { r.gameEnd().Command2_Click(); });
        }
        if (r.about().isVisible()) a.push_back([&] { r.about().Command1_Click(); });
        return a;
    }

    bool act() {
        std::vector<Action> actions = possibleActions();
        if (actions.empty()) return false;
        const Action chosen =
            actions[static_cast<std::size_t>(below(static_cast<int>(actions.size())))];
        run_->click(chosen);
        return true;
    }

    void fail(const std::string& what) {
        if (failure_.empty()) {
            failure_ =
                "seed " + std::to_string(seed_) + ", step " + std::to_string(step_) + ": " + what;
        }
    }

    // Inside every wait: a turn's throws are counted until the turn passes on, and a hotel
    // must be seen as it is built, before a trade can break its district.
    void checkInsideAWait() {
        failIfBroken(brokenWithinATurn(run_->board()));
        failIfBroken(hotels_.check(run_->board()));
    }

    // Between two steps: every invariant, and the books of the game, which stand idle
    // while the set-up window is up between two games.
    void check() {
        failIfBroken(brokenInvariant(*run_));
        failIfBroken(hotels_.check(run_->board()));
        if (!run_->gameStart().isVisible()) failIfBroken(books_.check());
    }

    void failIfBroken(const std::string& broken) {
        if (!broken.empty()) fail(broken);
    }

    std::uint64_t seed_;
    std::mt19937_64 pick_;
    SilentSound sound_;
    MonkeyDelay delay_;
    RecordedMessageBox boxes_;
    MoneyBooks books_;
    std::unique_ptr<GameRun> run_;
    HotelWatch hotels_;
    long step_ = 0;
    std::string failure_;
};

}  // namespace

MonkeyResult runMonkey(std::uint64_t seed, long steps) {
    Monkey monkey(seed);
    return monkey.play(steps);
}

}  // namespace gw::monkey
