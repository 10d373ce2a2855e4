#include "Game.h"

#include <herald/messages/info_objects/PlayerInGameInfo.h>

namespace CardRoom {

namespace {

constexpr int PORT = 6120;
constexpr int POKER = 1;

}  // namespace

std::wstring_view nameOf(AllowedGameType type) { return Tessel::GameTypeFactory::createGameType(type)->getName(); }

Body infoVector(std::wstring_view type, const std::vector<Body>& infos) {
  Body body;
  body.i32(std::ssize(infos)).text(type);
  for (const Body& info : infos) body.fields(info);
  return body;
}

Body pokerGame(const Game& game) {
  const bool isLimit = game.limit == AllowedLimitType::LIMIT;
  Body body;
  body.i32(game.id).text(game.name).i16(game.players).i16(game.maxPlayers).i16(game.watching).i16(game.unit);
  body.i32(PORT).i32(POKER).i8(game.type).i8(game.limit);
  body.i64(isLimit ? game.smallBet() : game.smallBlind()).i64(isLimit ? game.bigBet() : game.bigBlind);
  return body.i8(game.flags);
}

Body pokerRules(const Game& game) {
  const std::int64_t chipValues[] = {5, 25, 100, 500, 2500};
  Body body;
  body.text(nameOf(game.type)).i16(game.unit).i64(game.maxRake()).i64(game.bigBlind);
  body.list<std::int32_t, std::int64_t>(chipValues).i64(chipValues[0]);
  body.i64(game.ante).i64(game.smallBlind()).i64(game.smallBet()).i64(game.bigBet());
  return body.money({0, 0}).money({0, 0});
}

Body playerInGame(const Person& person, const Tessel::Money& money, int gameId) {
  const int ping = 20 + person.id % 7 * 13;
  return Body().record(Tessel::PlayerInGameInfo(person.id, person.nick, person.city, money, ping, gameId, L""));
}

Body cashier(const Game& game, std::int64_t account) {
  return Body().i64(account).i64(game.minBuyIn()).i64(game.maxBuyIn());
}

}  // namespace CardRoom
