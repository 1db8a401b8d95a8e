// SPDX-License-Identifier: GPL-3.0-or-later
#include "art/StoryChart.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "art/Palette.h"
#include "art/Text.h"
#include "art/Tokens.h"

namespace gw::art {

namespace {

// A round step for the money scale: 1, 2 or 5 times a power of ten, about five steps high.
double scaleStep(double top) {
    const double rough = std::max(top, 1.0) / 5;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    for (const double m : {1.0, 2.0, 5.0, 10.0}) {
        if (m * power >= rough) return m * power;
    }
    return 10 * power;
}

void drawCross(QPainter& p, QPointF at, qreal r) {
    p.setPen(QPen(colour::moneyMinus, std::max<qreal>(2, r / 2.5), Qt::SolidLine, Qt::RoundCap));
    p.drawLine(at + QPointF(-r, -r), at + QPointF(r, r));
    p.drawLine(at + QPointF(-r, r), at + QPointF(r, -r));
}

}  // namespace

ChartPlaces paintStoryChart(QPainter& p, const QRectF& rect, const std::vector<ChartLine>& lines) {
    p.save();
    p.setRenderHint(QPainter::Antialiasing);
    p.fillRect(rect, colour::cream);
    p.setPen(QPen(colour::teal, 2));
    p.drawRect(rect.adjusted(1, 1, -1, -1));

    std::size_t points = 1;
    double highest = 0;
    for (const ChartLine& line : lines) {
        points = std::max(points, line.worth.size());
        for (const double w : line.worth) highest = std::max(highest, w);
    }
    const double step = scaleStep(highest);
    const double top = std::max(step, std::ceil(highest / step) * step);
    const int rounds = static_cast<int>(points) - 1;

    const qreal tokenSide = std::clamp<qreal>(rect.height() / 12, 16, 32);
    ChartPlaces places;
    places.top = top;
    places.plot = QRectF(rect.left() + 56, rect.top() + 28, rect.width() - 56 - tokenSide - 18,
                         rect.height() - 28 - 40);
    const QRectF& plot = places.plot;
    const auto x = [&](std::size_t round) {
        return plot.left() +
               (rounds == 0 ? 0.0 : plot.width() * static_cast<double>(round) / rounds);
    };
    const auto y = [&](double worth) {
        return plot.bottom() - plot.height() * std::clamp(worth, 0.0, top) / top;
    };

    // The title, the money scale and the rounds.
    drawText(p, QRectF(rect.left(), rect.top() + 4, rect.width(), 20),
             QStringLiteral("Worth after each round"),
             {Face::Title, 14, colour::teal, Qt::AlignCenter});
    const TextStyle label{Face::Number, 10, colour::inkSoft, Qt::AlignRight | Qt::AlignVCenter};
    for (double m = 0; m <= top + 0.5; m += step) {
        const qreal at = y(m);
        p.setPen(QPen(colour::creamShade, 1));
        p.drawLine(QPointF(plot.left(), at), QPointF(plot.right(), at));
        drawText(p, QRectF(rect.left() + 2, at - 8, 50, 16), money(static_cast<int>(m)), label);
    }
    const int roundStep = std::max(1, static_cast<int>(scaleStep(rounds)));
    const TextStyle roundLabel{Face::Number, 10, colour::inkSoft, Qt::AlignCenter};
    for (int r = 0; r <= rounds; r += roundStep) {
        const qreal at = x(static_cast<std::size_t>(r));
        drawText(p, QRectF(at - 20, plot.bottom() + 3, 40, 14), QString::number(r), roundLabel);
    }
    drawText(p, QRectF(plot.left(), plot.bottom() + 18, plot.width(), 16), QStringLiteral("Round"),
             {Face::Caption, 11, colour::ink, Qt::AlignCenter});
    p.setPen(QPen(colour::ink, 1.5));
    p.drawLine(plot.bottomLeft(), plot.bottomRight());
    p.drawLine(plot.bottomLeft(), plot.topLeft());

    // The lines: a thin ink edge under each colour keeps light colours readable on cream.
    for (const ChartLine& line : lines) {
        if (line.worth.empty()) {
            places.lineEnds.emplace_back();
            continue;
        }
        const std::size_t last =
            line.bankruptAt >= 0
                ? std::min(line.worth.size() - 1, static_cast<std::size_t>(line.bankruptAt))
                : line.worth.size() - 1;
        QPainterPath path(QPointF(x(0), y(line.worth[0])));
        for (std::size_t r = 1; r <= last; ++r) path.lineTo(x(r), y(line.worth[r]));
        p.setBrush(Qt::NoBrush);
        p.setPen(QPen(colour::ink, 4.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(path);
        p.setPen(QPen(tokenColour(line.token), 2.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        p.drawPath(path);
        const QPointF end(x(last), y(line.worth[last]));
        places.lineEnds.push_back(end);
        if (line.bankruptAt >= 0) {
            drawCross(p, end, tokenSide / 4);
        } else {
            paintToken(p, QRectF(end.x() + 2, end.y() - tokenSide / 2, tokenSide, tokenSide),
                       line.token);
        }
    }
    p.restore();
    return places;
}

}  // namespace gw::art
