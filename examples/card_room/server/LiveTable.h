#pragma once
#include <asio.hpp>
#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <vector>

#include "../../../samples/engine/Table.h"

namespace CardRoom {

/// The clients of the card room, as tables and tournaments see them.
class Clients {
 public:
  virtual ~Clients() = default;
  virtual void send(int player, int messageId, const Body& body) = 0;
  virtual bool isConnected(int player) const = 0;
};

struct Pace {
  std::chrono::milliseconds betweenHands{1500};
  std::chrono::milliseconds toAct{20'000};
  /// For a player whose connection is lost.
  std::chrono::milliseconds toActAway{1000};
};

/// A table at which hands are played as the players' moves come. Moves that do not come in time are made for them.
class LiveTable : private Audience {
 public:
  /// Hands are numbered from `firstHand` on. `handEnded` is called after each, when the chips are
  /// where they belong and nobody has come or gone yet.
  LiveTable(asio::io_context& io, Clients& clients, const Game& game, const Pace& pace, int firstHand,
            std::uint32_t seed, std::function<void(LiveTable&)> handEnded);

  Table& table() { return table_; }
  const Table& table() const { return table_; }

  /// The client of a player listens from now on, and gets the state of the table; or does not.
  void listen(int player);
  void unlisten(int player);
  std::vector<int> listeners() const override { return listeners_; }

  /// Begins the next hand, if there are players for it and none is running.
  void play();
  /// No hand begins any more.
  void stop() { isStopped_ = true; }
  /// A move of a player; out of turn it is passed over, and one that is not allowed becomes a call.
  void move(int player, Move::Kind kind, std::int64_t chips);
  /// The player takes money from the account, after the hand if there is one.
  void takeMoney(int player, std::int64_t amount);
  /// The player folds in turn, and has left the table when the hand is over.
  void leave(int player, std::function<void(std::int64_t account)> left);

 private:
  void tell(int listener, int messageId, const Body& body) override { clients_.send(listener, messageId, body); }
  std::int64_t now() const override;

  bool isToAct(int player);
  void startHand();
  void goOn();
  void ask();
  void timeOut();
  void make(const Move& move);
  void endHand();
  void letGo(int player);

  Clients& clients_;
  const Pace pace_;
  std::function<void(LiveTable&)> handEnded_;
  asio::steady_timer timer_;
  std::vector<int> listeners_;
  std::map<int, std::int64_t> wantedMoney_;
  std::map<int, std::function<void(std::int64_t)>> leaving_;
  int turn_ = 0;  ///< Counts the moves, so that time runs out for none that has been made.
  bool isStopped_ = false;
  bool allInShown_ = false;
  bool isWaitingForNextHand_ = false;
  Table table_;
};

}  // namespace CardRoom
