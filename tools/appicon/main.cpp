// SPDX-License-Identifier: GPL-3.0-or-later
// Writes the application icon into a hicolor icon theme folder:
//   gildenway-appicon THEMEDIR
// gives THEMEDIR/NxN/apps/gildenway.png for every size a desktop asks for, each painted at
// its own size (the small ones simplified by the painter, not scaled down from a big one),
// and THEMEDIR/scalable/apps/gildenway.svg from the same painting.
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgGenerator>
#include <array>
#include <cstdio>

#include "art/EndAbout.h"
#include "view/Pictures.h"

namespace {

constexpr std::array kSizes{16, 22, 24, 32, 48, 64, 128, 256, 512};
constexpr int kSvgSize = 256;

bool writeSvg(const QString& path) {
    QSvgGenerator svg;
    svg.setFileName(path);
    svg.setSize(QSize(kSvgSize, kSvgSize));
    svg.setViewBox(QRect(0, 0, kSvgSize, kSvgSize));
    svg.setTitle(QStringLiteral("Gildenway"));
    svg.setDescription(QStringLiteral("The Gildenway icon: a gold coin over Kestrovia"));
    QPainter painter;
    if (!painter.begin(&svg)) return false;
    painter.setRenderHint(QPainter::Antialiasing);
    gw::art::paintAppIcon(painter, QRectF(0, 0, kSvgSize, kSvgSize));
    return painter.end();
}

}  // namespace

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: gildenway-appicon THEMEDIR\n");
        return 2;
    }
    const QDir theme(QString::fromLocal8Bit(argv[1]));
    for (const int size : kSizes) {
        const QString folder = QStringLiteral("%1x%1/apps").arg(size);
        const QString path = theme.filePath(folder + QStringLiteral("/gildenway.png"));
        if (!theme.mkpath(folder) || !gw::view::appIcon(size).save(path)) {
            std::fprintf(stderr, "gildenway-appicon: cannot write %s\n", qPrintable(path));
            return 1;
        }
    }
    const QString svg = theme.filePath(QStringLiteral("scalable/apps/gildenway.svg"));
    if (!theme.mkpath(QStringLiteral("scalable/apps")) || !writeSvg(svg)) {
        std::fprintf(stderr, "gildenway-appicon: cannot write %s\n", qPrintable(svg));
        return 1;
    }
    return 0;
}
