// SPDX-License-Identifier: GPL-3.0-or-later
// The picture tests paint through QtGui, which needs an application; without a display the
// offscreen platform serves.
#include <gtest/gtest.h>

#include <QGuiApplication>

#include "Catalogue.h"

int main(int argc, char** argv) {
    gw::art::prepareOffscreenQt();
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
