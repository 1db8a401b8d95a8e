// SPDX-License-Identifier: GPL-3.0-or-later
// Every picture of the game with its size and a call that paints it: the contact sheets
// show this list and the tests walk it.
#pragma once

#include <QRectF>
#include <QSize>
#include <QString>
#include <functional>
#include <vector>

#include "art/BoardCell.h"
#include "art/Text.h"

class QPainter;

namespace gw::art {

struct PictureEntry {
    QString group;  // the window it belongs to; one contact sheet per group
    QString name;
    QSize size;
    std::function<TextBoxes(QPainter&, const QRectF&)> paint;
};

// The faces of the forty board cells, in ring order.
std::vector<CellFace> boardFaces();

std::vector<PictureEntry> catalogue();

// Readies Qt to paint with no display; call before making the application object. Picks the
// offscreen platform unless one is asked for, and gives Qt the private runtime folder it warns
// about on every run without one.
void prepareOffscreenQt();

}  // namespace gw::art
