#pragma once
#include <random>

#include "Client.h"

namespace CardRoom {

/// Plays by itself, at ring games or in one tournament after another.
class Bot : public Pilot {
 public:
  Bot(std::uint32_t seed, bool playsTournaments) : random_(seed), playsTournaments_(playsTournaments) {}

  void inLobby(Client& client) override;
  void toMove(Client& client, const Tessel::PlayerActionsInfo& actions) override;
  void handEnded(Client& client) override;

 private:
  /// From 0 to `below` - 1.
  int roll(int below) { return static_cast<int>(random_() % static_cast<std::uint32_t>(below)); }

  std::mt19937 random_;
  bool playsTournaments_;
};

}  // namespace CardRoom
