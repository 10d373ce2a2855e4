#include "TournamentSummary.h"

#include <herald/platform/tableau/PrizeStructureType.h>

namespace CardRoom {

namespace {

using Tour = TournamentSummary;

constexpr int MAIN_EVENT = 9000;
constexpr std::int64_t FLIGHT_MS = 7'200'000;

Body prizes(const Tour& tournament) { return Body().i32(Tour::PAID_PLACES).money(euros(tournament.prizePool)); }

Body rebuys() {
  Body body;
  body.i32(Tour::REBUYS_EACH).i64(Tour::REBUY_LEVELS * Tour::LEVEL_MS).flag(true);
  body.money(chipsOf(Tour::REBUY_CHIPS)).money(euros(Tour::REBUY_COST));
  return body.money(chipsOf(Tour::ADDON_CHIPS)).money(euros(Tour::ADDON_COST));
}

}  // namespace

Body summary(const Tour& tournament) {
  constexpr int MIN_ENTRANTS = 2;
  Body body;
  body.i32(tournament.id).i32(tournament.attributes).i8(tournament.status).i16(Tour::PORT);
  body.text(tournament.name).text(tournament.name).text(tournament.description);
  body.i8(AllowedLimitType::NO_LIMIT).i8(AllowedGameType::TEXAS_HOLDEM);
  body.i32(tournament.entrants).i32(MIN_ENTRANTS).i32(tournament.maxEntrants).i32(tournament.players);
  body.i8(PLAYERS_PER_TABLE);
  body.text(L"Buy-in").money(euros(Tour::BUY_IN)).money(euros(Tour::FEE)).flag(false);
  body.fields(prizes(tournament)).i8(Tessel::AllowedPrizeStructureType::STANDARD).money(euros(0)).money(euros(0));
  body.money(chipsOf(Tour::STARTING_CHIPS));
  body.i64(tournament.startTime).i64(tournament.registrationTime).i64(tournament.registrationTime);
  body.i64(Tour::LEVEL_MS).i16(-1).flag(false);
  body.i32(tournament.owner);
  if (tournament.attributes & Tour::REBUYS) body.fields(rebuys());
  if (tournament.attributes & Tour::FLIGHT) body.i32(MAIN_EVENT).i32(tournament.playersInMainEvent).i64(FLIGHT_MS);
  return body.i8(tournament.registration);
}

Body summaryUpdate(const Tour& tournament) {
  Body body;
  body.i32(tournament.id).i32(tournament.attributes).i8(tournament.status);
  body.i32(tournament.entrants).i32(tournament.players);
  body.fields(prizes(tournament)).i64(tournament.startTime);
  if (tournament.attributes & Tour::FLIGHT) body.i32(tournament.playersInMainEvent);
  return body.i8(tournament.registration);
}

}  // namespace CardRoom
