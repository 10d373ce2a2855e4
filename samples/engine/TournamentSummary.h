#pragma once
#include <herald/platform/tableau/PlayerRegistrationStatus.h>
#include <herald/platform/tableau/TournamentStatus.h>

#include <cstdint>
#include <string>

#include "Game.h"

namespace CardRoom {

using Tessel::AllowedTournamentStatus;
using Tessel::PlayerRegistrationStatus;

/// What the lobby shows of a tournament.
struct TournamentSummary {
  enum Attribute { SIT_AND_GO = 1, FLIGHT = 2, PASSWORD = 8, REBUYS = 32, NO_WEB_SIGNUP = 128 };

  static constexpr std::int64_t BUY_IN = 1000;
  static constexpr std::int64_t FEE = 100;
  static constexpr std::int64_t STARTING_CHIPS = 1500;
  static constexpr std::int64_t REBUY_COST = 1000;
  static constexpr std::int64_t REBUY_CHIPS = 1500;
  static constexpr std::int64_t ADDON_COST = 1000;
  static constexpr std::int64_t ADDON_CHIPS = 2000;
  static constexpr int REBUYS_EACH = 2;
  static constexpr std::int64_t LEVEL_MS = 480'000;
  static constexpr int REBUY_LEVELS = 3;
  static constexpr int PAID_PLACES = 3;
  static constexpr int PORT = 6200;

  int id = -1;
  int attributes = 0;
  std::wstring name;
  std::wstring description;
  /// What stands before the numbers of its tables.
  std::wstring tableName = L"Table";
  AllowedTournamentStatus status = AllowedTournamentStatus::ANNOUNCED;
  int maxEntrants = 10;
  int entrants = 0;
  int players = 0;
  std::int64_t prizePool = 0;
  std::int64_t startTime = -1;
  std::int64_t registrationTime = 0;
  int owner = -1;
  /// The part of the first prize that is a ticket.
  std::int64_t ticketValue = 0;
  int playersInMainEvent = 0;
  PlayerRegistrationStatus registration = PlayerRegistrationStatus::NOT_REGISTERED;
};

inline constexpr int PLAYERS_PER_TABLE = 5;

inline Tessel::Money chipsOf(std::int64_t amount) { return {amount, TOURNAMENT_CHIPS}; }
inline Tessel::Money euros(std::int64_t amount) { return {amount, EURO}; }

/// The whole summary.
Body summary(const TournamentSummary& tournament);
/// Only what changes.
Body summaryUpdate(const TournamentSummary& tournament);

}  // namespace CardRoom
