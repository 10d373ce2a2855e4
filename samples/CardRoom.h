#pragma once
#include <herald/platform/tableau/GameType.h>
#include <herald/platform/tableau/LimitType.h>

#include <cstdint>
#include <string_view>

#include "Body.h"

// What the three plays share: the people of the card room, its money, and the records that several messages carry.

namespace Samples {

using Tessel::GameTypes::AllowedGameType;
using Tessel::LimitTypes::AllowedLimitType;

/// The monetary units of the card room. Amounts of the first two are in cents.
enum Unit { EURO = 1, DOLLAR = 2, PLAY_CHIPS = 3, TOURNAMENT_CHIPS = 4 };

struct Person {
  int id;
  std::wstring_view nick;
  std::wstring_view city;
};

/// The player at the client whose connection is recorded.
inline constexpr Person USER = {4001, L"Marigold", L"Utrecht"};
inline constexpr Person AASE = {4002, L"Åse_Bjørk", L"Ålesund"};
inline constexpr Person DUC = {4003, L"Đức88", L"Huế"};
inline constexpr Person CHLOE = {4004, L"Chloé", L"Saint-Étienne"};
inline constexpr Person KWAME = {4005, L"Kwame_K", L"Kumasi"};
inline constexpr Person XIAOMING = {4006, L"王小明", L"臺北"};
inline constexpr Person JOKER = {4007, L"Joker\U0001F0CF", L"São Paulo"};
inline constexpr Person ALISA = {4008, L"\U0001F0A1lisa", L"Łódź"};
inline constexpr Person OMAR = {4009, L"عمر", L"الإسكندرية"};
inline constexpr Person ELENI = {4010, L"Ελένη", L"Πάτρα"};

/// A table that the lobby lists.
struct Game {
  /// Bits of the flags byte; the lowest two are the speed.
  enum Flag { FAST = 1, PRIVATE = 4, MODERATED = 8, BOOTABLE = 16, NETWORK = 32 };

  int id = -1;
  std::wstring_view name;
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
  std::int64_t maxRake() const { return 3 * bigBlind; }
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

}  // namespace Samples
