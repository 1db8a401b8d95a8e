// SPDX-License-Identifier: GPL-3.0-or-later
// The story of a game as a picture: every player's worth after each round, one line per
// player in the colour of his token with the token at its end, a red cross where a player
// went bankrupt. Painted with vectors at whatever size and pixel ratio it is given.
#pragma once

#include <QRectF>
#include <QString>
#include <vector>

class QPainter;

namespace gw::art {

struct ChartLine {
    QString name;
    int token = 0;
    std::vector<double> worth;  // the first value is the worth at the start
    int bankruptAt = -1;        // index into worth of the round of the bankruptcy, or -1
};

// Where the chart put its parts, for tests: the plot area and the end of each line.
struct ChartPlaces {
    QRectF plot;
    std::vector<QPointF> lineEnds;
    double top = 0;  // the money at the top of the scale
};

ChartPlaces paintStoryChart(QPainter& p, const QRectF& rect, const std::vector<ChartLine>& lines);

}  // namespace gw::art
