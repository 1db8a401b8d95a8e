// SPDX-License-Identifier: GPL-3.0-or-later
// The one mapping from the pictures the windows show, by role, to the painting code of
// src/art. Every view paints through these functions, so a picture is changed in one place.
// Each paints into a rectangle in logical pixels and so stays sharp at any pixel ratio.
#pragma once

#include <QImage>
#include <QRectF>
#include <QString>
#include <array>
#include <functional>
#include <memory>

#include "ports/WindowCodes.h"

class QPainter;

namespace gw {
class MainWindow;
}

namespace gw::view {

using Paint = std::function<void(QPainter&, const QRectF&)>;

// The main window
// What a board cell prints, read once from the faces the window model gives.
struct CellPrint;
using CellPrints = std::array<std::shared_ptr<const CellPrint>, 40>;
CellPrints cellPrints(const MainWindow& model);
// The name a cell prints, which is also what it is called to a screen reader.
QString printedName(const CellPrint& print);
void paintCell(QPainter& p, const QRectF& rect, int cellId, const CellPrint& print);
void paintCentre(QPainter& p, const QRectF& rect);
void paintToken(QPainter& p, const QRectF& rect, int token);
// The owner's tab on a cell's band: the token on a disc ringed in its colour.
void paintOwnerTab(QPainter& p, const QRectF& rect, int token);
void paintDie(QPainter& p, const QRectF& rect, int face);
// A hotel or a mortgage stamp; side is true on the left and right columns of the board.
void paintHotel(QPainter& p, const QRectF& rect, bool side);
void paintMortgage(QPainter& p, const QRectF& rect, bool side);

enum class Panel { Turn, Messages, Players, Emblem };
void paintPanel(QPainter& p, const QRectF& rect, Panel panel);
void paintTurnBar(QPainter& p, const QRectF& rect);

// The set-up window
void paintStartBackground(QPainter& p, const QRectF& rect);
// The four choice pictures: the large one offers the kind, the small one shows it in force.
enum class Choice { ComputerLarge, ComputerSmall, HumanLarge, HumanSmall };
void paintChoice(QPainter& p, const QRectF& rect, Choice choice);

// The card windows
void paintPropertyCard(QPainter& p, const QRectF& rect, CardPicture picture);
void paintTradingCard(QPainter& p, const QRectF& rect, TradeFace face);
void paintJflCard(QPainter& p, const QRectF& rect);
void paintTaxCard(QPainter& p, const QRectF& rect, TaxPicture picture);

// The end and About windows
void paintEndBackground(QPainter& p, const QRectF& rect, const QString& closingLine);
void paintAboutBanner(QPainter& p, const QRectF& rect);
// The About window's page: cream stock within the teal rim of the panels.
void paintAboutBackground(QPainter& p, const QRectF& rect);
// The seven pictures under the team headings, 0 to 6.
void paintPortrait(QPainter& p, const QRectF& rect, int index);

// The application icon, square, at a size in pixels.
QImage appIcon(int size);

}  // namespace gw::view
