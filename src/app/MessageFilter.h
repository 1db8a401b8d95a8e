// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps two harmless lines of the audio back end off the terminal: with no sound server or
// device they would print at every sound.
#pragma once

namespace gw::app {

// Installs the filter; call it before QApplication is made.
void installMessageFilter();

}  // namespace gw::app
