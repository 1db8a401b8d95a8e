// Writes the application icon as a PNG: gildenway-appicon OUT.png SIZE
#include <QGuiApplication>
#include <cstdio>

#include "view/Pictures.h"

int main(int argc, char** argv) {
    QGuiApplication app(argc, argv);
    if (argc != 3) {
        std::fprintf(stderr, "usage: gildenway-appicon OUT.png SIZE\n");
        return 2;
    }
    const int size = std::atoi(argv[2]);
    if (size < 16 || size > 1024 ||
        !gw::view::appIcon(size).save(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "gildenway-appicon: cannot write %s\n", argv[1]);
        return 1;
    }
    return 0;
}
