// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a sound file can be played: a readable RIFF/WAVE file of PCM samples whose data
// is all there. A file that fails is left silent from the start, so the audio back end
// never complains about it at every play.
#pragma once

#include <QString>

namespace gw::app {

bool isPlayableWav(const QString& path);

}  // namespace gw::app
