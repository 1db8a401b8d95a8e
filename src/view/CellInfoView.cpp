// SPDX-License-Identifier: GPL-3.0-or-later
// The property card: twelve faces, ten printed values, eleven buttons in two layouts.
#include "view/CardViews.h"
#include "view/Keys.h"
#include "windows/CellInfoWindow.h"

namespace gw::view {

CellInfoView::CellInfoView(Dispatch& dispatch, CellInfoWindow& model)
    : WindowView(dispatch, QStringLiteral("Property Card"), {199, 298}, propertyCardPlaces(), {}),
      model_(model) {
    background_->setPaint([this](QPainter& p, const QRectF&) {
        paintPropertyCard(p, QRectF(0, 0, 201, 299), model_.picture());
    });
    onClicked("buy", [this] { model_.buy_Click(); });
    onClicked("forget", [this] { model_.forget_Click(); });
    onClicked("payRent", [this] { model_.payRent_Click(); });
    onClicked("trade", [this] { model_.trade_Click(); });
    onClicked("Ok(0)", [this] { model_.Ok_Click(0); });
    onClicked("Ok(1)", [this] { model_.Ok_Click(1); });
    onClicked("Mortgage(0)", [this] { model_.Mortgage_Click(0); });
    onClicked("Mortgage(1)", [this] { model_.Mortgage_Click(1); });
    onClicked("Unmortgage", [this] { model_.Unmortgage_Click(); });
    onClicked("buyHotel", [this] { model_.buyHotel_Click(); });
    onClicked("sellHotel", [this] { model_.sellHotel_Click(); });
    setOnCloseBox([this] { model_.close(); });
    addMnemonics(*this, controls_,
                 {{"buy", 'B'},
                  {"forget", 'F'},
                  {"payRent", 'P'},
                  {"trade", 'T'},
                  {"Ok(0)", 'O'},
                  {"Ok(1)", 'O'},
                  {"Mortgage(0)", 'M'},
                  {"Mortgage(1)", 'M'},
                  {"Unmortgage", 'U'},
                  {"buyHotel", 'H'},
                  {"sellHotel", 'S'}});
}

void CellInfoView::refresh() {
    for (int n = 1; n <= 10; ++n) {
        controls_.apply("Label" + std::to_string(n), Control{true, true, model_.label(n)});
    }
    controls_.apply(model_);
    background_->update();
    followVisibility(model_.isVisible());
}

}  // namespace gw::view
