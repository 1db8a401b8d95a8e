// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Places.h"

#include <array>

namespace gw::view {

namespace {

using K = ControlKind;
constexpr Qt::Alignment kCentre = Qt::AlignCenter;
constexpr Qt::Alignment kRight = Qt::AlignRight | Qt::AlignVCenter;
constexpr Qt::Alignment kLeft = Qt::AlignLeft | Qt::AlignVCenter;

// The panels of the main window hold their own controls; these are their origins.
constexpr int kPanelLeft = 8880;
constexpr int kPlayersTop = 0;
constexpr int kMessagesTop = 2880;
constexpr int kTurnTop = 7080;

constexpr Place row(std::string_view name, K kind, int left, int top, int width, int height,
                    Qt::Alignment align = kLeft, int fontPx = 12, bool wrap = false) {
    return {name, kind, left, top, width, height, align, fontPx, wrap};
}
constexpr Place inPlayers(std::string_view name, int left, int top, int width, int height,
                          Qt::Alignment align) {
    return row(name, K::Label, kPanelLeft + left, kPlayersTop + top, width, height, align, 11,
               name.starts_with("PlayerName"));
}

constexpr std::array kMain = {
    row("rollDice", K::Button, 1440, 1560, 1095, 495, kCentre, 12, true),
    row("declareBank", K::Button, 1440, 1560, 1095, 495, kCentre, 11, true),
    row("endTurn", K::Button, 1440, 2160, 1095, 495, kCentre, 12, true),
    row("pay50Rent", K::Button, 1440, 2760, 1095, 495, kCentre, 11, true),
    row("useJFLCard", K::Button, 1440, 3360, 1095, 735, kCentre, 11, true),
    row("Label1", K::Label, kPanelLeft + 465, kMessagesTop + 420, 2055, 615, kCentre, 11, true),
    row("Label2", K::Label, kPanelLeft + 1275, kTurnTop + 885, 1215, 375, kLeft, 13, true),
    inPlayers("PlayerName(0)", 870, 525, 1095, 255, kLeft),
    inPlayers("PlayerName(1)", 855, 930, 1095, 255, kLeft),
    inPlayers("PlayerName(2)", 840, 1305, 1095, 255, kLeft),
    inPlayers("PlayerName(3)", 825, 1695, 1095, 255, kLeft),
    inPlayers("PlayerName(4)", 840, 2085, 1095, 255, kLeft),
    inPlayers("PlayerName(5)", 855, 2415, 1095, 255, kLeft),
    inPlayers("Balance(0)", 1920, 510, 615, 255, kRight),
    inPlayers("Balance(1)", 1920, 915, 615, 255, kRight),
    inPlayers("Balance(2)", 1920, 1305, 615, 255, kRight),
    inPlayers("Balance(3)", 1920, 1665, 615, 255, kRight),
    inPlayers("Balance(4)", 1920, 2085, 615, 255, kRight),
    inPlayers("Balance(5)", 1890, 2415, 615, 255, kRight),
};

// The name of row i runs from the token's edge to the balance, on two lines if need be.
constexpr Place nameRoom(std::string_view name, int top) {
    return inPlayers(name, 825, top - 45, 1095, 330, kLeft);
}

constexpr std::array kMainTextRooms = {
    row("Label1", K::Label, kPanelLeft + 240, kMessagesTop + 405, 2310, 1620, kCentre, 11, true),
    row("Label2", K::Label, kPanelLeft + 1200, kTurnTop + 450, 1470, 1290, kLeft, 13, true),
    nameRoom("PlayerName(0)", 525),
    nameRoom("PlayerName(1)", 930),
    nameRoom("PlayerName(2)", 1305),
    nameRoom("PlayerName(3)", 1695),
    nameRoom("PlayerName(4)", 2085),
    nameRoom("PlayerName(5)", 2415),
};

constexpr std::array kStart = {
    row("NickName", K::TextEntry, 2160, 2370, 2535, 375, kLeft, 13),
    row("Label1", K::Label, 6720, 2880, 1095 * 2, 255, kLeft, 12),
    row("Label2", K::Label, 6720, 3240, 1095 * 2, 255, kLeft, 12),
    row("Label3", K::Label, 6720, 3600, 1095 * 2, 255, kLeft, 12),
    row("Label4", K::Label, 6705, 3960, 1095 * 2, 255, kLeft, 12),
    row("Label5", K::Label, 6720, 4365, 1095 * 2, 255, kLeft, 12),
    row("Label6", K::Label, 6720, 4725, 1095 * 2, 255, kLeft, 12),
    row("Command1", K::Button, 2160, 5520, 2175, 375, kCentre, 13),
    row("Command2", K::Button, 6600, 5520, 1575, 375, kCentre, 13),
};

constexpr std::array kPropertyCard = {
    row("Label1", K::Label, 360, 360, 2295, 255, kCentre, 13),
    row("Label2", K::Label, 360, 645, 2295, 255, kCentre, 12),
    row("Label3", K::Label, 360, 960, 2295, 255, kCentre, 12),
    row("Label4", K::Label, 1080, 1440, 1695, 255, kRight),
    row("Label5", K::Label, 1680, 1680, 1095, 255, kRight),
    row("Label6", K::Label, 1680, 1950, 1095, 255, kRight),
    row("Label7", K::Label, 1680, 2220, 1095, 255, kRight),
    row("Label8", K::Label, 1680, 2460, 1095, 255, kRight),
    row("Label9", K::Label, 1920, 3000, 855, 255, kRight),
    row("Label10", K::Label, 1800, 3240, 975, 255, kRight),
    row("buy", K::Button, 360, 3720, 1095, 495, kCentre),
    row("forget", K::Button, 1560, 3720, 1095, 495, kCentre),
    row("payRent", K::Button, 480, 3720, 2055, 495, kCentre),
    row("trade", K::Button, 360, 3720, 1095, 495, kCentre),
    row("Ok(0)", K::Button, 1560, 3720, 1095, 495, kCentre),
    row("Ok(1)", K::Button, 2040, 3720, 855, 495, kCentre),
    row("Mortgage(0)", K::Button, 360, 3720, 1095, 495, kCentre),
    row("Mortgage(1)", K::Button, 960, 3720, 1095, 495, kCentre),
    row("Unmortgage", K::Button, 360, 3720, 1095, 495, kCentre, 11),
    row("buyHotel", K::Button, 120, 3720, 855, 255, kCentre, 10),
    row("sellHotel", K::Button, 120, 3960, 855, 255, kCentre, 10),
    row("payTo", K::Label, 240, 4215, 2535, 240, kCentre, 11),
};

constexpr std::array kTradingCard = {
    row("Label1", K::Label, 1200, 1560, 1575, 255, kRight),
    row("Label2", K::Label, 1200, 1800, 1575, 255, kRight),
    row("Label3", K::Label, 1200, 2040, 1575, 255, kRight),
    row("Label4", K::Label, 1560, 2280, 1215, 255, kRight),
    row("amount", K::TextEntry, 1680, 3120, 1095, 375, kRight, 13),
    row("doneDeal", K::Button, 240, 2640, 2535, 255, kCentre, 11),
    row("wantIt", K::Button, 240, 3600, 2535, 255, kCentre, 11),
    row("wantMore", K::Button, 240, 3600, 2535, 255, kCentre, 11),
    row("forgetIt", K::Button, 240, 3960, 2535, 255, kCentre, 11),
};

// The owner's and the trader's names take two lines beside their printed captions.
constexpr std::array kTradingCardTextRooms = {
    row("Label1", K::Label, 1200, 1260, 1575, 240, kRight),
    row("Label2", K::Label, 870, 1500, 1920, 390, kRight, 12, true),
    row("Label3", K::Label, 870, 1890, 1920, 390, kRight, 12, true),
};

constexpr std::array kJflCard = {
    row("Label2", K::Label, 360, 1800, 2415, 1575, kCentre, 15, true),
    row("Ok", K::Button, 1200, 3480, 855, 495, kCentre),
};

constexpr std::array kTaxCard = {
    row("Label1", K::Label, 360, 1800, 2295, 975, kCentre, 22, true),
    row("payRent", K::Button, 360, 3480, 2295, 495, kCentre),
};

constexpr std::array kGameEnd = {
    row("Label1", K::Label, 1440, 1560, 3975, 255, kCentre, 13),
    row("Command1", K::Button, 6240, 4200, 2535, 495, kCentre, 14),
    row("Command2", K::Button, 6240, 5040, 2535, 495, kCentre, 14),
};

constexpr std::array kGameEndTextRooms = {
    row("Label1", K::Label, 945, 1560, 7725, 570, kCentre, 19, true),
};

constexpr int kHeadingPx = 17;
constexpr int kNamePx = 14;
constexpr std::array kAbout = {
    row("Label1", K::Label, 600, 3120, 3135, 495, kCentre, kHeadingPx),
    row("Label8", K::Label, 3840, 3120, 2055, 495, kCentre, kHeadingPx),
    row("Label4", K::Label, 6720, 3120, 3375, 495, kCentre, kHeadingPx),
    // The members stand in four stacks of 2, 3, 3 and 2 over the whole height down to Ok:
    // a portrait over each name (see aboutPortraitPlace), the implementation team in two.
    row("Label2", K::Label, 1305, 6375, 1710, 300, kCentre, kNamePx),
    row("Label3", K::Label, 1305, 8505, 1710, 300, kCentre, kNamePx),
    row("Label5", K::Label, 4005, 5310, 1710, 300, kCentre, kNamePx),
    row("Label6", K::Label, 4005, 7440, 1710, 300, kCentre, kNamePx),
    row("Label7", K::Label, 4005, 9570, 1710, 300, kCentre, kNamePx),
    row("Label9", K::Label, 6675, 5310, 1710, 300, kCentre, kNamePx),
    row("Label10", K::Label, 6675, 7440, 1710, 300, kCentre, kNamePx),
    row("Label11", K::Label, 6675, 9570, 1710, 300, kCentre, kNamePx),
    row("Label12", K::Label, 8415, 6375, 1710, 300, kCentre, kNamePx),
    row("Label13", K::Label, 8415, 8505, 1710, 300, kCentre, kNamePx),
    row("Command1", K::Button, 4200, 10200, 1215, 495, kCentre, 14),
};

}  // namespace

std::span<const Place> mainWindowPlaces() {
    return kMain;
}
std::span<const Place> mainWindowTextRooms() {
    return kMainTextRooms;
}
std::span<const Place> gameStartPlaces() {
    return kStart;
}
std::span<const Place> propertyCardPlaces() {
    return kPropertyCard;
}
std::span<const Place> tradingCardPlaces() {
    return kTradingCard;
}
std::span<const Place> tradingCardTextRooms() {
    return kTradingCardTextRooms;
}
std::span<const Place> jflCardPlaces() {
    return kJflCard;
}
std::span<const Place> taxCardPlaces() {
    return kTaxCard;
}
std::span<const Place> gameEndPlaces() {
    return kGameEnd;
}
std::span<const Place> gameEndTextRooms() {
    return kGameEndTextRooms;
}
std::span<const Place> aboutPlaces() {
    return kAbout;
}
QRect aboutPortraitPlace(const QRect& name) {
    constexpr int kWidth = 104;
    constexpr int kHeight = 95;
    constexpr int kGap = 3;
    return {name.center().x() + 1 - kWidth / 2, name.top() - kGap - kHeight, kWidth, kHeight};
}

}  // namespace gw::view
