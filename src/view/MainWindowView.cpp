// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/MainWindowView.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QMenuBar>
#include <QResizeEvent>
#include <QScreen>
#include <QShortcut>
#include <cmath>

#include "art/Tokens.h"
#include "view/Keys.h"
#include "view/Places.h"
#include "windows/GameRun.h"
#include "windows/MainWindow.h"

namespace gw::view {

namespace {

constexpr QSize kClient{778, 596};
constexpr int kPanelX = 592;

// The four panels, stacked without overlap down the right side.
struct PanelPlace {
    Panel panel;
    QRect rect;
};
constexpr std::array<PanelPlace, 4> kPanels = {{
    {Panel::Players, {kPanelX, 0, 186, 192}},
    {Panel::Messages, {kPanelX, 192, 186, 184}},
    {Panel::Emblem, {kPanelX, 376, 186, 96}},
    {Panel::Turn, {kPanelX, 472, 186, 124}},
}};

// Within the players' panel: the bar behind row i and the token of row i.
QRectF turnBarRect(int row) {
    constexpr std::array<int, 6> lefts = {330, 330, 315, 300, 300, 300};
    constexpr std::array<int, 6> tops = {465, 855, 1260, 1605, 1995, 2355};
    const auto i = static_cast<std::size_t>(row);
    return QRectF(pixels(lefts[i], tops[i], 2205, 345));
}
QRectF panelTokenRect(int row) {
    return QRectF(pixels(390, 480 + 375 * row, 360, 360));
}

}  // namespace

MainWindowView::MainWindowView(Dispatch& dispatch, MainWindow& model)
    : dispatch_(dispatch), model_(model), stage_(new QWidget(this)), client_(new QWidget(stage_)) {
    setWindowTitle(QStringLiteral("Gildenway v1.0"));
    client_->setFixedSize(kClient);
    // The stage fills the window; the client, in proportion, stands in its middle.
    setCentralWidget(stage_);
    stage_->setMinimumSize(kClient / 4);
    stage_->installEventFilter(this);
    board_ = new BoardWidget(client_, model_, cellPrints(model_));
    board_->move(0, 0);
    connect(board_, &BoardWidget::cellClicked, this, [this](int cell) {
        click([this, cell] { model_.cell_Click(static_cast<Integer>(cell)); });
    });

    for (std::size_t i = 0; i < kPanels.size(); ++i) {
        const PanelPlace place = kPanels[i];
        auto* panel = new PictureWidget(client_);
        panel->setGeometry(place.rect);
        panels_[i] = panel;
    }
    panels_[0]->setPaint([this](QPainter& p, const QRectF& r) {
        paintPanel(p, r, Panel::Players);
        if (model_.turnBar() >= 0) paintTurnBar(p, turnBarRect(model_.turnBar()));
        for (int i = 0; i < kMaxPlayers; ++i) {
            const MainWindow::PanelRow& row = model_.panel(i);
            if (row.tokenVisible && row.token >= 0) paintToken(p, panelTokenRect(i), row.token);
        }
    });
    panels_[1]->setPaint([](QPainter& p, const QRectF& r) { paintPanel(p, r, Panel::Messages); });
    panels_[2]->setPaint([](QPainter& p, const QRectF& r) { paintPanel(p, r, Panel::Emblem); });
    panels_[3]->setPaint([this](QPainter& p, const QRectF& r) {
        paintPanel(p, r, Panel::Turn);
        if (model_.playToken() >= 0) {
            paintToken(p, QRectF(pixels(240, 600, 840, 840)), model_.playToken());
        }
    });

    controls_ = std::make_unique<ControlSet>(*client_, mainWindowPlaces());
    controls_->placeInRooms(mainWindowTextRooms());
    // Plain functions rather than member pointers: the sanitizer build of the compiler we use
    // misreads a member-pointer call made inside a lambda.
    using Handler = void (*)(MainWindow&);
    const std::array<std::pair<const char*, Handler>, 5> buttons = {{
        {"rollDice", [](MainWindow& m) { m.rollDice_Click(); }},
        {"declareBank", [](MainWindow& m) { m.declareBank_Click(); }},
        {"endTurn", [](MainWindow& m) { m.endTurn_Click(); }},
        {"pay50Rent", [](MainWindow& m) { m.pay50Rent_Click(); }},
        {"useJFLCard", [](MainWindow& m) { m.useJFLCard_Click(); }},
    }};
    for (const auto& [name, handler] : buttons) {
        if (QAbstractButton* b = controls_->button(name)) {
            connect(b, &QAbstractButton::clicked, this,
                    [this, h = handler] { click([this, h] { h(model_); }); });
        }
    }
    buildMenus();
    resize(kClient.width(), kClient.height() + menuBar()->sizeHint().height());
    addMnemonics(*this, *controls_,
                 {{"rollDice", 'R'},
                  {"endTurn", 'E'},
                  {"pay50Rent", 'P'},
                  {"useJFLCard", 'U'},
                  {"declareBank", 'B'}});
    for (const QKeySequence& key :
         {QKeySequence(Qt::Key_Space), QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)}) {
        connect(new QShortcut(key, this), &QShortcut::activated, this,
                [this] { click([this] { model_.turnKey_Press(); }); });
    }
}

void MainWindowView::buildMenus() {
    QMenu* file = menuBar()->addMenu(QStringLiteral("&File"));
    QMenu* sound = file->addMenu(QStringLiteral("&Sound"));
    actions_["Mute"] = sound->addAction(QStringLiteral("&Mute"), this,
                                        [this] { click([this] { model_.Mute_Click(); }); });
    actions_["Enable"] = sound->addAction(QStringLiteral("&Enable"), this,
                                          [this] { click([this] { model_.Enable_Click(); }); });
    // The voice reads the message line aloud; it is off until enabled.
    QMenu* voice = file->addMenu(QStringLiteral("&Voice"));
    actions_["Mute1"] = voice->addAction(QStringLiteral("&Mute"), this, [this] {
        click([this] { dispatch_.run().narrator().Mute1_Click(); });
    });
    actions_["Enable1"] = voice->addAction(QStringLiteral("&Enable"), this, [this] {
        click([this] { dispatch_.run().narrator().Enable1_Click(); });
    });
    file->addSeparator();
    actions_["Exit"] = file->addAction(QStringLiteral("E&xit"), this,
                                       [this] { click([this] { model_.Exit_Click(); }); });
    QMenu* view = menuBar()->addMenu(QStringLiteral("&View"));
    for (int percent : {100, 150, 200}) {
        actions_["Zoom" + std::to_string(percent)] =
            view->addAction(QStringLiteral("%1 %").arg(percent), this,
                            [this, percent] { zoomTo(percent / 100.0); });
    }
    actions_["Fit"] =
        view->addAction(QStringLiteral("&Fit"), this, [this] { zoomTo(screenFit()); });
    actions_["History"] = view->addAction(QStringLiteral("&History"), this, [this] {
        click([this] { dispatch_.run().history().History_Click(); });
    });
    actions_["History"]->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_H));
    QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
    actions_["About"] = help->addAction(QStringLiteral("&About"), this,
                                        [this] { click([this] { model_.About_Click(); }); });
}

QAction& MainWindowView::action(std::string_view name) const {
    return *actions_.find(name)->second;
}

void MainWindowView::setScale(qreal scale) {
    scale_ = scale;
    client_->setFixedSize(qRound(kClient.width() * scale), qRound(kClient.height() * scale));
    board_->setScale(scale);
    for (std::size_t i = 0; i < kPanels.size(); ++i) {
        const QRect r = kPanels[i].rect;
        panels_[i]->setGeometry(qRound(r.x() * scale), qRound(r.y() * scale),
                                qRound(r.width() * scale), qRound(r.height() * scale));
        panels_[i]->setDesignScale(scale);
    }
    controls_->setScale(scale);
}

bool MainWindowView::eventFilter(QObject* watched, QEvent* event) {
    if (watched == stage_ && event->type() == QEvent::Resize) {
        const QSize room = stage_->size();
        const qreal fit = std::min(room.width() / static_cast<qreal>(kClient.width()),
                                   room.height() / static_cast<qreal>(kClient.height()));
        if (std::abs(fit - scale_) > 0.001) setScale(fit);
        client_->move((room.width() - client_->width()) / 2,
                      (room.height() - client_->height()) / 2);
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindowView::zoomTo(qreal scale) {
    const QSize stage(qRound(kClient.width() * scale), qRound(kClient.height() * scale));
    resize(stage + QSize(0, menuBar()->sizeHint().height()));
}

qreal MainWindowView::screenFit() const {
    const QScreen* shown = screen();
    if (!shown) return 1;
    // The frame and the menu bar take their room first.
    const QSize around = frameGeometry().size() - size() + QSize(0, menuBar()->sizeHint().height());
    const QSize room = shown->availableGeometry().size() - around;
    const qreal fit = std::min(room.width() / static_cast<qreal>(kClient.width()),
                               room.height() / static_cast<qreal>(kClient.height()));
    return fit >= 1 ? std::floor(fit) : fit;
}

CardRoom MainWindowView::cardRoom() const {
    const auto global = [](const QWidget& w) {
        return QRect(w.mapToGlobal(QPoint(0, 0)), w.size());
    };
    CardRoom room;
    const QScreen* shown = screen();
    room.screen = shown ? shown->availableGeometry() : QRect();
    room.mainFrame = frameGeometry();
    room.board = global(*board_);
    for (const char* name : {"rollDice", "declareBank", "endTurn", "pay50Rent", "useJFLCard"}) {
        if (const QWidget* button = controls_->widget(name))
            room.keepClear.push_back(global(*button));
    }
    room.keepClear.push_back(global(*panels_[1]));
    return room;
}

void MainWindowView::refresh() {
    controls_->apply(model_);
    client_->setEnabled(model_.isEnabled());
    for (QAction* menu : menuBar()->actions()) {
        menu->setEnabled(model_.isEnabled() || menu->property(kOpenWhileCardUp).toBool());
    }
    board_->update();
    for (PictureWidget* panel : panels_) panel->update();
    nameTokenPictures();
    if (model_.isVisible() != isVisible()) setVisible(model_.isVisible());
}

// The tokens on the panels are painted, so the panels say which they show.
void MainWindowView::nameTokenPictures() {
    QStringList rows;
    for (int i = 0; i < kMaxPlayers; ++i) {
        const MainWindow::PanelRow& row = model_.panel(i);
        if (!row.tokenVisible || row.token < 0) continue;
        rows << art::tokenName(row.token) + QLatin1Char(' ') +
                    QString::fromStdString(row.name.caption);
    }
    panels_[0]->setAccessibleName(QStringLiteral("Players: ") + rows.join(QStringLiteral(", ")));
    panels_[3]->setAccessibleName(model_.playToken() >= 0 ? QStringLiteral("Now playing: ") +
                                                                art::tokenName(model_.playToken())
                                                          : QStringLiteral("Now playing"));
}

void MainWindowView::closeEvent(QCloseEvent* event) {
    // Closing the window is leaving the program, after a question during a game.
    event->ignore();
    click([this] { dispatch_.run().closeMainWindow(); });
}

}  // namespace gw::view
