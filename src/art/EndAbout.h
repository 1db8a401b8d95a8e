// SPDX-License-Identifier: GPL-3.0-or-later
// The end-of-game window's background, the About banner and the team emblems.
#pragma once

#include <QRectF>

#include "art/Text.h"

class QPainter;

namespace gw::art {

// One for each member of the team.
constexpr int kPortraitCount = 10;

// Drawn for 600 x 491: "Game Over", a ribbon for the winner's line at 96,104 (265 x 17) and
// a podium for the winner's token at 264,168 (97 x 81); the buttons' column at x 416 stays plain.
// The end window's page; closingLine is printed under the podium.
TextBoxes paintEndBackground(QPainter& p, const QRectF& rect, const QString& closingLine);

// Drawn for 708 x 185: "Gildenway" and "Kestrovia" over the skyline.
TextBoxes paintAboutBanner(QPainter& p, const QRectF& rect);

// The About window's page, drawn for 715 x 830: paper, with the city along its foot under Ok.
void paintAboutPage(QPainter& p, const QRectF& rect);

// One of ten friendly abstract faces (about 97 x 89), index 0 to 9.
void paintPortrait(QPainter& p, const QRectF& rect, int index);

// The application icon, at any square size.
void paintAppIcon(QPainter& p, const QRectF& rect);

}  // namespace gw::art
