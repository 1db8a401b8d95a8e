// SPDX-License-Identifier: GPL-3.0-or-later
// How a text is set in its box so that it shows whole: on one line at its own size if it
// can, else wrapped between words, in type that shrinks down to the legible floor; a word
// wider than the box even then (a long name) is broken, at the largest size that holds it.
// Measured with the metrics of the font used.
#pragma once

#include <QFont>
#include <QSize>
#include <QString>

namespace gw::view {

constexpr int kTextFloorPx = 7;

struct TextFit {
    int pixelSize = 0;
    int flags = 0;  // alignment and wrapping, as QPainter::drawText takes them
};

// Whether the text, set with these flags, stays inside a box of this size.
bool fitsIn(const QFont& font, const QString& text, QSize box, int flags);
// The same on a screen of one and of two device pixels to the pixel: type hinted at twice
// the size may set a little wider.
bool fitsAtEveryScale(const QFont& font, const QString& text, QSize box, int flags);

// The setting that fits, as above; the floor's last try if none does. A one-line box
// (mayWrap false) only shrinks.
TextFit fitText(QFont font, const QString& text, QSize box, Qt::Alignment align, int largestPx,
                bool mayWrap, int floorPx = kTextFloorPx);

}  // namespace gw::view
