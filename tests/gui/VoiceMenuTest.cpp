// SPDX-License-Identifier: GPL-3.0-or-later
// File > Voice through the real menu: Enable and Mute reach the narrator, and the desktop
// voice with no audio device is silent and harmless.
#include <gtest/gtest.h>

#include <QAction>

#include "GuiRun.h"
#include "app/QtVoice.h"

namespace gw::test {
namespace {

TEST(VoiceMenu, EnableAndMuteReachTheNarrator) {
    GuiRun gui(std::make_unique<SeededRandom>(5));
    RecordedVoice voice;
    gui.run.setVoice(voice);
    view::MainWindowView& window = gui.program->mainView();
    EXPECT_FALSE(gui.run.narrator().isEnabled());
    window.action("Enable1").trigger();
    EXPECT_TRUE(gui.run.narrator().isEnabled());
    window.action("Mute1").trigger();
    EXPECT_FALSE(gui.run.narrator().isEnabled());
    EXPECT_EQ(voice.stops, 1);
}

TEST(VoiceMenu, TheDesktopVoiceWithoutADeviceIsSilent) {
    app::QtVoice voice;
    voice.say("Ann has bought Saint-Jacques");
    voice.stop();
    SUCCEED();
}

}  // namespace
}  // namespace gw::test
