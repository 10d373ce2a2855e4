#pragma once
#include <functional>
#include <optional>
#include <vector>

#include "../../../samples/engine/Tournament.h"
#include "LiveTable.h"

namespace CardRoom {

/// A tournament of one table that begins when it is full.
class SitAndGo : private Audience {
 public:
  /// What comes of it, for whoever keeps the accounts.
  struct Events {
    std::function<void(const Person&, std::int64_t prize)> paid;
    std::function<void(SitAndGo&)> changed;
    std::function<void(LiveTable&)> handEnded;
  };

  SitAndGo(asio::io_context& io, Clients& clients, const TournamentSummary& summary, const Pace& pace, int firstHand,
           std::uint32_t seed, Events events);

  int id() const { return id_; }
  Tournament& tournament() { return tournament_; }
  bool isOpen() const { return !table_; }
  bool isOver() const { return isOver_; }
  /// What the entrants have paid and nobody has won yet.
  std::int64_t money() const { return money_; }
  /// Null before it begins.
  LiveTable* table() { return table_ ? &*table_ : nullptr; }

  void enter(const Person& person);
  void withdraw(const Person& person);
  /// The client of a player gets the news of the tournament, first its present state.
  void listen(int player);
  void unlisten(int player) { std::erase(listeners_, player); }
  std::vector<int> listeners() const override { return listeners_; }

 private:
  void tell(int listener, int messageId, const Body& body) override { clients_.send(listener, messageId, body); }
  std::int64_t now() const override;

  void start();
  void handEnded();
  void pay(const Person& person);

  asio::io_context& io_;
  Clients& clients_;
  const int id_;
  const Pace pace_;
  const int firstHand_;
  const std::uint32_t seed_;
  Events events_;
  Tournament tournament_;
  std::vector<int> listeners_;
  std::vector<Person> entrants_;
  std::optional<LiveTable> table_;
  std::int64_t money_ = 0;
  int hands_ = 0;
  bool isOver_ = false;
};

}  // namespace CardRoom
