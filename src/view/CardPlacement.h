// SPDX-License-Identifier: GPL-3.0-or-later
// Where a window opens on the screen. A card opens beside the board when the screen has
// room for it there, else over the board, clear of the turn buttons and the message line,
// so the player can always read the line and reach the buttons. The set-up and end windows
// open in the middle of the screen.
#pragma once

#include <QPoint>
#include <QRect>
#include <vector>

namespace gw::view {

// What a card must know of the screen and the main window, all in screen coordinates.
struct CardRoom {
    QRect screen;                  // the screen's area left free by panels and docks
    QRect mainFrame;               // the main window with its frame
    QRect board;                   // the board within it
    std::vector<QRect> keepClear;  // the turn buttons and the message line
};

// The top-left corner of a card's frame of the given size.
QPoint cardTopLeft(const CardRoom& room, QSize frame);

// The top-left corner of a frame of the given size in the middle of the screen's area.
QPoint centredTopLeft(const QRect& screen, QSize frame);

}  // namespace gw::view
