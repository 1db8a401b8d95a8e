// SPDX-License-Identifier: GPL-3.0-or-later
// What the card faces share, drawn in a card's design units with its top left at 0,0.
#pragma once

#include <QRectF>
#include <QSizeF>

#include "art/Text.h"

class QPainter;

namespace gw::art {

// Property and trade cards: card stock with a thin teal frame inside its edge.
void paintFramedCard(QPainter& p, QSizeF card);

// JFL and tax cards: card stock, a heavier teal frame and gold brackets in its corners.
void paintNoticeCard(QPainter& p, QSizeF card);

// The faint stripe under every other row of a card's table.
void paintRowStripe(QPainter& p, const QRectF& row);

// The printed captions of the cards' tables.
TextStyle cardCaption(Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter);

}  // namespace gw::art
