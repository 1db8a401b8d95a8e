// SPDX-License-Identifier: GPL-3.0-or-later
// One board cell: a band in the district colour on the edge facing the centre, the name, an
// emblem for the cells that have one, and the price at the outer edge. Text stays upright on
// every side of the board so it reads at 7 to 9 px.
#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

#include "art/BoardGeometry.h"
#include "art/Text.h"
#include "base/CellFaceKind.h"

class QPainter;

namespace gw::art {

using CellKind = CellFaceKind;

struct CellFace {
    CellKind kind = CellKind::Street;
    QString name;
    int price = 0;  // the price, or the sum a tax cell asks; 0 prints none
    QColor band;    // the district colour; invalid for cells without a band
};

// Paints the cell into rect; edge is the side of the board the cell sits on.
TextBoxes paintBoardCell(QPainter& p, const QRectF& rect, const CellFace& face, Edge edge);

}  // namespace gw::art
