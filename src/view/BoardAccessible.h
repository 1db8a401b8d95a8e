// SPDX-License-Identifier: GPL-3.0-or-later
// The board to a screen reader: one painted widget shown as forty buttons, one per cell,
// each with the name the cell prints, its place on the screen at the current size, and a
// press that does what a click on the cell does.
#pragma once

#include <QAccessibleWidget>
#include <array>

namespace gw::view {

class BoardWidget;

class BoardAccessible final : public QAccessibleWidget {
public:
    explicit BoardAccessible(BoardWidget* board);
    ~BoardAccessible() override;

    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;

private:
    BoardWidget* board() const;

    // The cells' interfaces are made when first asked for and kept in Qt's registry.
    mutable std::array<QAccessible::Id, 40> cells_{};
};

// Makes Qt build a BoardAccessible for every board; safe to call more than once.
void installBoardAccessible();

}  // namespace gw::view
