// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/CellFaces.h"

#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "cells/TaxCell.h"
#include "game/Board.h"

namespace gw {
namespace {

// The first utility wears the bulb, the second the tower.
constexpr Integer kBulbUtilityCell = 12;

CellFace faceOf(BoardCell& cell) {
    CellFace face;
    face.name = cell.Cell_getName();
    switch (cell.kind()) {
        case CellKind::Go:
            face.kind = CellFaceKind::Go;
            break;
        case CellKind::Jail:
            face.kind = CellFaceKind::Jail;
            break;
        case CellKind::OlympicPark:
            face.kind = CellFaceKind::FreeStop;
            break;
        case CellKind::GoToJail:
            face.kind = CellFaceKind::Police;
            break;
        case CellKind::JFL:
            face.kind = CellFaceKind::Jfl;
            break;
        case CellKind::IncomeTax:
        case CellKind::LuxuryTax:
            face.kind = CellFaceKind::Tax;
            face.price = cell.asTax()->getRent();
            break;
        case CellKind::Street:
            face.kind = CellFaceKind::Street;
            face.district = cell.asStreet()->district();
            break;
        case CellKind::Metro:
            face.kind = CellFaceKind::Metro;
            break;
        case CellKind::Utility:
            face.kind = cell.Cell_getId() == kBulbUtilityCell ? CellFaceKind::UtilityBulb
                                                              : CellFaceKind::UtilityTower;
            break;
    }
    if (const PropertyCell* prop = cell.asProperty()) face.price = prop->getProp().getPrice();
    return face;
}

}  // namespace

CellFaces::CellFaces(const Board& board) {
    for (Integer i = 0; i < kCellCount; ++i) {
        if (BoardCell* cell = board.getCell(i)) faces_[static_cast<std::size_t>(i)] = faceOf(*cell);
    }
}

}  // namespace gw
