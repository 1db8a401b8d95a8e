// SPDX-License-Identifier: GPL-3.0-or-later
// Writing a signal as a 16-bit PCM mono WAV file at the generator's sample rate.
#pragma once

#include <filesystem>

#include "Signal.h"

namespace gw::soundgen {

// Samples are rounded to 16 bits and clamped to full scale. Throws std::runtime_error if
// the file cannot be written.
void writeWav(const std::filesystem::path& path, const Signal& signal);

}  // namespace gw::soundgen
