// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/FitLabel.h"

#include <QPainter>

namespace gw::view {

FitLabel::FitLabel(QWidget* parent, int largestPx, bool mayWrap)
    : QLabel(parent), largestPx_(largestPx), mayWrap_(mayWrap) {}

void FitLabel::setCaption(const QString& caption) {
    setText(caption);
    refit();
}

void FitLabel::refit() {
    fit_ =
        fitText(font(), text(), contentsRect().size(), alignment(), largestPx_, mayWrap_, floorPx_);
    QFont f = font();
    f.setPixelSize(fit_.pixelSize);
    setFont(f);
    update();
}

void FitLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    refit();
}

void FitLabel::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.setFont(font());
    p.setPen(palette().color(QPalette::WindowText));
    p.drawText(contentsRect(), fit_.flags, text());
}

}  // namespace gw::view
