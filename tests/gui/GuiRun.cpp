// SPDX-License-Identifier: GPL-3.0-or-later
#include "GuiRun.h"

#include <QDir>
#include <QPainter>
#include <QPixmap>

namespace gw::test {

void GuiRun::seatAnnAndBob() {
    program->dispatch().click([this] {
        GameStart& start = run.gameStart();
        for (const char* name : {"Ann", "Bob"}) {
            start.NickName_Change(name);
            start.Token_Click(name[0] == 'A' ? 1 : 2);
            start.NickName_Change(name);
            start.Command1_Click();
        }
        start.Command2_Click();
    });
}

void GuiRun::seatAnnAndAComputer() {
    GameStart& start = run.gameStart();
    start.NickName_Change("Ann");
    start.Token_Click(0);
    start.Command1_Click();
    start.NickName_Change("Robot");  // the entry's name is refused twice, even for a computer
    start.Image1_Click();
    start.Token_Click(1);
    start.Command1_Click();
    start.Command2_Click();
    settle();
}

void savePictures(QWidget& window, const std::string& name) {
    const QString dir = QDir::tempPath() + QStringLiteral("/gildenway-gui");
    QDir().mkpath(dir);
    const QString base = dir + QLatin1Char('/') + QString::fromStdString(name);
    window.grab().save(base + QStringLiteral("@1x.png"));
    // The same window painted at twice the pixel ratio, as on a high-density screen.
    QPixmap twice(window.size() * 2);
    twice.setDevicePixelRatio(2);
    twice.fill(Qt::transparent);
    window.render(&twice);
    twice.save(base + QStringLiteral("@2x.png"));
}

}  // namespace gw::test
