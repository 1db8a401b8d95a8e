// SPDX-License-Identifier: GPL-3.0-or-later
// The set-up window, the end window and the About window.
#pragma once

#include <array>

#include "view/WindowView.h"
#include "windows/GameStart.h"

namespace gw {
class GameEnd;
class About_Help;
}  // namespace gw

namespace gw::view {

class GameStartView final : public WindowView {
    Q_OBJECT
public:
    GameStartView(Dispatch& dispatch, GameStart& model);
    void refresh() override;

    PictureWidget& token(int index) { return *tokens_[static_cast<std::size_t>(index)]; }
    // Image1 to Image4 by their number.
    PictureWidget& image(int number) { return *images_[static_cast<std::size_t>(number - 1)]; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    GameStart& model_;
    std::array<PictureWidget*, 4> images_{};
    std::array<PictureWidget*, kTokenControls> tokens_{};
};

class GameEndView final : public WindowView {
    Q_OBJECT
public:
    GameEndView(Dispatch& dispatch, GameEnd& model);
    void refresh() override;

private:
    GameEnd& model_;
    PictureWidget* winner_;
};

class AboutView final : public WindowView {
    Q_OBJECT
public:
    AboutView(Dispatch& dispatch, About_Help& model);
    void refresh() override;
    // The portrait over the member's name label, or null.
    const PictureWidget* portrait(std::string_view name) const;

private:
    About_Help& model_;
};

}  // namespace gw::view
