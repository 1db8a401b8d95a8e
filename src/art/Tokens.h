// SPDX-License-Identifier: GPL-3.0-or-later
// The fourteen player tokens. Each has a silhouette and a colour of its own: the silhouette
// tells them apart at 24 px and up, the colour alone at the 10 by 8 squares of the board.
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

class QPainter;

namespace gw::art {

constexpr int kTokenCount = 14;

QColor tokenColour(int index);
QString tokenName(int index);

// Paints token index (0 to 13) centred in rect; below 16 px it is a colour square.
void paintToken(QPainter& p, const QRectF& rect, int index);

}  // namespace gw::art
