// SPDX-License-Identifier: GPL-3.0-or-later
// gildenway-artsheet-worst OUTDIR: the worst-case sheet, at 1x and 2x (OUTDIR/worst-case@1x.png,
// OUTDIR/worst-case@2x.png). The real windows of the game at their most crowded: the board
// with every mark and six tokens on a side cell and on a corner, the longest names,
// balances and message, each card with its longest strings, and the end window. Each window
// is painted at the sheet's ratio, never scaled.
#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <cstdio>
#include <vector>

#include "WorstCase.h"
#include "app/MessageFilter.h"
#include "game/Board.h"
#include "players/player.h"
#include "view/Style.h"
#include "windows/GameEnd.h"

namespace {

struct Shot {
    QPixmap at1, at2;
};

Shot shoot(QWidget& window) {
    Shot shot;
    for (int ratio : {1, 2}) {
        QPixmap picture(window.size() * ratio);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        window.render(&picture);
        (ratio == 1 ? shot.at1 : shot.at2) = picture;
    }
    return shot;
}

// The shots in rows of at most `perRow`, on the grey of a desk.
QPixmap sheet(const std::vector<Shot>& shots, int ratio, std::size_t perRow) {
    constexpr int kGap = 16;
    std::vector<QPoint> at;
    int x = kGap, y = kGap, rowHeight = 0, width = 0;
    for (std::size_t i = 0; i < shots.size(); ++i) {
        if (i > 0 && i % perRow == 0) {
            x = kGap;
            y += rowHeight + kGap;
            rowHeight = 0;
        }
        const QSize size = shots[i].at1.size();
        at.emplace_back(x, y);
        x += size.width() + kGap;
        width = std::max(width, x);
        rowHeight = std::max(rowHeight, size.height());
    }
    QPixmap out(QSize(width, y + rowHeight + kGap) * ratio);
    out.setDevicePixelRatio(ratio);
    out.fill(QColor(0x8E, 0x88, 0x7C));
    QPainter p(&out);
    for (std::size_t i = 0; i < shots.size(); ++i) {
        p.drawPixmap(at[i], ratio == 1 ? shots[i].at1 : shots[i].at2);
    }
    return out;
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    gw::app::installMessageFilter();
    QApplication app(argc, argv);
    app.setStyleSheet(gw::view::styleSheet());
    const QStringList args = QApplication::arguments();
    if (args.size() != 2 || args[1].startsWith(QLatin1Char('-'))) {
        std::fprintf(stderr, "usage: gildenway-artsheet-worst OUTDIR\n");
        return args.size() == 2 && args[1] == QStringLiteral("--help") ? 0 : 2;
    }
    const QString dir = args[1];
    QDir().mkpath(dir);

    gw::worst::WorstCase worst;
    gw::app::Program& program = worst.program();
    gw::Windows& w = worst.run().windows();
    worst.seatSix();
    worst.crowdTheBoard();
    worst.widestBalances();
    worst.run().mainWindow().showInfo(worst.longestMessage());
    std::vector<Shot> shots;
    worst.standAllOn(16);
    shots.push_back(shoot(program.mainView()));
    worst.standAllOn(20);
    shots.push_back(shoot(program.mainView()));

    gw::player& someone = *worst.run().board().getPlayer(0);
    const std::vector<gw::Integer> values(10, -32768);
    w.cellInfo.showInfoCard(37, 8, values, 3, someone, gw::worst::kLongestCell,
                            gw::worst::wideName(1));
    worst.settle();
    shots.push_back(shoot(program.propertyCard()));
    w.cellInfo.close();
    w.trading.proposeTrade(37, someone, gw::worst::kLongestCell, gw::worst::wideName(1));
    worst.settle();
    w.trading.seeTrade(37, *worst.run().board().getPlayer(1), -32768);
    worst.settle();
    shots.push_back(shoot(program.tradingCard()));
    w.jflCard.showJFLCard("Advance to St-Laurent street");
    worst.settle();
    shots.push_back(shoot(program.jflCard()));
    w.taxCard.showTaxCard(38, someone, 32767, 1);
    worst.settle();
    shots.push_back(shoot(program.taxCard()));
    worst.run().gameEnd().Form_Load();
    worst.settle();
    shots.push_back(shoot(program.endView()));

    for (int ratio : {1, 2}) {
        const QString file = dir + QStringLiteral("/worst-case@%1x.png").arg(ratio);
        if (!sheet(shots, ratio, 2).save(file)) {
            std::fprintf(stderr, "cannot write %s\n", qPrintable(file));
            return 1;
        }
        std::printf("%s\n", qPrintable(file));
    }
    return 0;
}
