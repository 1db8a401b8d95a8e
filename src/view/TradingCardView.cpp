// SPDX-License-Identifier: GPL-3.0-or-later
// The trading card: two faces, the names of the cell and the two sides, and the amount box
// whose every key goes to the model's filter.
#include <QKeyEvent>
#include <QLineEdit>

#include "view/CardViews.h"
#include "view/Keys.h"
#include "windows/TradingCardWindow.h"

namespace gw::view {

TradingCardView::TradingCardView(Dispatch& dispatch, TradingCardWindow& model)
    : WindowView(dispatch, QStringLiteral("Trading Card"), {202, 306}, tradingCardPlaces(), {}),
      model_(model) {
    background_->setPaint([this](QPainter& p, const QRectF&) {
        paintTradingCard(p, QRectF(0, 0, 201, 299), model_.face());
    });
    controls_.placeInRooms(tradingCardTextRooms());
    onClicked("doneDeal", [this] { model_.doneDeal_Click(); });
    onClicked("wantIt", [this] { model_.wantIt_Click(); });
    onClicked("wantMore", [this] { model_.wantMore_Click(); });
    onClicked("forgetIt", [this] { model_.forgetIt_Click(); });
    setOnCloseBox([this] { model_.close(); });
    addMnemonics(*this, controls_,
                 {{"doneDeal", 'D'}, {"wantIt", 'W'}, {"wantMore", 'M'}, {"forgetIt", 'F'}});
    if (QLineEdit* amount = controls_.entry("amount")) {
        amount->setMaxLength(static_cast<int>(TradingCardWindow::kAmountMaxLength));
        amount->installEventFilter(this);
        // A paste arrives as a whole text: only its digits are kept, as typing would.
        connect(amount, &QLineEdit::textEdited, this, [this](const QString& text) {
            std::string kept;
            for (QChar c : text) {
                if (TradingCardWindow::amount_KeyPress(c.toLatin1())) kept += c.toLatin1();
            }
            dispatch_.click([&] { model_.setAmountText(kept); });
            refresh();
        });
    }
}

bool TradingCardView::eventFilter(QObject* watched, QEvent* event) {
    auto* amount = controls_.entry("amount");
    if (watched != amount) return WindowView::eventFilter(watched, event);
    if (event->type() == QEvent::FocusIn) {
        dispatch_.click([this] { model_.amount_GotFocus(); });
        // After the click that gave the focus has placed the cursor.
        QMetaObject::invokeMethod(amount, &QLineEdit::selectAll, Qt::QueuedConnection);
        return false;
    }
    // A click into a box that has the focus already raises no focus event: the release,
    // after the press has placed the cursor, selects the sum all the same.
    if (event->type() == QEvent::MouseButtonRelease) {
        dispatch_.click([this] { model_.amount_Click(); });
        refresh();
        return false;
    }
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        const QString text = key->text();
        const bool erase = key->key() == Qt::Key_Backspace || key->key() == Qt::Key_Delete;
        if (text.isEmpty() && !erase) return false;  // moves and shortcuts keep working
        for (QChar c : text) {
            const char k = c.toLatin1();
            dispatch_.click([&] { model_.typeKey(k); });
        }
        refresh();
        return true;
    }
    return WindowView::eventFilter(watched, event);
}

void TradingCardView::refresh() {
    for (int n = 1; n <= 3; ++n) {
        controls_.apply("Label" + std::to_string(n), Control{true, true, model_.label(n)});
    }
    controls_.apply("Label4", model_.Label4());
    controls_.apply("amount", Control{true, true, model_.amountText()});
    controls_.apply(model_);
    if (QLineEdit* amount = controls_.entry("amount")) {
        if (model_.amountSelected()) {
            amount->selectAll();
        } else {
            amount->setCursorPosition(static_cast<int>(amount->text().size()));
        }
    }
    background_->update();
    followVisibility(model_.isVisible());
}

}  // namespace gw::view
