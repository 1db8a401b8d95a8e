// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of every picture: card stock, ink, the teal rim with its gold accent, and the
// band colours shared by the board cells and the property cards.
#pragma once

#include <QColor>

namespace gw::art::colour {

inline const QColor cream{0xF3, 0xEB, 0xD3};
inline const QColor creamShade{0xE4, 0xD8, 0xB8};
inline const QColor paper{0xFB, 0xF6, 0xE7};  // a lighter well for text written over a picture
inline const QColor ink{0x2A, 0x2A, 0x2E};
inline const QColor inkSoft{0x5A, 0x56, 0x50};
inline const QColor teal{0x1F, 0x5C, 0x5A};
inline const QColor tealDeep{0x14, 0x40, 0x3F};
inline const QColor tealLight{0x6E, 0x9E, 0x98};
inline const QColor gold{0xC9, 0xA2, 0x27};
inline const QColor goldLight{0xE8, 0xCB, 0x6A};
inline const QColor goldDeep{0x8C, 0x6D, 0x12};
inline const QColor moneyPlus{0x2E, 0x7D, 0x32};
inline const QColor moneyMinus{0xC6, 0x28, 0x28};
inline const QColor ivory{0xFA, 0xF4, 0xE2};
inline const QColor water{0x9C, 0xC4, 0xC8};
inline const QColor park{0xA9, 0xC9, 0x8E};

inline const QColor utilityBand{255, 182, 182};
inline const QColor metroBand{176, 182, 234};

// The band of districts 1 to 8; anything else gets the paper shade.
inline QColor districtBand(int district) {
    switch (district) {
        case 1:
            return {236, 194, 223};
        case 2:
            return {197, 247, 211};
        case 3:
            return {212, 169, 212};
        case 4:
            return {255, 212, 169};
        case 5:
            return {255, 169, 169};
        case 6:
            return {255, 255, 169};
        case 7:
            return {170, 215, 188};
        case 8:
            return {174, 186, 218};
        default:
            return creamShade;
    }
}

// The same colour with another alpha, for shadows and washes.
inline QColor withAlpha(QColor c, int alpha) {
    c.setAlpha(alpha);
    return c;
}

}  // namespace gw::art::colour
