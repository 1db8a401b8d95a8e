#include "view/DebtPanelView.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "art/Palette.h"
#include "windows/DebtHelp.h"

namespace gw::view {

DebtPanelView::DebtPanelView(QWidget& parent, const QRect& place, Dispatch& dispatch,
                             DebtHelp& model)
    : QWidget(&parent), dispatch_(dispatch), model_(model) {
    setGeometry(place);
    setObjectName(QStringLiteral("debtPanel"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 4, 6, 4);
    layout->setSpacing(2);
    line_ = new QLabel(this);
    line_->setWordWrap(true);
    line_->setAlignment(Qt::AlignCenter);
    QFont small = line_->font();
    small.setPixelSize(10);
    line_->setFont(small);
    line_->setStyleSheet(QStringLiteral("color: #2A2A2E; background: transparent;"));
    raise_ = new QPushButton(this);
    raise_->setFont(small);
    layout->addWidget(line_, 1);
    layout->addWidget(raise_);
    connect(raise_, &QPushButton::clicked, this,
            [this] { dispatch_.click([this] { model_.raiseForMe_Click(); }); });
    hide();
}

void DebtPanelView::refresh() {
    const bool shown = model_.isShown();
    line_->setText(QString::fromStdString(model_.line()));
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
