// SPDX-License-Identifier: GPL-3.0-or-later
// Dice faces in a 100 by 100 design square; the pips sit on a three by three grid.
#include "art/Dice.h"

#include <QPainter>
#include <QRadialGradient>
#include <array>

#include "art/Design.h"
#include "art/Palette.h"

namespace gw::art {

namespace {
// Which of the nine grid places carry a pip, row by row.
constexpr std::array<std::array<bool, 9>, 6> kPips = {{
    {false, false, false, false, true, false, false, false, false},
    {true, false, false, false, false, false, false, false, true},
    {true, false, false, false, true, false, false, false, true},
    {true, false, true, false, false, false, true, false, true},
    {true, false, true, false, true, false, true, false, true},
    {true, false, true, true, false, true, true, false, true},
}};
}  // namespace

void paintDieFace(QPainter& p, const QRectF& rect, int value) {
    DesignSpace ds(p, rect, QSizeF(100, 100));
    const QRectF face(6, 4, 86, 86);
    for (int i = 3; i >= 1; --i) {
        p.setPen(Qt::NoPen);
        p.setBrush(colour::withAlpha(colour::ink, 22));
        p.drawRoundedRect(
            face.translated(i * 1.2, i * 1.8).adjusted(-i * 0.6, -i * 0.6, i * 0.6, i * 0.6), 18,
            18);
    }
    QRadialGradient g(QPointF(34, 28), 90);
    g.setColorAt(0, colour::ivory.lighter(104));
    g.setColorAt(1, colour::ivory.darker(108));
    p.setBrush(g);
    p.setPen(inkPen(ds.px(1.0)));
    p.drawRoundedRect(face, 16, 16);
    const int v = std::clamp(value, 1, 6);
    const qreal r = v == 1 ? 10 : 8.5;
    for (int i = 0; i < 9; ++i) {
        if (!kPips[static_cast<std::size_t>(v - 1)][static_cast<std::size_t>(i)]) continue;
        const QPointF c(face.left() + 20 + (i % 3) * 23, face.top() + 20 + (i / 3) * 23);
        QRadialGradient pip(c - QPointF(r * 0.3, r * 0.3), r * 1.2);
        pip.setColorAt(0, colour::inkSoft);
        pip.setColorAt(1, colour::ink);
        p.setPen(Qt::NoPen);
        p.setBrush(pip);
        p.drawEllipse(c, r, r);
    }
}

}  // namespace gw::art
