// SPDX-License-Identifier: GPL-3.0-or-later
// The ring of forty cells: the one table of names, prices and district ids.
#include <array>

#include "cards/JFL.h"
#include "cells/PlainCells.h"
#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "cells/TaxCell.h"
#include "game/Board.h"

namespace gw {
namespace {

struct RingEntry {
    const char* name;
    CellKind kind;
    Integer price;
    Integer distId;
};

constexpr std::array<RingEntry, kCellCount> kRing = {{
    {"GO", CellKind::Go, 0, 0},
    {"Saint-Antoine", CellKind::Street, 90, 11},
    {"JFL", CellKind::JFL, 0, 0},
    {"Saint-Jacques", CellKind::Street, 100, 12},
    {"Income Tax", CellKind::IncomeTax, 0, 0},
    {"Outremont", CellKind::Metro, 300, 0},
    {"Wellington", CellKind::Street, 130, 21},
    {"JFL", CellKind::JFL, 0, 0},
    {"Centre", CellKind::Street, 140, 22},
    {"Bridge", CellKind::Street, 150, 23},
    {"Jail", CellKind::Jail, 0, 0},
    {"Notre-Dame", CellKind::Street, 170, 31},
    {"Utility 1", CellKind::Utility, 200, 0},
    {"Saint-Sulpice", CellKind::Street, 180, 32},
    {"Saint-Paul", CellKind::Street, 190, 33},
    {"Guy-Concordia", CellKind::Metro, 300, 0},
    {"Saint-Laurent", CellKind::Street, 210, 41},
    {"JFL", CellKind::JFL, 0, 0},
    {"Saint-Urbain", CellKind::Street, 220, 42},
    {"De La Gauchetiere", CellKind::Street, 230, 43},
    {"Parc Olympique", CellKind::OlympicPark, 0, 0},
    {"Jarry", CellKind::Street, 250, 51},
    {"JFL", CellKind::JFL, 0, 0},
    {"Jean Talon", CellKind::Street, 260, 52},
    {"Saint-Zotique", CellKind::Street, 270, 53},
    {"Vendome", CellKind::Metro, 300, 0},
    {"Saint-Catherine", CellKind::Street, 290, 61},
    {"Crescent", CellKind::Street, 300, 62},
    {"HQ", CellKind::Utility, 200, 0},
    {"Peel", CellKind::Street, 310, 63},
    {"Police", CellKind::GoToJail, 0, 0},
    {"Mont-Royal", CellKind::Street, 330, 71},
    {"Rachel", CellKind::Street, 350, 72},
    {"JFL", CellKind::JFL, 0, 0},
    {"Saint-Joseph", CellKind::Street, 350, 73},
    {"Bonaventure", CellKind::Metro, 300, 0},
    {"JFL", CellKind::JFL, 0, 0},
    {"Green", CellKind::Street, 400, 81},
    {"Luxury Tax", CellKind::LuxuryTax, 0, 0},
    {"The Boulevard", CellKind::Street, 500, 82},
}};

std::unique_ptr<BoardCell> makeCell(const RingEntry& entry, cell plain) {
    switch (entry.kind) {
        case CellKind::Go:
        case CellKind::Jail:
        case CellKind::OlympicPark:
            return std::make_unique<QuietCell>(entry.kind, std::move(plain));
        case CellKind::GoToJail:
            return std::make_unique<goToJail>(std::move(plain));
        case CellKind::IncomeTax:
            return std::make_unique<IncomeTax>(std::move(plain));
        case CellKind::LuxuryTax:
            return std::make_unique<LuxuryTax>(std::move(plain));
        case CellKind::JFL:
            return std::make_unique<JFL>(std::move(plain));
        case CellKind::Metro:
            return std::make_unique<Metro>(std::move(plain), entry.price);
        case CellKind::Utility:
            return std::make_unique<Utility>(std::move(plain), entry.price);
        case CellKind::Street:
            return std::make_unique<Street>(std::move(plain), entry.price, entry.distId);
    }
    return nullptr;
}

}  // namespace

void Board::init() {
    currPlayer_ = 0;
    numPlayer_ = 0;
    throwsThisTurn_ = 0;
    jflDeck_.init();  // the deck is built and shuffled before any cell exists
    buildCells();
}

void Board::buildCells() {
    kinds_ = {};
    for (std::size_t i = 0; i < kRing.size(); ++i) {
        kinds_[static_cast<std::size_t>(kRing[i].kind)].add(static_cast<Integer>(i));
        cells_[i] = makeCell(kRing[i], cell(static_cast<Integer>(i), kRing[i].name, *this));
        properties_[i] = cells_[i]->asProperty();
        streets_[i] = cells_[i]->asStreet();
        if (Street* s = streets_[i]) {
            districts_[static_cast<std::size_t>(s->district() - 1)]
                      [static_cast<std::size_t>(s->streetNumber() - 1)] = s;
        }
    }
}

}  // namespace gw
