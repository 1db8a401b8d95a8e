// SPDX-License-Identifier: GPL-3.0-or-later
// The end window, which names the winner, and the About window with the team.
#include <QPainter>

#include "view/StartEndViews.h"
#include "windows/GameEnd.h"

namespace gw::view {

GameEndView::GameEndView(Dispatch& dispatch, GameEnd& model)
    : WindowView(dispatch, QStringLiteral("Game Over"), {615, 526}, gameEndPlaces(), {}),
      model_(model),
      winner_(new PictureWidget(this)) {
    background_->setPaint([this](QPainter& p, const QRectF& r) {
        paintEndBackground(p, r, qs(model_.closingLine()));
    });
    controls_.placeInRooms(gameEndTextRooms());
    winner_->setGeometry(pixels(3960, 2520, 1455, 1215));
    winner_->setPaint([this](QPainter& p, const QRectF& r) {
        if (model_.Image2() >= 0) {
            const qreal side = std::min(r.width(), r.height()) - 8;
            paintToken(p, QRectF(r.center().x() - side / 2, r.center().y() - side / 2, side, side),
                       model_.Image2());
        }
    });
    onClicked("Command1", [this] { model_.Command1_Click(); });
    onClicked("Command2", [this] { model_.Command2_Click(); });
    // Closing the window ends the program, as "Exit game" does.
    setOnCloseBox([this] { model_.Command2_Click(); });
}

void GameEndView::refresh() {
    controls_.apply(model_);
    background_->update();
    winner_->update();
    followVisibility(model_.isVisible());
}

AboutView::AboutView(Dispatch& dispatch, About_Help& model)
    : WindowView(dispatch, QStringLiteral("About"), {715, 830}, aboutPlaces(),
                 paintAboutBackground),
      model_(model) {
    auto* banner = new PictureWidget(this, paintAboutBanner);
    banner->setGeometry(pixels(480, 60, 9660, 2775));
    // A portrait over each member's name, so every name has its own face.
    int index = 0;
    model_.forEachMember([&](std::string_view name, const Control&) {
        const QWidget* label = controls_.widget(name);
        if (label == nullptr) return;
        const int i = index++;
        auto* portrait =
            new PictureWidget(this, [i](QPainter& p, const QRectF& r) { paintPortrait(p, r, i); });
        portrait->setObjectName(QStringLiteral("portrait-") + qs(std::string(name)));
        portrait->setGeometry(aboutPortraitPlace(label->geometry()));
    });
    for (std::string_view heading : {"Label1", "Label8", "Label4"}) {
        if (QWidget* w = controls_.widget(heading)) {
            QFont f = w->font();
            f.setFamily(QStringLiteral("DejaVu Serif"));
            w->setFont(f);
            w->setStyleSheet(QStringLiteral("color: #1F5C5A;"));
        }
    }
    onClicked("Command1", [this] { model_.Command1_Click(); });
    setOnCloseBox([this] { model_.Command1_Click(); });
}

const PictureWidget* AboutView::portrait(std::string_view name) const {
    return findChild<PictureWidget*>(QStringLiteral("portrait-") + qs(std::string(name)),
                                     Qt::FindDirectChildrenOnly);
}

void AboutView::refresh() {
    controls_.apply(model_);
    followVisibility(model_.isVisible());
}

}  // namespace gw::view
