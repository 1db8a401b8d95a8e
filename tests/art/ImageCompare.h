// SPDX-License-Identifier: GPL-3.0-or-later
// Small pixel measures for the picture tests.
#pragma once

#include <QImage>
#include <cmath>
#include <cstdlib>

namespace gw::art::test {

// Mean absolute difference per channel (0 to 255) between two images of one size, with
// transparent pixels taken as the board's cream so a shape and its absence differ.
inline double meanDifference(const QImage& a, const QImage& b) {
    const QImage x = a.convertToFormat(QImage::Format_ARGB32);
    const QImage y = b.convertToFormat(QImage::Format_ARGB32);
    if (x.size() != y.size()) return 255;
    auto flat = [](QRgb c) {
        const int al = qAlpha(c);
        const int bg[3] = {0xF3, 0xEB, 0xD3};
        return std::array<int, 3>{(qRed(c) * al + bg[0] * (255 - al)) / 255,
                                  (qGreen(c) * al + bg[1] * (255 - al)) / 255,
                                  (qBlue(c) * al + bg[2] * (255 - al)) / 255};
    };
    double sum = 0;
    for (int j = 0; j < x.height(); ++j) {
        for (int i = 0; i < x.width(); ++i) {
            const auto p = flat(x.pixel(i, j));
            const auto q = flat(y.pixel(i, j));
            for (int c = 0; c < 3; ++c)
                sum += std::abs(p[static_cast<std::size_t>(c)] - q[static_cast<std::size_t>(c)]);
        }
    }
    return sum / (3.0 * x.width() * x.height());
}

// How many distinct colours an image holds, counting up to a limit.
inline int distinctColours(const QImage& image, int limit = 16) {
    const QImage x = image.convertToFormat(QImage::Format_ARGB32);
    std::vector<QRgb> seen;
    for (int j = 0; j < x.height(); ++j)
        for (int i = 0; i < x.width(); ++i) {
            const QRgb c = x.pixel(i, j);
            if (std::find(seen.begin(), seen.end(), c) == seen.end()) {
                seen.push_back(c);
                if (static_cast<int>(seen.size()) >= limit) return limit;
            }
        }
    return static_cast<int>(seen.size());
}

}  // namespace gw::art::test
