// SPDX-License-Identifier: GPL-3.0-or-later
// A picture on a window, painted at the screen's pixel ratio each time it is drawn, that
// can take clicks and wear the single border of a chosen token.
#pragma once

#include <QWidget>

#include "view/Pictures.h"

namespace gw::view {

class PictureWidget : public QWidget {
    Q_OBJECT
public:
    explicit PictureWidget(QWidget* parent, Paint paint = {});

    void setPaint(Paint paint);
    void setBordered(bool bordered);
    bool isBordered() const { return bordered_; }
    // A picture that takes clicks shows a pointing hand.
    void setClickable(bool clickable);
    // Paints the picture as drawn for its design size, scaled by this factor: the vectors are
    // painted at the size shown, never stretched as a bitmap.
    void setDesignScale(qreal scale);

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    Paint paint_;
    bool bordered_ = false;
    bool clickable_ = false;
    bool pressed_ = false;
    qreal scale_ = 1;
};

}  // namespace gw::view
