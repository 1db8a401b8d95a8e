// SPDX-License-Identifier: GPL-3.0-or-later
// The look of the widgets that are not pictures: the buttons, text entries and printed
// labels, in the palette of the pictures.
#pragma once

#include <QFont>
#include <QString>

#include "view/Places.h"

namespace gw::view {

// The application's style sheet: teal buttons with cream captions, cream entries.
QString styleSheet();
QFont controlFont(ControlKind kind, int pixelSize);

}  // namespace gw::view
