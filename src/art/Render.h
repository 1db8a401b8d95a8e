// SPDX-License-Identifier: GPL-3.0-or-later
// Turning a painting function into a pixmap at a device pixel ratio, so every picture is
// painted in logical pixels and stays sharp at 2x.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QRectF>
#include <QSize>
#include <functional>

class QPainter;

namespace gw::art {

using PaintFunction = std::function<void(QPainter&, const QRectF&)>;

// A transparent pixmap of logical size, painted at dpr with antialiasing on.
QPixmap renderPicture(QSize logical, qreal dpr, const PaintFunction& paint);

// The same as an ARGB image, for code that reads pixels.
QImage renderImage(QSize logical, qreal dpr, const PaintFunction& paint);

}  // namespace gw::art
