#pragma once
#include <herald/SpecificTournamentModel/TournamentFeed.h>

#include "TableModel.h"

namespace CardRoom {

/// Brings the messages about a table into its picture. On top of the feed of a tournament, because a table may be one
/// of a tournament's.
class TableHandler : public Tessel::TournamentFeed {
 public:
  const TableModel& table() const { return table_; }

  using TournamentFeed::handle;
  void handle(const Tessel::GameStateInfoMsg& message) override;
  void handle(const Tessel::ClientNewRound& message) override;
  void handle(const Tessel::ClientSetDealerToken& message) override;
  void handle(const Tessel::PlayerSatDown& message) override;
  void handle(const Tessel::PlayerStandUp& message) override;
  void handle(const Tessel::PlayerIGLeft& message) override;
  void handle(const Tessel::ReserveMoneyReply& message) override;
  void handle(const Tessel::ClientSatIn& message) override;
  void handle(const Tessel::ClientSatOut& message) override;
  void handle(const Tessel::ClientBetReq& message) override;
  void handle(const Tessel::ClientBetDone& message) override;
  void handle(const Tessel::ClientCallDone& message) override;
  void handle(const Tessel::ClientBetDeadDone& message) override;
  void handle(const Tessel::ClientCheckDone& message) override;
  void handle(const Tessel::ClientFoldDone& message) override;
  void handle(const Tessel::ClientAllInDone& message) override;
  void handle(const Tessel::ClientBetsToPot& message) override;
  void handle(const Tessel::ClientTotalRake& message) override;
  void handle(const Tessel::ClientWin& message) override;
  void handle(const Tessel::ClientCards& message) override;
  void handle(const Tessel::ClientShowAllCards& message) override;
  void handle(const Tessel::ClientEndRound& message) override;

 protected:
  void closeTable() { table_ = {}; }

 private:
  TableModel table_;
};

}  // namespace CardRoom
