// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/TextFit.h"

#include <QFontMetrics>
#include <QRect>
#include <initializer_list>

namespace gw::view {

bool fitsIn(const QFont& font, const QString& text, QSize box, int flags) {
    const QRect inside(QPoint(0, 0), box);
    const QRect used = QFontMetrics(font).boundingRect(inside, flags, text);
    return used.width() <= box.width() && used.height() <= box.height() && used.left() >= 0 &&
           used.top() >= 0;
}

bool fitsAtEveryScale(const QFont& font, const QString& text, QSize box, int flags) {
    QFont twice = font;
    twice.setPixelSize(font.pixelSize() * 2);
    return fitsIn(font, text, box, flags) && fitsIn(twice, text, box * 2, flags);
}

TextFit fitText(QFont font, const QString& text, QSize box, Qt::Alignment align, int largestPx,
                bool mayWrap, int floorPx) {
    const int aligned = static_cast<int>(align);
    TextFit fit;
    const auto tryAll = [&](std::initializer_list<int> ways) {
        for (int px = largestPx; px >= floorPx; --px) {
            font.setPixelSize(px);
            for (int flags : ways) {
                fit = {px, flags};
                if (fitsAtEveryScale(font, text, box, flags)) return true;
            }
        }
        return false;
    };
    if (!mayWrap) {
        tryAll({aligned});
        return fit;
    }
    // A name is broken inside only when no smaller type keeps it whole on a line.
    if (tryAll({aligned, aligned | Qt::TextWordWrap})) return fit;
    tryAll({aligned | Qt::TextWrapAnywhere});
    return fit;
}

}  // namespace gw::view
