// SPDX-License-Identifier: GPL-3.0-or-later
// Card faces: property cards, the two faces of a trade card, the JFL card and the tax
// cards. The program writes names and sums over them; the faces carry the printed captions
// and leave the written places and the button strips clear.
#pragma once

#include <QColor>
#include <QRectF>
#include <QSize>

#include "art/Text.h"

class QPainter;

namespace gw::art {

inline constexpr QSize kPropertyCardSize{201, 299};
inline constexpr QSize kTradeCardSize{201, 299};
inline constexpr QSize kNoticeCardSize{223, 295};
constexpr int kPropertyCardFaces = 12;

enum class PropertyCardKind { Street, UtilityBulb, UtilityTower, Metro };
enum class TradeSide { Owner, Buyer };
enum class TaxKind { Income, Luxury };

// A property card of a kind with its band colour; title is printed only on utility and
// metro cards, whose names are fixed.
TextBoxes paintPropertyCard(QPainter& p, const QRectF& rect, PropertyCardKind kind,
                            const QColor& band);
// Face 0 to 11 of the card window: the eight districts, district 1 again, the two
// utilities and the metro.
TextBoxes paintPropertyCardFace(QPainter& p, const QRectF& rect, int face);

TextBoxes paintTradeCard(QPainter& p, const QRectF& rect, TradeSide side);
TextBoxes paintJflCard(QPainter& p, const QRectF& rect);
TextBoxes paintTaxCard(QPainter& p, const QRectF& rect, TaxKind kind);

}  // namespace gw::art
