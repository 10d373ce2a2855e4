#pragma once
#include <herald/platform/tableau/GameType.h>
#include <herald/platform/tableau/LimitType.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Body.h"

// What tables and the lobby share: the players, the money, and the records that several messages carry.

namespace CardRoom {

using Tessel::GameTypes::AllowedGameType;
using Tessel::LimitTypes::AllowedLimitType;

/// The monetary units of the card room. Amounts of the first two are in cents.
enum Unit { EURO = 1, DOLLAR = 2, PLAY_CHIPS = 3, TOURNAMENT_CHIPS = 4 };

struct Person {
  int id = -1;
  std::wstring nick;
  std::wstring city;
};

/// A table that the lobby lists.
struct Game {
  /// Bits of the flags byte; the lowest two are the speed.
  enum Flag { FAST = 1, PRIVATE = 4, MODERATED = 8, BOOTABLE = 16, NETWORK = 32 };

  int id = -1;
  std::wstring name;
  AllowedGameType type = AllowedGameType::TEXAS_HOLDEM;
  AllowedLimitType limit = AllowedLimitType::NO_LIMIT;
  int unit = EURO;
  std::int64_t bigBlind = 100;
  std::int64_t ante = 0;
  int maxPlayers = 6;
  int players = 0;
  int watching = 0;
  int flags = 0;

  std::int64_t smallBlind() const { return bigBlind / 2; }
  std::int64_t smallBet() const { return bigBlind; }
  std::int64_t bigBet() const { return 2 * bigBlind; }
  std::int64_t maxRake() const { return unit == TOURNAMENT_CHIPS ? 0 : 3 * bigBlind; }
  std::int64_t minBuyIn() const { return 20 * bigBlind; }
  std::int64_t maxBuyIn() const { return 200 * bigBlind; }
};

std::wstring_view nameOf(AllowedGameType type);
/// A list whose element class is named by a type string.
Body infoVector(std::wstring_view type, const std::vector<Body>& infos);
/// What a lobby shows of a table.
Body pokerGame(const Game& game);
/// The stakes of a table.
Body pokerRules(const Game& game);
/// A player at a table, with the money there.
Body playerInGame(const Person& person, const Tessel::Money& money, int gameId);
/// What the cashier of a table offers.
Body cashier(const Game& game, std::int64_t account);

}  // namespace CardRoom
