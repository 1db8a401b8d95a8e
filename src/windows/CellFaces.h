// SPDX-License-Identifier: GPL-3.0-or-later
// What the board prints on each of its forty cells: the kind of face, the name, the
// price or the tax, and the district of a street. Views paint the board from this alone.
#pragma once

#include <array>
#include <string>

#include "base/CellFaceKind.h"
#include "base/Integer.h"
#include "base/Limits.h"

namespace gw {

class Board;

struct CellFace {
    CellFaceKind kind = CellFaceKind::Street;
    std::string name;
    Integer price = 0;     // the price, or the sum a tax cell asks; 0 prints none
    Integer district = 0;  // 1 to 8 for a street, else 0
};

class CellFaces {
public:
    CellFaces() = default;
    explicit CellFaces(const Board& board);

    const CellFace& face(int cellId) const { return faces_[static_cast<std::size_t>(cellId)]; }

private:
    std::array<CellFace, kCellCount> faces_;
};

}  // namespace gw
