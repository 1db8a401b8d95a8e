// SPDX-License-Identifier: GPL-3.0-or-later
// Where each named control of a window stands, in twips (15 to the pixel), and what kind
// of widget shows it: one table per window. The names are those a model gives in
// forEachControl.
#pragma once

#include <QRect>
#include <Qt>
#include <span>
#include <string_view>

namespace gw::view {

constexpr int kTwipsPerPixel = 15;
constexpr QRect pixels(int left, int top, int width, int height) {
    return {left / kTwipsPerPixel, top / kTwipsPerPixel, width / kTwipsPerPixel,
            height / kTwipsPerPixel};
}

enum class ControlKind { Button, Label, TextEntry };

struct Place {
    std::string_view name;
    ControlKind kind;
    int left, top, width, height;  // twips
    Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter;
    int fontPx = 12;
    bool wrap = false;
    QRect rect() const { return pixels(left, top, width, height); }
};

std::span<const Place> mainWindowPlaces();
std::span<const Place> gameStartPlaces();
std::span<const Place> propertyCardPlaces();
std::span<const Place> tradingCardPlaces();
std::span<const Place> jflCardPlaces();
std::span<const Place> taxCardPlaces();
std::span<const Place> gameEndPlaces();
std::span<const Place> aboutPlaces();
// A member's portrait on the About window stands just above the member's name.
QRect aboutPortraitPlace(const QRect& name);

// Where texts of the main window may grow inside their own panels so that they show whole:
// the message line fills the panel's well, the name of the player whose turn it is the
// room beside the token, a player's name the height of its row.
std::span<const Place> mainWindowTextRooms();
std::span<const Place> tradingCardTextRooms();
// The winner's line fills the ribbon across the end window.
std::span<const Place> gameEndTextRooms();

}  // namespace gw::view
