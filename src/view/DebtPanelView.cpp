// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/DebtPanelView.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "art/Palette.h"
#include "view/FitLabel.h"
#include "windows/DebtHelp.h"

namespace gw::view {

namespace {
// The main window's client area at 100 %; the panel keeps its place and type in proportion.
constexpr qreal kDesignClientWidth = 778;
constexpr int kDesignTextPx = 10;
}  // namespace

DebtPanelView::DebtPanelView(QWidget& parent, const QRect& place, Dispatch& dispatch,
                             DebtHelp& model)
    : QWidget(&parent), dispatch_(dispatch), model_(model), place_(place) {
    setGeometry(place);
    setObjectName(QStringLiteral("debtPanel"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->setSpacing(2);
    // A long name and a large debt wrap, then shrink, but never run out of the panel.
    line_ = new FitLabel(this, kDesignTextPx, true);
    line_->setAlignment(Qt::AlignCenter);
    QFont small = line_->font();
    small.setPixelSize(kDesignTextPx);
    line_->setStyleSheet(QStringLiteral("color: #2A2A2E; background: transparent;"));
    raise_ = new QPushButton(this);
    raise_->setFont(small);
    layout->addWidget(line_, 1);
    layout->addWidget(raise_);
    connect(raise_, &QPushButton::clicked, this,
            [this] { dispatch_.click([this] { model_.raiseForMe_Click(); }); });
    hide();
    parent.installEventFilter(this);
}

bool DebtPanelView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) {
        followScale(parentWidget()->width() / kDesignClientWidth);
    }
    return QWidget::eventFilter(watched, event);
}

void DebtPanelView::followScale(qreal scale) {
    setGeometry(qRound(place_.x() * scale), qRound(place_.y() * scale),
                qRound(place_.width() * scale), qRound(place_.height() * scale));
    const int px = std::max(1, qRound(kDesignTextPx * scale));
    line_->setSizes(px, std::max(1, qRound(kTextFloorPx * scale)));  // the floor zooms too
    QFont font = raise_->font();
    font.setPixelSize(px);
    raise_->setFont(font);
}

void DebtPanelView::refresh() {
    const bool shown = model_.isShown();
    line_->setCaption(QString::fromStdString(model_.line()));
    const Control button = model_.raiseForMe();
    raise_->setText(QString::fromStdString(button.caption));
    raise_->setVisible(button.visible);
    raise_->setEnabled(button.enabled);
    setAccessibleName(line_->text());
    if (shown != isVisible()) setVisible(shown);
    if (shown) raise();
}

void DebtPanelView::paintEvent(QPaintEvent*) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(art::colour::moneyMinus, 2));
    p.setBrush(art::colour::paper);
    p.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
}

}  // namespace gw::view
