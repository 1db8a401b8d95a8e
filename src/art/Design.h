// SPDX-License-Identifier: GPL-3.0-or-later
// Drawing in a design space: a picture drawn once in its own units (a 100 by 100 square for
// emblems, the card's printed size for cards) is fitted into whatever rectangle the caller
// gives, with pen widths still set in logical pixels.
#pragma once

#include <QBrush>
#include <QPainter>
#include <QPen>
#include <QRectF>

namespace gw::art {

class DesignSpace {
public:
    // Fits a design of size design into rect; keepAspect centres it at one scale.
    DesignSpace(QPainter& p, const QRectF& rect, QSizeF design, bool keepAspect = true);
    ~DesignSpace();
    DesignSpace(const DesignSpace&) = delete;
    DesignSpace& operator=(const DesignSpace&) = delete;

    // A length of logicalPixels on the screen, in design units.
    qreal px(qreal logicalPixels) const { return logicalPixels / scale_; }
    qreal scale() const { return scale_; }

private:
    QPainter& p_;
    qreal scale_ = 1;
};

// An ink pen of a width in design units, round joins.
QPen inkPen(qreal width);
QPen pen(const QColor& colour, qreal width);

// A top-left to bottom-right wash from a lighter to a darker shade of colour.
QBrush shadedBrush(const QColor& colour, const QRectF& over, int lighter = 135, int darker = 112);

// Cream paper, a shade lighter at the top of over than at its bottom.
QBrush creamWash(const QRectF& over, int lighter = 103);

// A plate with a hairline three units inside its edge: title bands, buttons, frames.
void paintFramedPlate(QPainter& p, const QRectF& rect, qreal radius, const QPen& edge,
                      const QBrush& fill, const QColor& hairline);

// Card stock: a rounded cream shape with an ink edge.
void paintCardStock(QPainter& p, const QRectF& rect, qreal radius);

// A panel of the main window: cream, teal rim, gold hairline inside.
void paintPanel(QPainter& p, const QRectF& rect);

// The background of a window drawn at its design size: a sheet of cream paper edged in gold
// on the teal ground.
void paintWindowPaper(QPainter& p, QSizeF size);

// A small gold diamond used as an ornament between rules.
void paintDiamond(QPainter& p, QPointF centre, qreal size, const QColor& colour);

// A thin gold rule with diamond ends.
void paintGoldRule(QPainter& p, QPointF from, QPointF to);

}  // namespace gw::art
