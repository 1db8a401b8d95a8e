// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: the board on the left, the panels of the players, the messages and the
// current turn on the right, the five turn buttons over the centre of the board, and the
// File and Help menus.
#pragma once

#include <QMainWindow>
#include <array>

#include "view/BoardWidget.h"
#include "view/CardPlacement.h"
#include "view/ControlSet.h"
#include "view/Dispatch.h"
#include "view/PictureWidget.h"

class QAction;

namespace gw::view {

class MainWindowView final : public QMainWindow {
    Q_OBJECT
public:
    MainWindowView(Dispatch& dispatch, MainWindow& model);

    void refresh();
    // A menu of the bar whose action carries this property stays open while a card is up.
    static constexpr const char* kOpenWhileCardUp = "openWhileCardUp";
    const ControlSet& controls() const { return *controls_; }
    BoardWidget& board() { return *board_; }
    // The area under the menu bar, where the board and the panels lie.
    QWidget& client() const { return *client_; }
    QAction& action(std::string_view name) const;
    // Where on the screen a card may open: the board, and what it must leave clear.
    CardRoom cardRoom() const;

    // Size: everything in the window at one multiple of its design, kept in proportion
    // whatever the window's size; the View menu sets 100 %, 150 %, 200 % or the screen's fit.
    qreal scale() const { return scale_; }
    void zoomTo(qreal scale);
    // The largest multiple at which the window shows whole on its screen: a whole one where
    // the design fits, else the fraction that fits.
    qreal screenFit() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildMenus();
    void setScale(qreal scale);
    void nameTokenPictures();
    void click(std::function<void()> handler) { dispatch_.click(handler); }

    Dispatch& dispatch_;
    MainWindow& model_;
    QWidget* stage_;
    QWidget* client_;
    qreal scale_ = 1;
    BoardWidget* board_;
    std::unique_ptr<ControlSet> controls_;
    std::array<PictureWidget*, 4> panels_{};
    std::map<std::string, QAction*, std::less<>> actions_;
};

}  // namespace gw::view
