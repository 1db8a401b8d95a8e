// SPDX-License-Identifier: GPL-3.0-or-later
// A set of the forty cells, one bit a cell, listed in the order of the board or from its
// end down. A player keeps the cells it holds in one, as they change hands, so that the
// computer's play looks at its own few cells instead of asking all forty.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "base/Integer.h"
#include "base/Limits.h"

namespace gw {

// Cell ids in a fixed room: a list made from a set, to walk with a loop that may stop early.
struct CellList {
    std::array<Integer, kCellCount> ids{};
    std::size_t count = 0;

    void add(Integer cellId) { ids[count++] = cellId; }
    const Integer* begin() const { return ids.data(); }
    const Integer* end() const { return ids.data() + count; }
};

class CellSet {
public:
    bool has(Integer cellId) const { return ((bits_ >> cellId) & 1U) != 0; }
    void add(Integer cellId) { bits_ |= std::uint64_t{1} << cellId; }
    void remove(Integer cellId) { bits_ &= ~(std::uint64_t{1} << cellId); }
    // The cells in both sets.
    CellSet operator&(CellSet other) const {
        other.bits_ &= bits_;
        return other;
    }

    // From Go onwards.
    CellList inBoardOrder() const {
        CellList list;
        for (std::uint64_t rest = bits_; rest != 0; rest &= rest - 1) {
            list.add(static_cast<Integer>(std::countr_zero(rest)));
        }
        return list;
    }
    // From the last cell of the board down.
    CellList fromTheEnd() const {
        CellList list;
        for (std::uint64_t rest = bits_; rest != 0;) {
            const int last = std::bit_width(rest) - 1;
            list.add(static_cast<Integer>(last));
            rest &= ~(std::uint64_t{1} << last);
        }
        return list;
    }

private:
    std::uint64_t bits_ = 0;
};

}  // namespace gw
