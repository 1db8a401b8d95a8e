// The main window: the board on the left, the panels of the players, the messages and the
// current turn on the right, the five turn buttons over the centre of the board, and the
// File and Help menus.
#pragma once

#include <QMainWindow>
#include <array>

#include "view/BoardWidget.h"
#include "view/ControlSet.h"
#include "view/Dispatch.h"
#include "view/PictureWidget.h"

class QAction;

namespace gw::view {

class MainWindowView final : public QMainWindow {
    Q_OBJECT
public:
    MainWindowView(Dispatch& dispatch, MainWindow& model, CellPrints prints);

    void refresh();
    const ControlSet& controls() const { return *controls_; }
    BoardWidget& board() { return *board_; }
    // The area under the menu bar, where the board and the panels lie.
    QWidget& client() const { return *client_; }
    QAction& action(std::string_view name) const;

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenus();
    void click(std::function<void()> handler) { dispatch_.click(handler); }

    Dispatch& dispatch_;
    MainWindow& model_;
    QWidget* client_;
    BoardWidget* board_;
    std::unique_ptr<ControlSet> controls_;
    std::array<PictureWidget*, 4> panels_{};
    std::map<std::string, QAction*, std::less<>> actions_;
};

}  // namespace gw::view
