// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/BoardAccessible.h"

#include <QAccessibleActionInterface>
#include <QPointer>
#include <mutex>

#include "view/BoardWidget.h"

namespace gw::view {

namespace {

constexpr int kCells = 40;

// One cell of the board: a button with no widget of its own.
class CellAccessible final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    CellAccessible(BoardWidget* board, int cellId) : board_(board), cellId_(cellId) {}

    bool isValid() const override { return !board_.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override {
        return board_ ? QAccessible::queryAccessibleInterface(board_)->window() : nullptr;
    }
    QAccessibleInterface* focusChild() const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return board_ ? QAccessible::queryAccessibleInterface(board_.data()) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text t) const override {
        return board_ && t == QAccessible::Name ? board_->cellName(cellId_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!board_) return {};
        const QRect area = board_->cellArea(cellId_);
        return {board_->mapToGlobal(area.topLeft()), area.size()};
    }
    QAccessible::Role role() const override { return QAccessible::Button; }
    QAccessible::State state() const override {
        QAccessible::State s;
        if (!board_ || !board_->isVisible()) s.invisible = true;
        if (board_ && !board_->isEnabled()) s.disabled = true;
        return s;
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& name) override {
        if (board_ && name == pressAction()) board_->pressCell(cellId_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<BoardWidget> board_;
    int cellId_;
};

QAccessibleInterface* boardFactory(const QString& className, QObject* object) {
    if (className == QLatin1String("gw::view::BoardWidget") && object && object->isWidgetType()) {
        return new BoardAccessible(static_cast<BoardWidget*>(object));
    }
    return nullptr;
}

}  // namespace

BoardAccessible::BoardAccessible(BoardWidget* board)
    : QAccessibleWidget(board, QAccessible::Graphic) {}

BoardAccessible::~BoardAccessible() {
    for (QAccessible::Id id : cells_) {
        if (id != 0) QAccessible::deleteAccessibleInterface(id);
    }
}

BoardWidget* BoardAccessible::board() const {
    return static_cast<BoardWidget*>(widget());
}

int BoardAccessible::childCount() const {
    return kCells;
}

QAccessibleInterface* BoardAccessible::child(int index) const {
    if (index < 0 || index >= kCells) return nullptr;
    QAccessible::Id& id = cells_[static_cast<std::size_t>(index)];
    if (id == 0) id = QAccessible::registerAccessibleInterface(new CellAccessible(board(), index));
    return QAccessible::accessibleInterface(id);
}

int BoardAccessible::indexOfChild(const QAccessibleInterface* child) const {
    for (int i = 0; i < kCells; ++i) {
        const QAccessible::Id id = cells_[static_cast<std::size_t>(i)];
        if (id != 0 && QAccessible::accessibleInterface(id) == child) return i;
    }
    return -1;
}

QAccessibleInterface* BoardAccessible::childAt(int x, int y) const {
    // The corners are painted over their neighbours' edges, so they are found first.
    const QPoint local = board()->mapFromGlobal(QPoint(x, y));
    for (int corner = 0; corner < kCells; corner += 10) {
        if (board()->cellArea(corner).contains(local)) return child(corner);
    }
    for (int i = 0; i < kCells; ++i) {
        if (board()->cellArea(i).contains(local)) return child(i);
    }
    return nullptr;
}

void installBoardAccessible() {
    static std::once_flag installed;
    std::call_once(installed, [] { QAccessible::installFactory(boardFactory); });
}

}  // namespace gw::view
