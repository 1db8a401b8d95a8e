#include "view/CaptionButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace gw::view {

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
    p.drawText(box, Qt::AlignCenter | Qt::TextWordWrap, text());
}

}  // namespace gw::view
