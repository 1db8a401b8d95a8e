// SPDX-License-Identifier: GPL-3.0-or-later
// The widgets of one window's named controls, made from its table of places, and the one
// routine that brings them to a model's state: shown, enabled and caption by name.
#pragma once

#include <QString>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "view/Places.h"
#include "windows/Control.h"

class QAbstractButton;
class QLabel;
class QLineEdit;
class QWidget;

namespace gw::view {

class ControlSet {
public:
    ControlSet(QWidget& parent, std::span<const Place> places);

    // Applies every control the model visits; names with no place are remembered.
    template <class Model>
    void apply(const Model& model) {
        model.forEachControl([this](std::string_view name, const Control& c) { apply(name, c); });
    }
    void apply(std::string_view name, const Control& control);

    // Moves texts to the larger boxes they may grow into, and lets them wrap there.
    void placeInRooms(std::span<const Place> rooms);
    // Places every control and sizes its type at this multiple of the design.
    void setScale(qreal scale);

    QWidget* widget(std::string_view name) const;
    QAbstractButton* button(std::string_view name) const;
    QLabel* label(std::string_view name) const;
    QLineEdit* entry(std::string_view name) const;
    // Names a model gave that this window has no place for: a test asserts it stays empty.
    const std::vector<std::string>& unplaced() const { return unplaced_; }

private:
    std::map<std::string, QWidget*, std::less<>> widgets_;
    std::map<std::string, QRect, std::less<>> designRects_;
    std::vector<std::string> unplaced_;
};

QString qs(const std::string& text);

}  // namespace gw::view
