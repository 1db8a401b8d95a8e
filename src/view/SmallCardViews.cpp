// SPDX-License-Identifier: GPL-3.0-or-later
// The JFL card, which shows a drawn card's text, and the tax card, which takes the tax.
#include "view/CardViews.h"
#include "view/Keys.h"
#include "windows/JFLCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw::view {

JFLCardView::JFLCardView(Dispatch& dispatch, JFLCardWindow& model)
    : WindowView(dispatch, QStringLiteral("JFL Card"), {211, 286}, jflCardPlaces(), {}),
      model_(model) {
    // The face is larger than the window and set a little up and left, as printed.
    background_->setPaint(
        [](QPainter& p, const QRectF&) { paintJflCard(p, QRectF(-5, -2, 223, 295)); });
    onClicked("Ok", [this] { model_.Ok_Click(); });
    addMnemonics(*this, controls_, {{"Ok", 'O'}});
    setOnCloseBox([this] { model_.close(); });
}

void JFLCardView::refresh() {
    controls_.apply("Label2", Control{true, true, model_.Label2()});
    controls_.apply(model_);
    followVisibility(model_.isVisible());
}

TaxCardView::TaxCardView(Dispatch& dispatch, taxCellWindow& model)
    : WindowView(dispatch, QStringLiteral("Tax Card"), {205, 289}, taxCardPlaces(), {}),
      model_(model) {
    background_->setPaint([this](QPainter& p, const QRectF&) {
        paintTaxCard(p, QRectF(-8, 0, 223, 295), model_.picture());
    });
    onClicked("payRent", [this] { model_.payRent_Click(); });
    addMnemonics(*this, controls_, {{"payRent", 'P'}});
    setOnCloseBox([this] { model_.close(); });
}

void TaxCardView::refresh() {
    controls_.apply("Label1", Control{true, true, model_.Label1()});
    controls_.apply(model_);
    background_->update();
    followVisibility(model_.isVisible());
}

}  // namespace gw::view
