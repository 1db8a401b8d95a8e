// SPDX-License-Identifier: GPL-3.0-or-later
// The GUI tests' main: one QApplication for all, on the offscreen platform unless a
// display is chosen, with the program's style sheet.
#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QStandardPaths>

#include "app/MessageFilter.h"
#include "view/Style.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
        const QString dir = QDir::tempPath() + QStringLiteral("/gildenway-gui-tests");
        QDir().mkpath(dir);
        QFile::setPermissions(
            dir, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", dir.toLocal8Bit());
    }
    gw::app::installMessageFilter();
    ::testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    app.setStyleSheet(gw::view::styleSheet());
    return RUN_ALL_TESTS();
}
