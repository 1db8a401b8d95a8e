// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/CardPlacement.h"

#include <algorithm>
#include <limits>

namespace gw::view {

namespace {

constexpr int kGap = 8;
constexpr int kStep = 4;

bool isClear(const CardRoom& room, const QRect& card) {
    if (!room.screen.contains(card)) return false;
    return std::none_of(room.keepClear.begin(), room.keepClear.end(),
                        [&card](const QRect& r) { return r.intersects(card); });
}

// A card beside the board: to the left of the main window, which is the board's side, or
// else to its right; level with the board's top, moved down into the screen if need be.
bool besideTheBoard(const CardRoom& room, QSize frame, QPoint& at) {
    const int top =
        std::clamp(room.board.top(), room.screen.top(),
                   std::max(room.screen.top(), room.screen.bottom() + 1 - frame.height()));
    for (int left :
         {room.mainFrame.left() - kGap - frame.width(), room.mainFrame.right() + 1 + kGap}) {
        const QRect card(QPoint(left, top), frame);
        if (isClear(room, card)) {
            at = card.topLeft();
            return true;
        }
    }
    return false;
}

// A card over the board: of the places that cover neither the buttons nor the message
// line, the one whose middle lies nearest the board's.
bool overTheBoard(const CardRoom& room, QSize frame, QPoint& at) {
    const QPoint middle = room.board.center();
    long best = std::numeric_limits<long>::max();
    bool found = false;
    for (int top = room.board.top(); top + frame.height() <= room.board.bottom() + 1;
         top += kStep) {
        for (int left = room.board.left(); left + frame.width() <= room.board.right() + 1;
             left += kStep) {
            const QRect card(QPoint(left, top), frame);
            if (!isClear(room, card)) continue;
            const QPoint d = card.center() - middle;
            const long distance = long{d.x()} * d.x() + long{d.y()} * d.y();
            if (distance < best) {
                best = distance;
                at = card.topLeft();
                found = true;
            }
        }
    }
    return found;
}

}  // namespace

QPoint centredTopLeft(const QRect& screen, QSize frame) {
    const QPoint at(screen.left() + (screen.width() - frame.width()) / 2,
                    screen.top() + (screen.height() - frame.height()) / 2);
    return {std::max(screen.left(), at.x()), std::max(screen.top(), at.y())};
}

QPoint cardTopLeft(const CardRoom& room, QSize frame) {
    QPoint at;
    if (besideTheBoard(room, frame, at)) return at;
    if (overTheBoard(room, frame, at)) return at;
    // A screen too small for both: the board's top-left corner, away from the panels.
    return room.board.topLeft();
}

}  // namespace gw::view
