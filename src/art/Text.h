// SPDX-License-Identifier: GPL-3.0-or-later
// Text on pictures: the DejaVu faces, and a writer that fits a string in a box (wrapping at
// spaces and hyphens before shrinking) and reports where the ink went, so tests can check
// that nothing is clipped.
#pragma once

#include <QColor>
#include <QFont>
#include <QRectF>
#include <QString>
#include <vector>

class QPainter;

namespace gw::art {

enum class Face {
    Caption,     // DejaVu Sans Condensed Bold: cell names, printed captions
    Number,      // DejaVu Sans: prices and sums
    NumberBold,  // DejaVu Sans Bold
    Title,       // DejaVu Serif Bold: titles
};

QFont font(Face face, int pixelSize);

// Where one piece of text was drawn, in the picture's logical coordinates: bounds is the
// space its lines take, frame the box it had to stay in.
struct TextBox {
    QString text;
    QRectF bounds;
    QRectF frame;
    qreal pixelSize = 0;  // the text's size on the picture, after any scaling
};
using TextBoxes = std::vector<TextBox>;

struct TextStyle {
    Face face = Face::Caption;
    int pixelSize = 9;
    QColor colour;
    Qt::Alignment align = Qt::AlignCenter;
    int maxLines = 1;
    int minPixelSize = 7;
    qreal letterSpacing = 0;  // extra pixels between letters, for spaced-out titles
};

// Draws text inside box at the largest size from style.pixelSize down to style.minPixelSize
// at which it fits on at most style.maxLines lines.
TextBox drawText(QPainter& p, const QRectF& box, const QString& text, const TextStyle& style);

// The same, appending the result to a list.
void drawText(TextBoxes& out, QPainter& p, const QRectF& box, const QString& text,
              const TextStyle& style);

// "$260"
QString money(int amount);

}  // namespace gw::art
