// SPDX-License-Identifier: GPL-3.0-or-later
// The board of the main window: the centre picture and the forty cells, with what stands
// on them drawn from the main window model (small squares, owner marks, hotels, mortgage
// stamps, the walking tokens, the dice). A click on a cell is passed on by its index.
#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>
#include <map>
#include <tuple>

#include "view/Pictures.h"

namespace gw {
class MainWindow;
}

namespace gw::view {

class BoardWidget : public QWidget {
    Q_OBJECT
public:
    BoardWidget(QWidget* parent, const MainWindow& model, CellPrints prints);

    // The cell under a point of the board's design (the widget's point over its scale), or -1.
    int cellAt(QPointF point) const;
    // Shows the board at this multiple of its design size.
    void setScale(qreal scale);
    // What a cell is called (the name it prints) and where it lies on the widget at the
    // current scale: a screen reader finds the cells by these.
    QString cellName(int cellId) const;
    QRect cellArea(int cellId) const;
    // Does what a click on the cell does.
    void pressCell(int cellId);

signals:
    void cellClicked(int cellId);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    enum class Sprite { Token, Owner, Die, Hotel, Mortgage };
    // Kind, index, the pixel ratio, then the size and the offset within a device pixel, in
    // hundredths of a device pixel.
    using SpriteKey = std::tuple<Sprite, int, int, int, int, int, int>;

    const QPixmap& background(qreal dpr);
    void drawSprite(QPainter& p, const QRectF& rect, Sprite kind, int index);

    const MainWindow& model_;
    CellPrints prints_;
    QPixmap background_;
    qreal scale_ = 1;
    std::map<SpriteKey, QPixmap> sprites_;
};

}  // namespace gw::view
