// SPDX-License-Identifier: GPL-3.0-or-later
// The About window gives every member a face of their own and uses its whole height.
#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QLabel>
#include <set>
#include <vector>

#include "GuiRun.h"
#include "art/Render.h"
#include "view/Pictures.h"

namespace gw::test {
namespace {

struct Member {
    std::string name;
    QRect portrait;
    QRect label;
};

std::vector<Member> membersOf(app::Program& p, const About_Help& model) {
    std::vector<Member> out;
    model.forEachMember([&](std::string_view name, const Control&) {
        const QWidget* portrait = p.aboutView().portrait(name);
        const QWidget* label = p.aboutView().controls().widget(name);
        if (portrait == nullptr || label == nullptr) {
            ADD_FAILURE() << "no portrait or label for " << name;
            return;
        }
        out.push_back({std::string(name), portrait->geometry(), label->geometry()});
    });
    return out;
}

TEST(AboutLayout, EveryNameHasItsOwnPortraitAndTheTeamFillsTheWindow) {
    GuiRun gui(std::make_unique<SeededRandom>(5));
    app::Program& p = *gui.program;
    const std::vector<Member> members = membersOf(p, gui.run.about());
    ASSERT_EQ(members.size(), 10u);
    const QRect window = p.aboutView().rect();
    int lowest = 0;
    for (std::size_t i = 0; i < members.size(); ++i) {
        const Member& m = members[i];
        SCOPED_TRACE(m.name);
        EXPECT_TRUE(window.contains(m.portrait));
        EXPECT_TRUE(window.contains(m.label));
        // The portrait stands right over its own name.
        EXPECT_LE(m.portrait.bottom(), m.label.top());
        EXPECT_LE(m.label.top() - m.portrait.bottom(), 8);
        EXPECT_NEAR(m.portrait.center().x(), m.label.center().x(), 2);
        for (std::size_t j = i + 1; j < members.size(); ++j) {
            const Member& other = members[j];
            EXPECT_FALSE(m.portrait.intersects(other.portrait)) << "and " << other.name;
            EXPECT_FALSE(m.portrait.intersects(other.label)) << "and " << other.name;
            EXPECT_FALSE(m.label.intersects(other.label)) << "and " << other.name;
            EXPECT_FALSE(m.label.intersects(other.portrait)) << "and " << other.name;
        }
        // The name shows whole under its portrait, in the font it is drawn with.
        const auto* label = qobject_cast<const QLabel*>(p.aboutView().controls().widget(m.name));
        ASSERT_NE(label, nullptr);
        EXPECT_LE(QFontMetrics(label->font()).horizontalAdvance(label->text()), label->width());
        lowest = std::max(lowest, m.label.bottom());
    }
    // No empty lower third: the team reaches down into it, and nothing covers Ok.
    EXPECT_GT(lowest, window.height() * 2 / 3);
    const QWidget* ok = p.aboutView().controls().widget("Command1");
    ASSERT_NE(ok, nullptr);
    for (const Member& m : members) {
        EXPECT_FALSE(ok->geometry().intersects(m.portrait)) << m.name;
        EXPECT_FALSE(ok->geometry().intersects(m.label)) << m.name;
    }
    savePictures(p.aboutView(), "about");
}

TEST(AboutLayout, TheTenPortraitsAreTenDifferentFaces) {
    std::set<QByteArray> seen;
    for (int i = 0; i < 10; ++i) {
        const QImage face = art::renderImage(
            QSize(97, 89), 1, [i](QPainter& p, const QRectF& r) { view::paintPortrait(p, r, i); });
        seen.insert(QByteArray(reinterpret_cast<const char*>(face.constBits()),
                               static_cast<qsizetype>(face.sizeInBytes())));
    }
    EXPECT_EQ(seen.size(), 10u);
}

}  // namespace
}  // namespace gw::test
