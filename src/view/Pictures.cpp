// Picture roles to art functions, and the cells' printed faces read from the game's cells.
#include "view/Pictures.h"

#include <QPainter>

#include "art/BoardCell.h"
#include "art/BoardCentre.h"
#include "art/BoardGeometry.h"
#include "art/Cards.h"
#include "art/Design.h"
#include "art/Dice.h"
#include "art/EndAbout.h"
#include "art/Marks.h"
#include "art/Palette.h"
#include "art/Panels.h"
#include "art/Render.h"
#include "art/StartWindow.h"
#include "art/Tokens.h"
#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "cells/TaxCell.h"
#include "game/Board.h"

namespace gw::view {

namespace col = art::colour;

struct CellPrint {
    art::CellFace face;
};

namespace {

art::CellFace faceOf(BoardCell& cell) {
    art::CellFace face;
    face.name = QString::fromStdString(cell.Cell_getName());
    switch (cell.kind()) {
        case CellKind::Go:
            face.kind = art::CellKind::Go;
            break;
        case CellKind::Jail:
            face.kind = art::CellKind::Jail;
            break;
        case CellKind::OlympicPark:
            face.kind = art::CellKind::FreeStop;
            break;
        case CellKind::GoToJail:
            face.kind = art::CellKind::Police;
            break;
        case CellKind::JFL:
            face.kind = art::CellKind::Jfl;
            break;
        case CellKind::IncomeTax:
        case CellKind::LuxuryTax:
            face.kind = art::CellKind::Tax;
            face.price = cell.asTax()->getRent();
            break;
        case CellKind::Street:
            face.kind = art::CellKind::Street;
            face.band = col::districtBand(cell.asProperty()->groupNumber());
            break;
        case CellKind::Metro:
            face.kind = art::CellKind::Metro;
            face.band = col::metroBand;
            break;
        case CellKind::Utility:
            face.kind =
                cell.Cell_getId() == 12 ? art::CellKind::UtilityBulb : art::CellKind::UtilityTower;
            face.band = col::utilityBand;
            break;
    }
    if (PropertyCell* prop = cell.asProperty()) face.price = prop->getProp().getPrice();
    return face;
}

}  // namespace

CellPrints cellPrints(const Board& board) {
    CellPrints prints;
    for (int i = 0; i < 40; ++i) {
        if (BoardCell* cell = board.getCell(static_cast<Integer>(i))) {
            prints[static_cast<std::size_t>(i)] =
                std::make_shared<CellPrint>(CellPrint{faceOf(*cell)});
        }
    }
    return prints;
}

void paintCell(QPainter& p, const QRectF& rect, int cellId, const CellPrint& print) {
    art::paintBoardCell(p, rect, print.face, art::boardCellEdge(cellId));
}

void paintCentre(QPainter& p, const QRectF& rect) {
    art::paintBoardCentre(p, rect);
}

void paintToken(QPainter& p, const QRectF& rect, int token) {
    art::paintToken(p, rect, token);
}

void paintDie(QPainter& p, const QRectF& rect, int face) {
    art::paintDieFace(p, rect, face);
}

void paintOwnerTab(QPainter& p, const QRectF& rect, int token) {
    art::paintOwnerTab(p, rect, token);
}

void paintHotel(QPainter& p, const QRectF& rect, bool) {
    art::paintHotel(p, rect);
}

void paintMortgage(QPainter& p, const QRectF& rect, bool) {
    art::paintMortgageStamp(p, rect);
}

void paintPanel(QPainter& p, const QRectF& rect, Panel panel) {
    switch (panel) {
        case Panel::Turn:
            art::paintTurnPanel(p, rect);
            break;
        case Panel::Messages:
            art::paintMessagePanel(p, rect);
            break;
        case Panel::Players:
            art::paintPlayersPanel(p, rect);
            break;
        case Panel::Emblem:
            art::paintEmblemPanel(p, rect);
            break;
    }
}

void paintTurnBar(QPainter& p, const QRectF& rect) {
    art::paintTurnBar(p, rect);
}

void paintStartBackground(QPainter& p, const QRectF& rect) {
    art::paintStartBackground(p, rect);
}

void paintChoice(QPainter& p, const QRectF& rect, Choice choice) {
    const bool computer = choice == Choice::ComputerLarge || choice == Choice::ComputerSmall;
    const bool large = choice == Choice::ComputerLarge || choice == Choice::HumanLarge;
    art::paintPlayerType(p, rect, computer ? art::PlayerType::Computer : art::PlayerType::Human,
                         large);
}

void paintPropertyCard(QPainter& p, const QRectF& rect, CardPicture picture) {
    if (picture == CardPicture::None) {
        art::paintCardStock(p, rect.adjusted(1, 1, -1, -1), 10);
        return;
    }
    art::paintPropertyCardFace(p, rect, static_cast<int>(picture));
}

void paintTradingCard(QPainter& p, const QRectF& rect, TradeFace face) {
    art::paintTradeCard(p, rect,
                        face == TradeFace::Owner ? art::TradeSide::Owner : art::TradeSide::Buyer);
}

void paintJflCard(QPainter& p, const QRectF& rect) {
    art::paintJflCard(p, rect);
}

void paintTaxCard(QPainter& p, const QRectF& rect, TaxPicture picture) {
    if (picture == TaxPicture::None) {
        art::paintCardStock(p, rect.adjusted(1, 1, -1, -1), 10);
        return;
    }
    art::paintTaxCard(
        p, rect, picture == TaxPicture::LuxuryTax ? art::TaxKind::Luxury : art::TaxKind::Income);
}

void paintEndBackground(QPainter& p, const QRectF& rect, const QString& closingLine) {
    art::paintEndBackground(p, rect, closingLine);
}

void paintAboutBanner(QPainter& p, const QRectF& rect) {
    art::paintAboutBanner(p, rect);
}

void paintAboutBackground(QPainter& p, const QRectF& rect) {
    art::paintPanel(p, rect);
}

void paintPortrait(QPainter& p, const QRectF& rect, int index) {
    art::paintPortrait(p, rect, index);
}

QImage appIcon(int size) {
    return art::renderImage(QSize(size, size), 1,
                            [](QPainter& p, const QRectF& r) { art::paintAppIcon(p, r); });
}

}  // namespace gw::view
