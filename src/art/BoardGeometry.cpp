// SPDX-License-Identifier: GPL-3.0-or-later
// The cell sizes, as laid out on the main window.
#include "art/BoardGeometry.h"

#include <array>

namespace gw::art {

namespace {
constexpr std::array<int, 9> kBottomWidths = {52, 51, 52, 50, 55, 51, 52, 51, 52};
constexpr std::array<int, 9> kLeftHeights = {51, 52, 51, 51, 52, 52, 51, 52, 51};
constexpr std::array<int, 9> kTopWidths = {52, 51, 51, 52, 55, 51, 51, 51, 52};
constexpr std::array<int, 9> kRightHeights = {51, 52, 51, 52, 52, 51, 51, 52, 51};
}  // namespace

bool isCornerCell(int ring) {
    return ring % 10 == 0;
}

Edge boardCellEdge(int ring) {
    const int r = ((ring % kBoardCells) + kBoardCells) % kBoardCells;
    if (r < 10) return Edge::Bottom;
    if (r < 20) return Edge::Left;
    if (r < 30) return Edge::Top;
    return Edge::Right;
}

QSize boardCellSize(int ring) {
    const int r = ((ring % kBoardCells) + kBoardCells) % kBoardCells;
    switch (r) {
        case 0:
            return {81, 84};
        case 10:
            return {83, 84};
        case 20:
            return {83, 83};
        case 30:
            return {81, 83};
        default:
            break;
    }
    const auto i = static_cast<std::size_t>(r % 10 - 1);
    switch (boardCellEdge(r)) {
        case Edge::Bottom:
            return {kBottomWidths[i], 84};
        case Edge::Left:
            return {83, kLeftHeights[i]};
        case Edge::Top:
            return {kTopWidths[i], 83};
        case Edge::Right:
            return {81, kRightHeights[i]};
    }
    return {};
}

}  // namespace gw::art
