// SPDX-License-Identifier: GPL-3.0-or-later
// Rendering helpers shared by the program, the contact sheets and the tests.
#include "art/Render.h"

#include <QPainter>
#include <cmath>

namespace gw::art {

QImage renderImage(QSize logical, qreal dpr, const PaintFunction& paint) {
    const QSize device(static_cast<int>(std::ceil(logical.width() * dpr)),
                       static_cast<int>(std::ceil(logical.height() * dpr)));
    QImage image(device, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    // A painter leaves out a ratio below 1 (a board shown smaller than its design): that
    // scale is set by hand.
    if (dpr >= 1) image.setDevicePixelRatio(dpr);
    QPainter p(&image);
    if (dpr < 1) p.scale(dpr, dpr);
    p.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                     QPainter::SmoothPixmapTransform);
    paint(p, QRectF(QPointF(0, 0), QSizeF(logical)));
    p.end();
    image.setDevicePixelRatio(dpr);
    return image;
}

QPixmap renderPicture(QSize logical, qreal dpr, const PaintFunction& paint) {
    QPixmap pixmap = QPixmap::fromImage(renderImage(logical, dpr, paint));
    pixmap.setDevicePixelRatio(dpr);
    return pixmap;
}

}  // namespace gw::art
