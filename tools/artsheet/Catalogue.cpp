// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogue of pictures. The board's names, prices and districts are the game's own
// table, copied here so the pictures can be looked at without the game.
#include "Catalogue.h"

#include <QDir>
#include <QFile>
#include <array>

#include "art/BoardCentre.h"
#include "art/Cards.h"
#include "art/Dice.h"
#include "art/EndAbout.h"
#include "art/Marks.h"
#include "art/Palette.h"
#include "art/Panels.h"
#include "art/StartWindow.h"
#include "art/Tokens.h"

namespace gw::art {

namespace {

struct Row {
    const char* name;
    CellKind kind;
    int price;
    int district;  // 1 to 8; 9 utilities, 10 metro, 0 none
};

constexpr std::array<Row, kBoardCells> kRing = {{
    {"GO", CellKind::Go, 0, 0},
    {"Saint-Antoine", CellKind::Street, 90, 1},
    {"JFL", CellKind::Jfl, 0, 0},
    {"Saint-Jacques", CellKind::Street, 100, 1},
    {"Income Tax", CellKind::Tax, 200, 0},
    {"Outremont", CellKind::Metro, 300, 10},
    {"Wellington", CellKind::Street, 130, 2},
    {"JFL", CellKind::Jfl, 0, 0},
    {"Centre", CellKind::Street, 140, 2},
    {"Bridge", CellKind::Street, 150, 2},
    {"Jail", CellKind::Jail, 0, 0},
    {"Notre-Dame", CellKind::Street, 170, 3},
    {"Utility 1", CellKind::UtilityBulb, 200, 9},
    {"Saint-Sulpice", CellKind::Street, 180, 3},
    {"Saint-Paul", CellKind::Street, 190, 3},
    {"Guy-Concordia", CellKind::Metro, 300, 10},
    {"Saint-Laurent", CellKind::Street, 210, 4},
    {"JFL", CellKind::Jfl, 0, 0},
    {"Saint-Urbain", CellKind::Street, 220, 4},
    {"De La Gauchetiere", CellKind::Street, 230, 4},
    {"Parc Olympique", CellKind::FreeStop, 0, 0},
    {"Jarry", CellKind::Street, 250, 5},
    {"JFL", CellKind::Jfl, 0, 0},
    {"Jean Talon", CellKind::Street, 260, 5},
    {"Saint-Zotique", CellKind::Street, 270, 5},
    {"Vendome", CellKind::Metro, 300, 10},
    {"Saint-Catherine", CellKind::Street, 290, 6},
    {"Crescent", CellKind::Street, 300, 6},
    {"HQ", CellKind::UtilityTower, 200, 9},
    {"Peel", CellKind::Street, 310, 6},
    {"Police", CellKind::Police, 0, 0},
    {"Mont-Royal", CellKind::Street, 330, 7},
    {"Rachel", CellKind::Street, 350, 7},
    {"JFL", CellKind::Jfl, 0, 0},
    {"Saint-Joseph", CellKind::Street, 350, 7},
    {"Bonaventure", CellKind::Metro, 300, 10},
    {"JFL", CellKind::Jfl, 0, 0},
    {"Green", CellKind::Street, 400, 8},
    {"Luxury Tax", CellKind::Tax, 75, 0},
    {"The Boulevard", CellKind::Street, 500, 8},
}};

QColor bandOf(int district) {
    if (district >= 1 && district <= 8) return colour::districtBand(district);
    if (district == 9) return colour::utilityBand;
    if (district == 10) return colour::metroBand;
    return {};
}

template <typename F>
std::function<TextBoxes(QPainter&, const QRectF&)> noText(F f) {
    return [f](QPainter& p, const QRectF& r) {
        f(p, r);
        return TextBoxes{};
    };
}

}  // namespace

std::vector<CellFace> boardFaces() {
    std::vector<CellFace> faces;
    for (const Row& row : kRing)
        faces.push_back({row.kind, QString::fromLatin1(row.name), row.price, bandOf(row.district)});
    return faces;
}

std::vector<PictureEntry> catalogue() {
    std::vector<PictureEntry> out;
    const std::vector<CellFace> faces = boardFaces();
    for (int i = 0; i < kBoardCells; ++i) {
        const CellFace face = faces[static_cast<std::size_t>(i)];
        out.push_back({QStringLiteral("board"), QStringLiteral("cell %1").arg(i), boardCellSize(i),
                       [face, i](QPainter& p, const QRectF& r) {
                           return paintBoardCell(p, r, face, boardCellEdge(i));
                       }});
    }
    out.push_back(
        {QStringLiteral("board"), QStringLiteral("centre"), {442, 439}, paintBoardCentre});
    out.push_back({QStringLiteral("board"), QStringLiteral("hotel"), {12, 21}, noText(paintHotel)});
    out.push_back(
        {QStringLiteral("board"), QStringLiteral("hotel side"), {21, 12}, noText(paintHotel)});
    out.push_back(
        {QStringLiteral("board"), QStringLiteral("mortgaged"), {29, 42}, paintMortgageStamp});
    out.push_back(
        {QStringLiteral("board"), QStringLiteral("mortgaged side"), {42, 29}, paintMortgageStamp});
    for (int v = 1; v <= 6; ++v)
        out.push_back({QStringLiteral("board"),
                       QStringLiteral("die %1").arg(v),
                       {55, 47},
                       noText([v](QPainter& p, const QRectF& r) { paintDieFace(p, r, v); })});

    for (int t = 0; t < kTokenCount; ++t) {
        for (int s : {64, 56, 48, 24}) {
            out.push_back({QStringLiteral("tokens"),
                           QStringLiteral("%1 %2").arg(tokenName(t)).arg(s),
                           {s, s},
                           noText([t](QPainter& p, const QRectF& r) { paintToken(p, r, t); })});
        }
        out.push_back({QStringLiteral("tokens"),
                       QStringLiteral("%1 10x8").arg(t),
                       {10, 8},
                       noText([t](QPainter& p, const QRectF& r) { paintToken(p, r, t); })});
    }

    out.push_back(
        {QStringLiteral("panels"), QStringLiteral("Picture2 turn"), {182, 120}, paintTurnPanel});
    out.push_back({QStringLiteral("panels"),
                   QStringLiteral("Picture3 messages"),
                   {189, 196},
                   paintMessagePanel});
    out.push_back({QStringLiteral("panels"),
                   QStringLiteral("Picture4 players"),
                   {182, 191},
                   paintPlayersPanel});
    out.push_back({QStringLiteral("panels"),
                   QStringLiteral("Picture5 emblem"),
                   {182, 120},
                   paintEmblemPanel});
    out.push_back(
        {QStringLiteral("panels"), QStringLiteral("turn bar"), {202, 27}, noText(paintTurnBar)});
    out.push_back({QStringLiteral("panels"),
                   QStringLiteral("turn bar shown"),
                   {147, 23},
                   noText(paintTurnBar)});

    out.push_back(
        {QStringLiteral("start"), QStringLiteral("background"), {600, 400}, paintStartBackground});
    for (PlayerType type : {PlayerType::Computer, PlayerType::Human}) {
        for (bool large : {true, false}) {
            out.push_back({QStringLiteral("start"),
                           QStringLiteral("%1 %2")
                               .arg(type == PlayerType::Computer ? "Computer" : "Human")
                               .arg(large ? "large" : "small"),
                           {154, 50},
                           [type, large](QPainter& p, const QRectF& r) {
                               return paintPlayerType(p, r, type, large);
                           }});
        }
    }

    for (int f = 0; f < kPropertyCardFaces; ++f)
        out.push_back(
            {QStringLiteral("cards"), QStringLiteral("property %1").arg(f), kPropertyCardSize,
             [f](QPainter& p, const QRectF& r) { return paintPropertyCardFace(p, r, f); }});
    out.push_back(
        {QStringLiteral("cards"), QStringLiteral("trade owner"), kTradeCardSize,
         [](QPainter& p, const QRectF& r) { return paintTradeCard(p, r, TradeSide::Owner); }});
    out.push_back(
        {QStringLiteral("cards"), QStringLiteral("trade buyer"), kTradeCardSize,
         [](QPainter& p, const QRectF& r) { return paintTradeCard(p, r, TradeSide::Buyer); }});
    out.push_back({QStringLiteral("cards"), QStringLiteral("JFL"), kNoticeCardSize, paintJflCard});
    out.push_back(
        {QStringLiteral("cards"), QStringLiteral("income tax"), kNoticeCardSize,
         [](QPainter& p, const QRectF& r) { return paintTaxCard(p, r, TaxKind::Income); }});
    out.push_back(
        {QStringLiteral("cards"), QStringLiteral("luxury tax"), kNoticeCardSize,
         [](QPainter& p, const QRectF& r) { return paintTaxCard(p, r, TaxKind::Luxury); }});

    out.push_back({QStringLiteral("end-about"),
                   QStringLiteral("end"),
                   {600, 491},
                   [](QPainter& p, const QRectF& r) {
                       return paintEndBackground(p, r, QStringLiteral("The city is yours."));
                   }});
    out.push_back({QStringLiteral("end-about"),
                   QStringLiteral("about banner"),
                   {708, 185},
                   paintAboutBanner});
    for (int i = 0; i < kPortraitCount; ++i)
        out.push_back({QStringLiteral("end-about"),
                       QStringLiteral("team %1").arg(i),
                       {97, 89},
                       noText([i](QPainter& p, const QRectF& r) { paintPortrait(p, r, i); })});
    for (int s : {256, 128, 64, 48, 32, 16})
        out.push_back({QStringLiteral("end-about"),
                       QStringLiteral("icon %1").arg(s),
                       {s, s},
                       noText(paintAppIcon)});
    return out;
}

void prepareOffscreenQt() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        const QString dir = QDir::tempPath() + QStringLiteral("/gildenway-art-runtime");
        QDir().mkpath(dir);
        QFile::setPermissions(dir, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", dir.toLocal8Bit());
    }
}

}  // namespace gw::art
