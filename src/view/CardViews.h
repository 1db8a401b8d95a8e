// SPDX-License-Identifier: GPL-3.0-or-later
// The four card windows: the property card, the trading card, the JFL card and the tax
// card. Each draws its model and forwards its buttons, keys and close box.
#pragma once

#include "view/WindowView.h"
#include "windows/CellInfoWindow.h"
#include "windows/JFLCardWindow.h"
#include "windows/TradingCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw::view {

class CellInfoView final : public WindowView {
    Q_OBJECT
public:
    CellInfoView(Dispatch& dispatch, CellInfoWindow& model);
    void refresh() override;

private:
    CellInfoWindow& model_;
};

class TradingCardView final : public WindowView {
    Q_OBJECT
public:
    TradingCardView(Dispatch& dispatch, TradingCardWindow& model);
    void refresh() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TradingCardWindow& model_;
};

class JFLCardView final : public WindowView {
    Q_OBJECT
public:
    JFLCardView(Dispatch& dispatch, JFLCardWindow& model);
    void refresh() override;

private:
    JFLCardWindow& model_;
};

class TaxCardView final : public WindowView {
    Q_OBJECT
public:
    TaxCardView(Dispatch& dispatch, taxCellWindow& model);
    void refresh() override;

private:
    taxCellWindow& model_;
};

}  // namespace gw::view
