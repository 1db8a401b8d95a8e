// SPDX-License-Identifier: GPL-3.0-or-later
// The set-up window: the name entry, the choice of a human or a computer, fourteen tokens,
// the list of players added and the two buttons.
#include <QEvent>
#include <QLineEdit>

#include "art/Tokens.h"
#include "view/StartEndViews.h"

namespace gw::view {

namespace {

QRect tokenPlace(int index) {
    if (index < 7) return pixels(120 + 840 * index, 3795, 840, 840);
    if (index < kTokenCount) return pixels(120 + 840 * (index - 7), 4635, 840, 840);
    constexpr std::array<QPoint, kMaxPlayers> kSlots = {
        {{6240, 2760}, {6240, 3120}, {6255, 3525}, {6270, 3900}, {6270, 4290}, {6285, 4665}}};
    const QPoint slot = kSlots[static_cast<std::size_t>(index - kFirstSlot)];
    return pixels(slot.x(), slot.y(), 360, 360);
}

}  // namespace

GameStartView::GameStartView(Dispatch& dispatch, GameStart& model)
    : WindowView(dispatch, QStringLiteral("Welcome to Gildenway v1.0"), {600, 400},
                 gameStartPlaces(), paintStartBackground),
      model_(model) {
    // Image3 and Image2 lie under Image1 and Image4, so they are made first.
    const std::array<std::pair<int, Choice>, 4> order = {{{3, Choice::ComputerSmall},
                                                          {2, Choice::HumanSmall},
                                                          {1, Choice::ComputerLarge},
                                                          {4, Choice::HumanLarge}}};
    for (const auto& [number, choice] : order) {
        auto* picture = new PictureWidget(
            this, [choice](QPainter& p, const QRectF& r) { paintChoice(p, r, choice); });
        picture->setObjectName(QStringLiteral("Image%1").arg(number));
        picture->setGeometry(number % 2 == 1 ? pixels(720, 3000, 2310, 750)
                                             : pixels(3120, 3000, 2310, 750));
        images_[static_cast<std::size_t>(number - 1)] = picture;
    }
    image(1).setClickable(true);
    image(4).setClickable(true);
    image(1).setAccessibleName(QStringLiteral("Computer player"));
    image(4).setAccessibleName(QStringLiteral("Human player"));
    connect(&image(1), &PictureWidget::clicked, this,
            [this] { dispatch_.click([this] { model_.Image1_Click(); }); });
    connect(&image(4), &PictureWidget::clicked, this,
            [this] { dispatch_.click([this] { model_.Image4_Click(); }); });

    for (int i = 0; i < kTokenControls; ++i) {
        auto* picture = new PictureWidget(this);
        picture->setObjectName(QStringLiteral("Token%1").arg(i));
        picture->setGeometry(tokenPlace(i));
        picture->setClickable(i < kFirstSlot);
        if (i < kFirstSlot) picture->setAccessibleName(art::tokenName(i));
        connect(picture, &PictureWidget::clicked, this,
                [this, i] { dispatch_.click([this, i] { model_.Token_Click(i); }); });
        tokens_[static_cast<std::size_t>(i)] = picture;
    }

    onClicked("Command1", [this] { model_.Command1_Click(); });
    onClicked("Command2", [this] { model_.Command2_Click(); });
    if (QLineEdit* name = controls_.entry("NickName")) {
        name->setMaxLength(static_cast<int>(kNickNameMaxLength));
        name->installEventFilter(this);
        connect(name, &QLineEdit::textEdited, this, [this](const QString& text) {
            const std::string typed = text.toStdString();
            dispatch_.click([&] { model_.NickName_Change(typed); });
        });
    }
}

bool GameStartView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn && watched == controls_.entry("NickName")) {
        // Typing replaces the whole name; queued so the focusing click does not undo it.
        QMetaObject::invokeMethod(controls_.entry("NickName"), &QLineEdit::selectAll,
                                  Qt::QueuedConnection);
    }
    return WindowView::eventFilter(watched, event);
}

void GameStartView::refresh() {
    controls_.apply(model_);
    const std::array<bool, 4> shown = {model_.Image1(), model_.Image2(), model_.Image3(),
                                       model_.Image4()};
    for (std::size_t n = 0; n < shown.size(); ++n) images_[n]->setVisible(shown[n]);
    for (int i = 0; i < kTokenControls; ++i) {
        const GameStart::TokenControl& state = model_.Token(i);
        PictureWidget& picture = token(i);
        picture.setVisible(state.visible);
        picture.setBordered(state.bordered);
        const int shownToken = state.picture;
        if (picture.property("token").toInt() != shownToken + 1) {
            picture.setProperty("token", shownToken + 1);
            picture.setPaint([shownToken](QPainter& p, const QRectF& r) {
                if (shownToken >= 0) paintToken(p, r.adjusted(3, 3, -3, -3), shownToken);
            });
        }
    }
    followVisibility(model_.isVisible());
}

}  // namespace gw::view
