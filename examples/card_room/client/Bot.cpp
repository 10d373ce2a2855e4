#include "Bot.h"

#include <herald/mailboxes/TournamentLobbyControllerMessages.h>

#include <memory>
#include <vector>

using namespace Tessel;

namespace CardRoom {

void Bot::inLobby(Client& client) {
  if (playsTournaments_) {
    for (const auto& [id, tournament] : client.lobby().tournaments)
      if (tournament.isOpen) return client.commands().post(std::make_unique<TLCRegisterForTournament>(id, L""));
    return;
  }
  constexpr int NODE = 11;
  std::vector<int> withSeats;
  for (const auto& [id, game] : client.lobby().games)
    if (game.players < game.seats) withSeats.push_back(id);
  if (withSeats.empty()) return;
  const int game = withSeats[static_cast<std::size_t>(roll(static_cast<int>(withSeats.size())))];
  client.commands().post(std::make_unique<LCGotoTable>(NODE, game));
}

void Bot::toMove(Client& client, const PlayerActionsInfo& actions) {
  const int mood = roll(100);
  const std::int64_t toCall = actions.getCheckCallValue();
  if (mood < 12 && toCall > 0) return client.fold();
  if (mood < 80 || !actions.mayBetRaise() || actions.getNrBets() == 0) return client.checkOrCall(toCall);
  if (mood < 98) return client.bet(actions.getBet(0));
  client.allIn(actions.getBet(actions.getNrBets() - 1));
}

// Now and then another table is more promising.
void Bot::handEnded(Client& client) {
  if (client.tournament() == nullptr && roll(200) == 0) client.leaveTable();
}

}  // namespace CardRoom
