// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/ControlSet.h"

#include <QLabel>
#include <QLineEdit>
#include <QWidget>
#include <algorithm>

#include "view/CaptionButton.h"
#include "view/FitLabel.h"
#include "view/Style.h"
#include "view/TextFit.h"

namespace gw::view {

QString qs(const std::string& text) {
    return QString::fromStdString(text);
}

ControlSet::ControlSet(QWidget& parent, std::span<const Place> places) {
    for (const Place& place : places) {
        QWidget* w = nullptr;
        switch (place.kind) {
            case ControlKind::Button: {
                auto* button = new CaptionButton(&parent);
                button->setFocusPolicy(Qt::TabFocus);
                w = button;
                break;
            }
            case ControlKind::Label: {
                auto* label = new FitLabel(&parent, place.fontPx, place.wrap);
                label->setAlignment(place.align);
                label->setAttribute(Qt::WA_TranslucentBackground);
                label->setProperty("role", "printed");
                w = label;
                break;
            }
            case ControlKind::TextEntry: {
                auto* entry = new QLineEdit(&parent);
                entry->setAlignment(place.align);
                w = entry;
                break;
            }
        }
        w->setObjectName(QString::fromUtf8(place.name.data(), static_cast<int>(place.name.size())));
        w->setGeometry(place.rect());
        w->setFont(controlFont(place.kind, place.fontPx));
        w->setProperty("basePx", place.fontPx);
        widgets_.emplace(std::string(place.name), w);
        designRects_[std::string(place.name)] = place.rect();
    }
}

void ControlSet::apply(std::string_view name, const Control& control) {
    QWidget* w = widget(name);
    if (!w) {
        if (std::find(unplaced_.begin(), unplaced_.end(), name) == unplaced_.end()) {
            unplaced_.emplace_back(name);
        }
        return;
    }
    const QString caption = qs(control.caption);
    if (auto* b = qobject_cast<QAbstractButton*>(w)) {
        if (b->text() != caption) b->setText(caption);
    } else if (auto* l = qobject_cast<FitLabel*>(w)) {
        if (l->text() != caption) l->setCaption(caption);
    } else if (auto* e = qobject_cast<QLineEdit*>(w)) {
        if (e->text() != caption) e->setText(caption);
    }
    if (w->isEnabled() != control.enabled) w->setEnabled(control.enabled);
    if (w->isVisibleTo(w->parentWidget()) != control.visible) w->setVisible(control.visible);
}

void ControlSet::placeInRooms(std::span<const Place> rooms) {
    for (const Place& room : rooms) {
        QWidget* w = widget(room.name);
        if (!w) continue;
        w->setGeometry(room.rect());
        designRects_[std::string(room.name)] = room.rect();
        w->setProperty("basePx", room.fontPx);
        if (auto* label = qobject_cast<FitLabel*>(w)) {
            label->setMayWrap(room.wrap);
            label->setSizes(room.fontPx, kTextFloorPx);
        }
    }
}

void ControlSet::setScale(qreal scale) {
    const auto scaled = [scale](int v) { return qRound(v * scale); };
    for (const auto& [name, w] : widgets_) {
        const QRect r = designRects_[name];
        w->setGeometry(scaled(r.x()), scaled(r.y()), scaled(r.width()), scaled(r.height()));
        const int px = std::max(1, scaled(w->property("basePx").toInt()));
        if (auto* label = qobject_cast<FitLabel*>(w)) {
            label->setSizes(px, std::max(1, scaled(kTextFloorPx)));
        } else {
            QFont f = w->font();
            f.setPixelSize(px);
            w->setFont(f);
        }
    }
}

QWidget* ControlSet::widget(std::string_view name) const {
    const auto it = widgets_.find(name);
    return it == widgets_.end() ? nullptr : it->second;
}

QAbstractButton* ControlSet::button(std::string_view name) const {
    return qobject_cast<QAbstractButton*>(widget(name));
}
QLabel* ControlSet::label(std::string_view name) const {
    return qobject_cast<QLabel*>(widget(name));
}
QLineEdit* ControlSet::entry(std::string_view name) const {
    return qobject_cast<QLineEdit*>(widget(name));
}

}  // namespace gw::view
