// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/BoardWidget.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <cmath>

#include "art/Render.h"
#include "view/BoardAccessible.h"
#include "view/BoardLayout.h"
#include "windows/MainWindow.h"

namespace gw::view {

namespace {
constexpr int kCells = 40;
constexpr qreal kDieSide = 31;

// The cells in the order they are painted: the corners last, so they sit on top.
constexpr std::array<int, kCells> paintOrder() {
    std::array<int, kCells> order{};
    int n = 0;
    for (int c = 0; c < kCells; ++c) {
        if (c % 10 != 0) order[static_cast<std::size_t>(n++)] = c;
    }
    for (int c = 0; c < kCells; c += 10) order[static_cast<std::size_t>(n++)] = c;
    return order;
}
constexpr auto kPaintOrder = paintOrder();

// Device pixels to a logical one: the screen's ratio, or the scale of a rendering into a
// larger picture, which the painter's device transform carries in both cases.
qreal pixelRatio(const QPainter& p) {
    const qreal scale = p.deviceTransform().m11();
    return scale > 0 ? scale : p.device()->devicePixelRatioF();
}

QRectF dieSquare(int die) {
    const QRectF r = dieRect(die);
    return {r.center().x() - kDieSide / 2, r.center().y() - kDieSide / 2, kDieSide, kDieSide};
}
}  // namespace

BoardWidget::BoardWidget(QWidget* parent, const MainWindow& model, CellPrints prints)
    : QWidget(parent), model_(model), prints_(std::move(prints)) {
    // Before anything asks for the board's interface, which Qt then keeps.
    installBoardAccessible();
    setFixedSize(kBoardWidth, kBoardHeight);
    setCursor(Qt::PointingHandCursor);
    setAccessibleName(QStringLiteral("Board"));
    setAccessibleDescription(
        QStringLiteral("The forty cells of the board; pressing a cell opens its card."));
}

// The centre and the cells change only with the pixel ratio of what is painted on (the
// screen's ratio times the board's scale).
const QPixmap& BoardWidget::background(qreal dpr) {
    if (background_.isNull() || !qFuzzyCompare(background_.devicePixelRatio(), dpr)) {
        background_ = art::renderPicture(
            QSize(kBoardWidth, kBoardHeight), dpr, [this](QPainter& p, const QRectF& r) {
                p.fillRect(r, QColor(0x1F, 0x5C, 0x5A));
                paintCentre(p, centreRect());
                for (int c : kPaintOrder) {
                    if (const auto& print = prints_[static_cast<std::size_t>(c)]) {
                        paintCell(p, cellRect(c), c, *print);
                    }
                }
            });
    }
    return background_;
}

void BoardWidget::setScale(qreal scale) {
    scale_ = scale;
    setFixedSize(qRound(kBoardWidth * scale), qRound(kBoardHeight * scale));
    update();
}

// The board is painted in its design's pixels, scaled: pictures are made at the pixels shown.
void BoardWidget::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.scale(scale_, scale_);
    p.drawPixmap(0, 0, background(pixelRatio(p)));
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::SmoothPixmapTransform);

    // A mortgaged cell is greyed under everything that stands on it; its name still reads.
    for (int c = 0; c < kCells; ++c) {
        if (model_.mortgageShown(c)) p.fillRect(cellRect(c), QColor(0x5A, 0x56, 0x50, 70));
    }
    // From the lowest to the uppermost, as the board's pictures lie on one another; tokens
    // that share a cell fan out.
    std::array<int, kCells> sharing{};
    for (int id = 0; id < kMaxPlayers; ++id) {
        const MainWindow::BigToken& token = model_.bigToken(id);
        if (token.visible && token.cell >= 0 && token.cell < kCells) {
            ++sharing[static_cast<std::size_t>(token.cell)];
        }
    }
    std::array<int, kCells> placed{};
    std::array<QRectF, kMaxPlayers> tokenRects{};
    for (int id = 0; id < kMaxPlayers; ++id) {
        const MainWindow::BigToken& token = model_.bigToken(id);
        if (!token.visible || token.cell < 0 || token.cell >= kCells) continue;
        const auto c = static_cast<std::size_t>(token.cell);
        tokenRects[static_cast<std::size_t>(id)] =
            bigTokenRect(id, token.cell, placed[c]++, sharing[c]);
    }
    for (int id = kMaxPlayers - 1; id >= 0; --id) {
        const MainWindow::BigToken& token = model_.bigToken(id);
        const int picture = model_.panel(id).token;
        if (token.visible && picture >= 0 && !tokenRects[static_cast<std::size_t>(id)].isNull()) {
            drawSprite(p, tokenRects[static_cast<std::size_t>(id)], Sprite::Token, picture);
        }
    }
    for (int c = 0; c < kCells; ++c) {
        const int owner = model_.ownerMark(c);
        if (owner >= 0) drawSprite(p, ownerRect(c), Sprite::Owner, owner);
    }
    if (model_.dieFace1() > 0) drawSprite(p, dieSquare(1), Sprite::Die, model_.dieFace1());
    if (model_.dieFace2() > 0) drawSprite(p, dieSquare(2), Sprite::Die, model_.dieFace2());
    for (int c = 0; c < kCells; ++c) {
        for (int s = 0; s < kMaxPlayers; ++s) {
            const int picture = model_.squareShown(c, s);
            if (picture >= 0) drawSprite(p, squareRect(c, s), Sprite::Token, picture);
        }
    }
    for (int c = 0; c < kCells; ++c) {
        for (int h = 0; h < model_.hotelsShown(c) && h < 4; ++h) {
            drawSprite(p, hotelRect(c, h), Sprite::Hotel, isSideCell(c) ? 1 : 0);
        }
    }
    for (int c = 0; c < kCells; ++c) {
        if (model_.mortgageShown(c)) {
            drawSprite(p, mortgageRect(c), Sprite::Mortgage, isSideCell(c) ? 1 : 0);
        }
    }
}

// The pieces on the board are painted once for each place within a pixel and kept: the
// board repaints at every step of a walk and every frame of the dice.
void BoardWidget::drawSprite(QPainter& p, const QRectF& rect, Sprite kind, int index) {
    const qreal dpr = pixelRatio(p);
    const QPointF origin(std::floor(rect.x() * dpr) / dpr, std::floor(rect.y() * dpr) / dpr);
    const QPointF offset = rect.topLeft() - origin;
    const auto hundredths = [dpr](qreal v) { return qRound(v * dpr * 100); };
    const SpriteKey key{kind,
                        index,
                        qRound(dpr * 100),
                        hundredths(rect.width()),
                        hundredths(rect.height()),
                        hundredths(offset.x()),
                        hundredths(offset.y())};
    auto it = sprites_.find(key);
    if (it == sprites_.end()) {
        const QRectF place(offset, rect.size());
        const QSize logical(static_cast<int>(std::ceil(place.right())),
                            static_cast<int>(std::ceil(place.bottom())));
        QPixmap sprite = art::renderPicture(logical, dpr, [&](QPainter& q, const QRectF&) {
            switch (kind) {
                case Sprite::Token:
                    paintToken(q, place, index);
                    break;
                case Sprite::Owner:
                    paintOwnerTab(q, place, index);
                    break;
                case Sprite::Die:
                    paintDie(q, place, index);
                    break;
                case Sprite::Hotel:
                    paintHotel(q, place, index == 1);
                    break;
                case Sprite::Mortgage:
                    paintMortgage(q, place, index == 1);
                    break;
            }
        });
        it = sprites_.emplace(key, std::move(sprite)).first;
    }
    p.drawPixmap(origin, it->second);
}

int BoardWidget::cellAt(QPointF point) const {
    for (auto it = kPaintOrder.rbegin(); it != kPaintOrder.rend(); ++it) {
        if (cellRect(*it).contains(point)) return *it;
    }
    return -1;
}

QString BoardWidget::cellName(int cellId) const {
    if (cellId < 0 || cellId >= kCells) return {};
    const auto& print = prints_[static_cast<std::size_t>(cellId)];
    return print ? printedName(*print) : QString();
}

QRect BoardWidget::cellArea(int cellId) const {
    const QRectF design = cellRect(cellId);
    return QRectF(design.topLeft() * scale_, design.size() * scale_).toRect();
}

// As a click, which a disabled board (a card is up) never receives.
void BoardWidget::pressCell(int cellId) {
    if (isEnabled() && cellId >= 0 && cellId < kCells) emit cellClicked(cellId);
}

// The cell under the pointer names itself.
bool BoardWidget::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const int cell = cellAt(QPointF(help->pos()) / scale_);
        if (cell < 0) {
            QToolTip::hideText();
            event->ignore();
        } else {
            QToolTip::showText(help->globalPos(), cellName(cell), this, cellArea(cell));
        }
        return true;
    }
    return QWidget::event(event);
}

void BoardWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const int cell = cellAt(event->position() / scale_);
    if (cell >= 0) emit cellClicked(cell);
}

}  // namespace gw::view
