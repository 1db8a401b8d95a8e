// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/CaptionButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace gw::view {

void CaptionButton::setMnemonic(QChar letter) {
    mnemonic_ = letter;
    update();
}

QString CaptionButton::drawnCaption() const {
    QString drawn = text();
    drawn.replace(QLatin1Char('&'), QStringLiteral("&&"));
    if (mnemonic_.isNull()) return drawn;
    const qsizetype at = drawn.indexOf(mnemonic_, 0, Qt::CaseInsensitive);
    if (at >= 0) drawn.insert(at, QLatin1Char('&'));
    return drawn;
}

void CaptionButton::paintEvent(QPaintEvent*) {
    QStylePainter p(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    p.drawControl(QStyle::CE_PushButton, option);
    const QRect box = rect().adjusted(3, 1, -3, -1);
    p.setFont(font());
    p.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    p.drawText(box, Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic, drawnCaption());
}

}  // namespace gw::view
