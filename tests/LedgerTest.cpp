// SPDX-License-Identifier: GPL-3.0-or-later
// The simulator's ledger on its own: one scripted turn for each kind of fault it is there
// to catch, each named as what it is, and its own tables of amounts against the cells.
#include "Checker.h"
#include "GameFixture.h"
#include "Tariff.h"
#include "windows/Windows.h"

namespace gw::test {
namespace {

// A computer, A, at turn; two humans, B and C, who never play a turn of their own here.
class Ledger : public ::testing::Test {
protected:
    Ledger() {
        auto scripted = std::make_unique<ScriptedRandom>(deckDraws(deckInOrder()));
        random = scripted.get();
        board = std::make_unique<Board>(windows, std::move(scripted));
        board->init();
        a = board->addPlayer("A", true, 0);
        b = board->addPlayer("B", false, 1);
        c = board->addPlayer("C", false, 2);
    }
    // The game as it stands is where the checked turn starts.
    void startTurn() {
        window.attach(*board);
        window.clearEvents();
        checker = std::make_unique<sim::Checker>(*board, window);
    }
    std::string fault() { return checker->afterTurn(0).value_or(""); }
    void own(player& p, std::initializer_list<Integer> cells) {
        for (Integer cell : cells) p.newlyOwn(*board->getCell(cell));
    }
    void placeAt(player& p, Integer cell) {
        p.move(static_cast<Integer>((cell - p.getPosition() + 40) % 40), true);
    }

    sim::LedgerWindow window{true};
    SilentSound sound;
    InstantDelay delay;
    Windows windows{window, sound, delay};
    ScriptedRandom* random = nullptr;
    std::unique_ptr<Board> board;
    player* a = nullptr;
    player* b = nullptr;
    player* c = nullptr;
    std::unique_ptr<sim::Checker> checker;
};

::testing::AssertionResult names(const std::string& fault, const std::string& words) {
    if (fault.find(words) != std::string::npos) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "the fault \"" << fault << "\" does not say \"" << words << "\"";
}

TEST_F(Ledger, AStrayPaymentIsUnexplained) {
    startTurn();
    b->credit(7);
    EXPECT_TRUE(names(fault(), "money moved that no rule explains: B +7"));
}

TEST_F(Ledger, RentMustGoToTheOwnerOfTheCell) {
    own(*b, {1});
    placeAt(*a, 1);
    startTurn();
    a->debit(9);
    c->credit(9);
    EXPECT_TRUE(names(fault(), "paid to the wrong player"));
}

TEST_F(Ledger, RentMustBeTheOneForTheHotelsOnTheCell) {
    own(*b, {1, 3});
    board->streetAt(1)->addHotel();
    board->streetAt(1)->addHotel();
    placeAt(*a, 1);
    startTurn();
    a->payRent();  // 108 with two hotels
    ASSERT_EQ(fault(), "");
    a->debit(45);  // the rent of one hotel
    b->credit(45);
    EXPECT_TRUE(names(fault(), "with 2 hotels on it, where the rent is 108"));
}

TEST_F(Ledger, GoMoneyComesWithAThrowButNotWithAWalkToJail) {
    placeAt(*a, 38);
    startTurn();
    random->pushFaces({2, 3});
    board->rollDice();
    ASSERT_EQ(a->getBalance(), 1700);
    ASSERT_EQ(fault(), "");

    placeAt(*a, 30);
    startTurn();
    a->move(10, false);  // the police's walk, paid as if it were a throw
    a->move(10, true);
    EXPECT_TRUE(names(fault(), "from cell 30 to cell 0, which is no throw and no forward card"));
}

TEST_F(Ledger, ACellChangesHandsOnlyWithBothPaymentsOfASale) {
    own(*b, {9});
    startTurn();
    b->noMoreOwn(*board->getCell(9));
    a->newlyOwn(*board->getCell(9));
    EXPECT_TRUE(names(fault(), "went from B to A in a sale without its two payments"));
}

TEST_F(Ledger, ABankruptcyGivesTheCellsToTheCreditor) {
    own(*b, {1});
    own(*a, {6});
    placeAt(*a, 1);
    startTurn();
    c->newlyOwn(*board->getCell(6));  // to the wrong player, before the bankruptcy is shown
    a->noMoreOwn(*board->getCell(6));
    a->declareBankruptcy();
    EXPECT_TRUE(names(fault(), "gave cell 6 (Wellington) to C, not to its creditor B"));
}

TEST_F(Ledger, AComputerBuildsOnlyAboveItsThreshold) {
    own(*a, {1, 3});
    a->debit(1350);
    startTurn();
    a->buildHotel(3);
    EXPECT_TRUE(names(fault(), "A built a hotel with 150 in hand"));
}

TEST_F(Ledger, TheLedgersOwnTablesAgreeWithTheCells) {
    for (Integer cell = 0; cell < kCellCount; ++cell) {
        SCOPED_TRACE(cell);
        const sim::CellTariff& t = sim::tariffOf(cell);
        const PropertyCell* prop = board->propertyAt(cell);
        ASSERT_EQ(t.price != 0, prop != nullptr);
        if (prop == nullptr) continue;
        EXPECT_EQ(t.price, prop->getProp().getPrice());
        EXPECT_EQ(t.rent[0], prop->getRent());
        EXPECT_EQ(t.mortgage, prop->getProp().getMortgage());
        EXPECT_EQ(t.release, rounded(prop->getProp().getMortgage() * 1.1));
        const Street* street = board->streetAt(cell);
        ASSERT_EQ(t.street, street != nullptr);
        if (street == nullptr) continue;
        EXPECT_EQ(t.hotelCost, street->getHotelCost());
        for (Integer h = 1; h <= 4; ++h) {
            EXPECT_EQ(t.rent[static_cast<std::size_t>(h)], street->getRentWithHotels(h));
        }
    }
}

// A full purse swallows what it is paid; an update that moves nothing then passes, on a tax
// cell too, but only while some purse is full.
TEST_F(Ledger, NothingMovedPassesOnlyWhileAPurseIsFull) {
    placeAt(*a, 4);
    b->credit(static_cast<Integer>(kIntegerMax - b->getBalance()));
    startTurn();
    b->credit(25);
    EXPECT_EQ(fault(), "");
    b->debit(1);
    startTurn();
    b->credit(0);
    EXPECT_TRUE(names(fault(), "paid a tax of 0 on cell 4 (Income Tax)"));
}

// A person may use a property card left open into another's turn, and a full purse takes
// in a mortgage whole; a computer deals with the bank only in its own turn.
TEST_F(Ledger, OnlyAPersonDealsOnHisCellsInAnothersTurn) {
    player& d = *board->addPlayer("D", true, 3);
    own(*b, {1, 3});
    own(d, {6});
    startTurn();
    b->mortgageProp(1);
    EXPECT_EQ(fault(), "");
    b->credit(static_cast<Integer>(kIntegerMax - b->getBalance()));
    startTurn();
    b->mortgageProp(3);
    EXPECT_EQ(fault(), "");
    d.mortgageProp(6);
    EXPECT_TRUE(names(fault(), "money moved that no rule explains: D +65"));
}

}  // namespace
}  // namespace gw::test
