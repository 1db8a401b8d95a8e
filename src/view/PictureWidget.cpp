// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PictureWidget.h"

#include <QMouseEvent>
#include <QPainter>

#include "art/Palette.h"

namespace gw::view {

PictureWidget::PictureWidget(QWidget* parent, Paint paint)
    : QWidget(parent), paint_(std::move(paint)) {
    setAttribute(Qt::WA_TranslucentBackground);
}

void PictureWidget::setPaint(Paint paint) {
    paint_ = std::move(paint);
    update();
}

void PictureWidget::setBordered(bool bordered) {
    if (bordered == bordered_) return;
    bordered_ = bordered;
    update();
}

void PictureWidget::setClickable(bool clickable) {
    clickable_ = clickable;
    setCursor(clickable ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void PictureWidget::setDesignScale(qreal scale) {
    scale_ = scale;
    update();
}

void PictureWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    p.scale(scale_, scale_);
    const QRectF design(QPointF(0, 0), QSizeF(size()) / scale_);
    if (paint_) paint_(p, design);
    if (bordered_) {
        p.setPen(QPen(art::colour::gold, 2));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(design.adjusted(1, 1, -1, -1), 4, 4);
    }
}

void PictureWidget::mousePressEvent(QMouseEvent* event) {
    pressed_ = clickable_ && event->button() == Qt::LeftButton;
    event->setAccepted(clickable_);
}

void PictureWidget::mouseReleaseEvent(QMouseEvent* event) {
    const bool inside = rect().contains(event->position().toPoint());
    if (pressed_ && inside && event->button() == Qt::LeftButton) {
        pressed_ = false;
        emit clicked();
        return;
    }
    pressed_ = false;
    event->setAccepted(clickable_);
}

}  // namespace gw::view
