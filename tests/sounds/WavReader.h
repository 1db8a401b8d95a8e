// SPDX-License-Identifier: GPL-3.0-or-later
// The tests' own WAV reader, written apart from the generator's writer so a fault in one
// is not mirrored by the other. It reads any chunk layout and reports what it found.
#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <utility>
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

namespace detail {

inline std::uint32_t littleEndian(const std::vector<unsigned char>& bytes, std::size_t at,
                                  int count) {
    std::uint32_t value = 0;
    for (int i = count - 1; i >= 0; --i) value = (value << 8) | bytes[at + i];
    return value;
}

inline bool hasTag(const std::vector<unsigned char>& bytes, std::size_t at, const char* tag) {
    return bytes.size() >= at + 4 && std::equal(tag, tag + 4, bytes.begin() + at);
}

inline WavFile failed(std::string reason) {
    WavFile wav;
    wav.error = std::move(reason);
    return wav;
}

}  // namespace detail

inline WavFile readWav(const std::filesystem::path& path) {
    using namespace detail;
    WavFile wav;
    std::ifstream in(path, std::ios::binary);
    if (!in) return failed("cannot open " + path.string());
    const std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(in), {}};

    if (!hasTag(bytes, 0, "RIFF") || !hasTag(bytes, 8, "WAVE")) return failed("not RIFF/WAVE");
    if (littleEndian(bytes, 4, 4) + 8 != bytes.size()) return failed("RIFF size is wrong");

    bool sawFormat = false, sawData = false;
    for (std::size_t at = 12; at + 8 <= bytes.size();) {
        const std::uint32_t size = littleEndian(bytes, at + 4, 4);
        const std::size_t body = at + 8;
        if (body + size > bytes.size()) return failed("chunk runs past the end");
        if (hasTag(bytes, at, "fmt ") && size >= 16) {
            wav.format = static_cast<std::uint16_t>(littleEndian(bytes, body, 2));
            wav.channels = static_cast<std::uint16_t>(littleEndian(bytes, body + 2, 2));
            wav.sampleRate = littleEndian(bytes, body + 4, 4);
            wav.bitsPerSample = static_cast<std::uint16_t>(littleEndian(bytes, body + 14, 2));
            sawFormat = true;
        } else if (hasTag(bytes, at, "data")) {
            if (!sawFormat) return failed("data before fmt");
            if (wav.bitsPerSample == 16) {
                for (std::size_t i = 0; i + 1 < size; i += 2) {
                    wav.samples.push_back(
                        static_cast<std::int16_t>(littleEndian(bytes, body + i, 2)));
                }
            }
            sawData = true;
        }
        at = body + size + (size % 2);  // chunks are padded to an even length
    }
    if (!sawFormat || !sawData) return failed("missing fmt or data chunk");
    return wav;
}

}  // namespace gw::soundtest
