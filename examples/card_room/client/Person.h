#pragma once
#include <herald/HeraldUtils/Subscription.h>
#include <herald/SpecificTournamentModel/TournamentUpdateVisitor.h>

#include <optional>
#include <string>
#include <vector>

#include "Client.h"
#include "Terminal.h"

namespace CardRoom {

/// A person at a terminal: shows the lobby, the table and the tournament, and turns keys into moves and commands.
class Person : public Pilot, private Tessel::MVCObserver, private Tessel::TournamentUpdateVisitor {
 public:
  void inLobby(Client& client) override;
  void toMove(Client& client, const Tessel::PlayerActionsInfo& actions) override;
  void handEnded(Client& client) override;
  void follows(Tessel::SpecificTournamentModel* tournament) override;

  /// Answers false when the person wants to go.
  bool press(Client& client, char key);
  std::vector<std::wstring> screen(const Client& client, Terminal::Size size) const;

 private:
  struct Choice {
    std::int64_t toCall = 0;
    bool mayRaise = false;
    std::int64_t smallestRaise = 0;
    std::int64_t largestRaise = 0;
  };

  void update(const Tessel::NotificationUpdateObject& update) override { accept(update, *this); }
  void visit(const Tessel::TournamentLevelInformationUpdateObject& update) override;
  void visit(const Tessel::TournamentBaseUpdateObject& update) override;
  void visit(const Tessel::TournamentPlayerRankingUpdateObject& update) override;

  void move(Client& client, char key);
  void choose(Client& client, char key);
  std::wstring header(const Client& client) const;
  std::vector<std::wstring> lobby(const Client& client) const;
  std::vector<std::wstring> table(const Client& client) const;
  std::wstring choices(const Client& client) const;

  std::optional<Choice> choice_;
  Tessel::SpecificTournamentModel* tournament_ = nullptr;
  std::wstring level_;
  std::wstring players_;
  std::wstring rank_;
  Tessel::Subscription subscription_;
};

}  // namespace CardRoom
