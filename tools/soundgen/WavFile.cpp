// SPDX-License-Identifier: GPL-3.0-or-later
// The RIFF/WAVE layout, written byte by byte in little-endian order whatever the machine.
#include "WavFile.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <stdexcept>
#include <string_view>

namespace gw::soundgen {

namespace {

class LittleEndian {
public:
    explicit LittleEndian(std::ofstream& out) : out_(out) {}

    void tag(std::string_view fourChars) { out_.write(fourChars.data(), 4); }
    void u16(std::uint16_t value) { bytes(value, 2); }
    void u32(std::uint32_t value) { bytes(value, 4); }

private:
    void bytes(std::uint32_t value, int count) {
        for (int i = 0; i < count; ++i) out_.put(static_cast<char>((value >> (8 * i)) & 0xFF));
    }

    std::ofstream& out_;
};

}  // namespace

void writeWav(const std::filesystem::path& path, const Signal& signal) {
    constexpr std::uint16_t kChannels = 1;
    constexpr std::uint16_t kBits = 16;
    constexpr std::uint16_t kBlockAlign = kChannels * kBits / 8;
    const auto dataBytes = static_cast<std::uint32_t>(signal.size() * kBlockAlign);

    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file) throw std::runtime_error("cannot open " + path.string());
    LittleEndian out(file);
    out.tag("RIFF");
    out.u32(36 + dataBytes);
    out.tag("WAVE");
    out.tag("fmt ");
    out.u32(16);
    out.u16(1);  // integer PCM
    out.u16(kChannels);
    out.u32(kSampleRate);
    out.u32(kSampleRate * kBlockAlign);
    out.u16(kBlockAlign);
    out.u16(kBits);
    out.tag("data");
    out.u32(dataBytes);
    for (const float sample : signal) {
        const double scaled = std::clamp(std::round(sample * 32767.0), -32768.0, 32767.0);
        out.u16(static_cast<std::uint16_t>(static_cast<std::int16_t>(scaled)));
    }
    if (!file) throw std::runtime_error("cannot write " + path.string());
}

}  // namespace gw::soundgen
