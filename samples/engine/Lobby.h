#pragma once
#include <map>
#include <string_view>
#include <vector>

#include "Game.h"

// What the lobby shows.

namespace CardRoom {

enum LobbyType { LOBBY_ROOT, LOBBY_RING_GAME, LOBBY_SCHEDULED, LOBBY_SIT_AND_GO };
enum NodeType { PLAIN = 0, SUBSCRIBABLE = 1, LAST_SELECTED = 2, PRIVATE_NODE = 4 };
/// What a subscription to a node is about.
inline constexpr int GAMES_AND_SEATS = 1;

/// A node of the lobby's tree.
struct TreeNode {
  int id;
  std::wstring_view name;
  int nodeType;
  LobbyType lobbyType;
  std::vector<TreeNode> subNodes{};
};

Body tree(const TreeNode& root);

/// The units, their kinds and their currencies.
Body monetaryInfo();

/// The games of one lobby node, and what has changed since the clients were told.
class GameNode {
 public:
  GameNode(int id, std::vector<Game> games) : id_(id), games_(std::move(games)) {}

  Body list() const;
  const std::vector<Game>& games() const { return games_; }
  /// Throws for a game that is not there.
  Game& game(int id);

  void open(const Game& game);
  /// Throws for a game with players.
  void close(int id);
  /// So many players more, or fewer. Throws when there are no such seats.
  void seat(int id, int players);
  bool hasChanged() const { return !added_.empty() || !removed_.empty() || !seatsOf_.empty(); }
  /// What has changed; from now on nothing has.
  Body update();

 private:
  int id_;
  std::vector<Game> games_;
  std::vector<Game> added_;
  std::vector<int> removed_;
  std::map<int, int> seatsOf_;
};

}  // namespace CardRoom
