// SPDX-License-Identifier: GPL-3.0-or-later
// Where the pictures of the board stand, in logical pixels of the board: the forty cells,
// the marks on each (small squares, hotels, mortgage stamp, owner mark), the walking tokens
// and the dice. Worked out from the board's design in twips.
#pragma once

#include <QRectF>

namespace gw::view {

constexpr int kBoardWidth = 593;
constexpr int kBoardHeight = 596;

QRectF cellRect(int cellId);
QRectF centreRect();
// Small square s, 0 to 5, of a cell (the squares fill in this order).
QRectF squareRect(int cellId, int s);
// Hotel h, 0 to 3.
QRectF hotelRect(int cellId, int h);
QRectF mortgageRect(int cellId);
// The strip of a cell facing the centre, where its marks lie; empty on the corners.
QRectF bandRect(int cellId);
QRectF ownerRect(int cellId);
// The large token of a player standing on a cell; player 0's token is the larger.
QRectF bigTokenRect(int playerId, int cellId);
// The same as the slot-th of count tokens that share the cell.
QRectF bigTokenRect(int playerId, int cellId, int slot, int count);
QRectF dieRect(int die);  // die 1 or 2
// The left and right columns of the board, where marks lie on their side.
bool isSideCell(int cellId);

}  // namespace gw::view
