#include "Lobby.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace CardRoom {

namespace {

void addTree(Body& body, const TreeNode& node) {
  constexpr int PORT = 6100;
  constexpr int NO_NAME_ID = -1;
  body.i16(node.id).i16(NO_NAME_ID).text(node.name).i16(PORT).i8(node.nodeType).i8(node.lobbyType);
  body.list<std::int8_t>(node.subNodes, addTree);
}

void addGame(Body& body, const Game& game) { body.fields(pokerGame(game)); }

}  // namespace

Body tree(const TreeNode& root) {
  Body body;
  addTree(body, root);
  return body;
}

Body monetaryInfo() {
  constexpr int FREE_AND_REFILLABLE = 3;
  constexpr int REAL = 4;
  Body body;
  body.i8(3).i16(EURO).text(L"real").text(L"EUR").i16(DOLLAR).text(L"real").text(L"USD");
  body.i16(PLAY_CHIPS).text(L"play").text(L"");
  body.i8(2).text(L"real").text(L"Real money").i8(REAL).i8(1);
  body.text(L"play").text(L"Play money").i8(FREE_AND_REFILLABLE).i8(2);
  body.i8(2).text(L"EUR").text(L"€").text(L"").i16(100).i8(1);
  return body.text(L"USD").text(L"$").text(L"").i16(100).i8(2);
}

Body GameNode::list() const { return Body().i16(id_).list<std::int16_t>(games_, addGame); }

Game& GameNode::game(int id) {
  const auto game = std::ranges::find(games_, id, &Game::id);
  if (game == games_.end()) throw std::logic_error("a game that is not there");
  return *game;
}

void GameNode::open(const Game& game) {
  games_.push_back(game);
  added_.push_back(game);
}

void GameNode::close(int id) {
  if (game(id).players != 0) throw std::logic_error("a game with players was closed");
  std::erase_if(games_, [&](const Game& game) { return game.id == id; });
  removed_.push_back(id);
}

void GameNode::seat(int id, int players) {
  Game& changed = game(id);
  changed.players += players;
  if (changed.players < 0 || changed.players > changed.maxPlayers) throw std::logic_error("seats that are not there");
  seatsOf_[id] = changed.players;
}

Body GameNode::update() {
  std::vector<int> ids;
  std::vector<int> seats;
  for (const auto& [id, players] : std::exchange(seatsOf_, {})) {
    ids.push_back(id);
    seats.push_back(players);
  }
  Body body;
  body.i16(id_).list<std::int16_t>(std::exchange(added_, {}), addGame);
  body.list<std::int16_t, std::int32_t>(std::exchange(removed_, {}));
  return body.list<std::int16_t, std::int32_t>(ids).list<std::int16_t, std::int32_t>(seats);
}

}  // namespace CardRoom
