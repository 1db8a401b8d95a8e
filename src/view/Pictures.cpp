// SPDX-License-Identifier: GPL-3.0-or-later
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
#include "windows/MainWindow.h"

namespace gw::view {

namespace col = art::colour;

struct CellPrint {
    art::CellFace face;
};

namespace {

QColor bandOf(const CellFace& face) {
    switch (face.kind) {
        case CellFaceKind::Street:
            return col::districtBand(face.district);
        case CellFaceKind::Metro:
            return col::metroBand;
        case CellFaceKind::UtilityBulb:
        case CellFaceKind::UtilityTower:
            return col::utilityBand;
        default:
            return {};
    }
}

art::CellFace artFaceOf(const CellFace& face) {
    art::CellFace art;
    art.kind = face.kind;
    art.name = QString::fromStdString(face.name);
    art.price = face.price;
    art.band = bandOf(face);
    return art;
}

}  // namespace

CellPrints cellPrints(const MainWindow& model) {
    CellPrints prints;
    for (int i = 0; i < 40; ++i) {
        prints[static_cast<std::size_t>(i)] =
            std::make_shared<CellPrint>(CellPrint{artFaceOf(model.cellFace(i))});
    }
    return prints;
}

QString printedName(const CellPrint& print) {
    return print.face.name;
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
    art::paintAboutPage(p, rect);
}

void paintPortrait(QPainter& p, const QRectF& rect, int index) {
    art::paintPortrait(p, rect, index);
}

QImage appIcon(int size) {
    return art::renderImage(QSize(size, size), 1,
                            [](QPainter& p, const QRectF& r) { art::paintAppIcon(p, r); });
}

}  // namespace gw::view
