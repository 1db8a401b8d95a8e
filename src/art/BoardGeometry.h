// SPDX-License-Identifier: GPL-3.0-or-later
// The sizes of the forty board cell pictures and the side of the board each sits on. Ring
// positions run clockwise from the bottom-right corner.
#pragma once

#include <QSize>

namespace gw::art {

enum class Edge { Bottom, Left, Top, Right };

constexpr int kBoardCells = 40;

QSize boardCellSize(int ring);
Edge boardCellEdge(int ring);
bool isCornerCell(int ring);

}  // namespace gw::art
