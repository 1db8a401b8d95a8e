// SPDX-License-Identifier: GPL-3.0-or-later
// The panels on the right of the main window and the bar that marks whose turn it is.
#pragma once

#include <QRectF>

#include "art/Text.h"

class QPainter;

namespace gw::art {

// Whose turn it is: room for a token and a name under a small heading (182 x 120).
TextBoxes paintTurnPanel(QPainter& p, const QRectF& rect);
// The message panel: a paper well at 31,28 (137 x 41) for the program's text (189 x 196).
TextBoxes paintMessagePanel(QPainter& p, const QRectF& rect);
// The players' panel: six rows at y = 32 + 25 i, a token at x = 26 (182 x 191).
TextBoxes paintPlayersPanel(QPainter& p, const QRectF& rect);
// A panel with no controls: the city's emblem (182 x 120).
TextBoxes paintEmblemPanel(QPainter& p, const QRectF& rect);
// The gold bar behind the current player's row (202 x 27).
void paintTurnBar(QPainter& p, const QRectF& rect);

}  // namespace gw::art
