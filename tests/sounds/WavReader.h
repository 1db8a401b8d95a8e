// SPDX-License-Identifier: GPL-3.0-or-later
// The tests' own WAV reader, written apart from the generator's writer so a fault in one
// is not mirrored by the other. It reads any chunk layout and reports what it found.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace gw::soundtest {

struct WavFile {
    std::string error;  // empty when the file parsed
    std::uint16_t format = 0;
    std::uint16_t channels = 0;
    std::uint32_t sampleRate = 0;
    std::uint16_t bitsPerSample = 0;
    std::vector<std::int16_t> samples;  // only filled for 16-bit data

    double seconds() const {
        return sampleRate == 0 ? 0.0 : static_cast<double>(samples.size()) / sampleRate;
    }
};

WavFile readWav(const std::filesystem::path& path);

}  // namespace gw::soundtest
