// SPDX-License-Identifier: GPL-3.0-or-later
// gildenway-artsheet OUTDIR: writes contact sheets of every picture, one per window, at 1x
// and 2x (OUTDIR/board@1x.png, OUTDIR/board@2x.png, ...), and the board assembled from its
// cells. Each picture is painted at the sheet's ratio, never scaled.
#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QMap>
#include <QPainter>
#include <cstdio>
#include <string_view>

#include "Catalogue.h"
#include "art/BoardCentre.h"
#include "art/Palette.h"
#include "art/Render.h"

namespace {

using gw::art::PictureEntry;

const QColor kDesk(0x8E, 0x88, 0x7C);

QImage sheetOf(const std::vector<const PictureEntry*>& entries, qreal dpr, int width) {
    constexpr int kGap = 14;
    constexpr int kLabel = 14;
    // First pass places the pictures in rows; the second paints them.
    struct Placed {
        const PictureEntry* entry;
        QPointF at;
    };
    std::vector<Placed> placed;
    int x = kGap, y = kGap, rowHeight = 0;
    for (const PictureEntry* e : entries) {
        const int w = std::max(e->size.width(), 40);
        if (x + w > width - kGap && x > kGap) {
            x = kGap;
            y += rowHeight + kLabel + kGap;
            rowHeight = 0;
        }
        placed.push_back({e, QPointF(x, y)});
        x += w + kGap;
        rowHeight = std::max(rowHeight, e->size.height());
    }
    const int height = y + rowHeight + kLabel + kGap;
    return gw::art::renderImage(QSize(width, height), dpr, [&](QPainter& p, const QRectF& r) {
        p.fillRect(r, kDesk);
        QFont labelFont(QStringLiteral("DejaVu Sans"));
        labelFont.setPixelSize(9);
        for (const Placed& pl : placed) {
            const QRectF target(pl.at, QSizeF(pl.entry->size));
            p.drawPixmap(pl.at, gw::art::renderPicture(pl.entry->size, dpr,
                                                       [&](QPainter& q, const QRectF& rr) {
                                                           pl.entry->paint(q, rr);
                                                       }));
            p.setFont(labelFont);
            p.setPen(QColor(0xF6, 0xF1, 0xE4));
            p.drawText(QRectF(target.left(), target.bottom() + 1,
                              std::max(target.width(), 40.0) + 10, kLabel),
                       Qt::AlignLeft | Qt::AlignTop, pl.entry->name);
        }
    });
}

// The board as the main window lays it out, cells round a teal rim and the centre inside.
QImage assembledBoard(const std::vector<PictureEntry>& all, qreal dpr) {
    constexpr int kSide = 630;
    std::vector<QPointF> at(gw::art::kBoardCells);
    qreal x = kSide - 81, y = kSide - 84;
    at[0] = QPointF(x, y);
    for (int i = 1; i <= 10; ++i) {
        x -= gw::art::boardCellSize(i).width();
        at[static_cast<std::size_t>(i)] = QPointF(x, y);
    }
    for (int i = 11; i <= 20; ++i) {
        y -= gw::art::boardCellSize(i).height();
        at[static_cast<std::size_t>(i)] = QPointF(0, y);
    }
    x = gw::art::boardCellSize(20).width();
    for (int i = 21; i <= 30; ++i) {
        at[static_cast<std::size_t>(i)] = QPointF(x, 0);
        x += gw::art::boardCellSize(i).width();
    }
    y = gw::art::boardCellSize(30).height();
    for (int i = 31; i <= 39; ++i) {
        at[static_cast<std::size_t>(i)] = QPointF(kSide - 81, y);
        y += gw::art::boardCellSize(i).height();
    }
    return gw::art::renderImage(
        QSize(kSide + 24, kSide + 24), dpr, [&](QPainter& p, const QRectF& r) {
            p.fillRect(r, gw::art::colour::teal);
            p.translate(12, 12);
            for (int i = 0; i < gw::art::kBoardCells; ++i) {
                const PictureEntry& e = all[static_cast<std::size_t>(i)];
                p.drawPixmap(
                    at[static_cast<std::size_t>(i)],
                    gw::art::renderPicture(e.size, dpr,
                                           [&](QPainter& q, const QRectF& rr) { e.paint(q, rr); }));
            }
            p.drawPixmap(
                QPointF(95, 95),
                gw::art::renderPicture(QSize(442, 439), dpr, [](QPainter& q, const QRectF& rr) {
                    gw::art::paintBoardCentre(q, rr);
                }));
        });
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::string_view(argv[1]) == "--help") {
        std::puts("usage: gildenway-artsheet OUTDIR");
        return 0;
    }
    gw::art::prepareOffscreenQt();
    QGuiApplication app(argc, argv);
    if (argc != 2 || std::string_view(argv[1]).starts_with("-")) {
        std::fprintf(stderr, "usage: gildenway-artsheet OUTDIR\n");
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    if (!out.exists() && !QDir().mkpath(out.path())) {
        std::fprintf(stderr, "cannot make %s\n", argv[1]);
        return 1;
    }
    const std::vector<PictureEntry> all = gw::art::catalogue();
    QMap<QString, std::vector<const PictureEntry*>> groups;
    QStringList order;
    for (const PictureEntry& e : all) {
        if (!groups.contains(e.group)) order << e.group;
        groups[e.group].push_back(&e);
    }
    bool ok = true;
    for (qreal dpr : {1.0, 2.0}) {
        const QString suffix = QStringLiteral("@%1x.png").arg(static_cast<int>(dpr));
        for (const QString& g : order) {
            const int width = g == QStringLiteral("tokens") ? 820 : 1260;
            ok &= sheetOf(groups[g], dpr, width).save(out.filePath(g + suffix));
        }
        ok &=
            assembledBoard(all, dpr).save(out.filePath(QStringLiteral("board-assembled") + suffix));
    }
    if (!ok) std::fprintf(stderr, "could not write every sheet\n");
    return ok ? 0 : 1;
}
