// SPDX-License-Identifier: GPL-3.0-or-later
// A printed label that keeps its whole text in view: it sets the text as TextFit chooses
// and paints it with exactly that font and those flags.
#pragma once

#include <QLabel>

#include "view/TextFit.h"

namespace gw::view {

class FitLabel : public QLabel {
    Q_OBJECT
public:
    FitLabel(QWidget* parent, int largestPx, bool mayWrap);

    // Sets the caption and chooses its type and wrapping for the label's box.
    void setCaption(const QString& caption);
    // Chooses them again, after the box has changed.
    void refit();
    // The type's largest size and its floor, as the window is scaled.
    void setSizes(int largestPx, int floorPx) {
        largestPx_ = largestPx;
        floorPx_ = floorPx;
        refit();
    }
    void setMayWrap(bool mayWrap) {
        mayWrap_ = mayWrap;
        refit();
    }
    int textFlags() const { return fit_.flags; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int largestPx_;
    bool mayWrap_;
    int floorPx_ = kTextFloorPx;
    TextFit fit_;
};

}  // namespace gw::view
