// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/WindowView.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QShortcut>

#include "view/Keys.h"

namespace gw::view {

WindowView::WindowView(Dispatch& dispatch, const QString& title, QSize client,
                       std::span<const Place> places, Paint background)
    : QWidget(nullptr),
      dispatch_(dispatch),
      background_(new PictureWidget(this, std::move(background))),
      controls_(*this, places) {
    setWindowTitle(title);
    setFixedSize(client);
    background_->setGeometry(0, 0, client.width(), client.height());
    background_->lower();
    // Escape is the close box of a window that offers no button to leave by.
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this, [this] {
        if (onCloseBox_ && !hasOpenButton(*this)) dispatch_.click(onCloseBox_);
    });
}

void WindowView::onClicked(std::string_view name, std::function<void()> handler) {
    if (QAbstractButton* b = controls_.button(name)) {
        connect(b, &QAbstractButton::clicked, this,
                [this, handler = std::move(handler)] { dispatch_.click(handler); });
    }
}

QSize WindowView::frameSize() const {
    const QWidget* measured = this;
    if (frameGeometry().size() == size() && parentWidget()) measured = parentWidget()->window();
    return size() + measured->frameGeometry().size() - measured->size();
}

void WindowView::followVisibility(bool visible) {
    if (visible == isVisible()) return;
    if (visible && placer_) move(placer_(frameSize()));
    setVisible(visible);
    if (visible) raise();
}

void WindowView::closeEvent(QCloseEvent* event) {
    // The model decides whether the window goes; refresh then hides it.
    event->ignore();
    if (onCloseBox_) dispatch_.click(onCloseBox_);
}

}  // namespace gw::view
