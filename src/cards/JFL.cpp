// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/JFL.h"

#include "cards/JFLDeck.h"
#include "game/Board.h"  // the board holding the deck, which holds it in turn
#include "ports/Ports.h"

namespace gw {

void JFL::doAction(player& p) {
    Board& board = getCell().getBoard();
    JFLCard& card = board.getJFLDeck().getCard();
    JFLCardPort& window = board.windows().cards.jflCard;
    window.showJFLCard(card.getDescription());
    window.computerThink();
    card.doAction(p);
    Cell_doAction(p);
}

}  // namespace gw
