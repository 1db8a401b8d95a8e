// SPDX-License-Identifier: GPL-3.0-or-later
// What the small windows share: a fixed client area with a title, a background picture
// under everything, the named controls of the window's table, the close box passed on to
// the model, and visibility that follows the model's.
#pragma once

#include <QWidget>
#include <functional>

#include "view/ControlSet.h"
#include "view/Dispatch.h"
#include "view/PictureWidget.h"

namespace gw::view {

class WindowView : public QWidget {
    Q_OBJECT
public:
    WindowView(Dispatch& dispatch, const QString& title, QSize client,
               std::span<const Place> places, Paint background);

    // Brings every widget to the model's state, then shows or hides the window.
    virtual void refresh() = 0;
    const ControlSet& controls() const { return controls_; }
    PictureWidget& backgroundPicture() { return *background_; }
    // Chooses where the window's frame opens, each time it comes up; given the frame's size.
    void setPlacer(std::function<QPoint(QSize)> placer) { placer_ = std::move(placer); }
    // The window with its frame: the frame's margins are those of the owner until the
    // window system has told them.
    QSize frameSize() const;

protected:
    // What the window's own close box does; by default nothing but staying up.
    void setOnCloseBox(std::function<void()> handler) { onCloseBox_ = std::move(handler); }
    // Connects a button of the table to a handler run through the dispatch.
    void onClicked(std::string_view name, std::function<void()> handler);
    void followVisibility(bool visible);
    void closeEvent(QCloseEvent* event) override;

    Dispatch& dispatch_;
    PictureWidget* background_;
    ControlSet controls_;

private:
    std::function<void()> onCloseBox_;
    std::function<QPoint(QSize)> placer_;
};

}  // namespace gw::view
