#pragma once
#include <herald/messages/TournamentMessages/TourBreakEnd.h>
#include <herald/messages/TournamentMessages/TourBreakInfo.h>
#include <herald/messages/TournamentMessages/TourBreakNotification.h>
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/PrizeLists.h>
#include <herald/messages/info_objects/RankedPlayerInfo.h>
#include <herald/messages/info_objects/TesselByte.h>
#include <herald/messages/info_objects/TourLevelInfo.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/TsArray.h>
#include <herald/platform/tableau/TableNotificationEvent.h>
#include <herald/platform/tableau/TournamentNotification.h>
#include <herald/platform/tableau/TournamentSynchedEvent.h>
#include <herald/wire/Text.h>

#include <cstdint>

// The course of a running tournament. An index outside a list fails with `std::invalid_argument`.

namespace Tessel {

/// What the tables of the tournament wait for together.
class HERALD_API TourSynchInfo : public RecordMessage<TourSynchInfo, TesselByte> {
 public:
  static constexpr auto TEXT = L"[TourSynchInfo: iCode=%d]";
  static constexpr auto FIELD = "code";
  const TournamentSynchedEvent& getCode() const;
  /// In bytes.
  int size() const { return body().size(); }
};

/// The user's own place.
class HERALD_API TourUserRanking : public RecordMessage<TourUserRanking, RankedPlayerInfo> {
 public:
  static constexpr auto TEXT = L"[TourUserRanking]";
  static constexpr auto FIELD = "user";
  RankedPlayer getUserRanking() const { return body().getRankedPlayer(); }
};

/// The ranking. `LobbyTablePlayerList` carries one as a field.
class HERALD_API TourPlayerRankingListInfo : public WireMessage<TourPlayerRankingListInfo> {
 public:
  int getNumberRankedPlayers() const { return players_.size(); }
  RankedPlayer getRankedPlayer(int i) const { return players_[i].getRankedPlayer(); }
  TsArray<RankedPlayer> getRankedPlayers() const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template counted<std::int16_t>("players", self.players_);
  }

 private:
  TsArray<RankedPlayerInfo> players_;
};

/// The blind level now in force.
class HERALD_API TourLevelInfoMsg : public RecordMessage<TourLevelInfoMsg, TourLevelInfo> {
 public:
  static constexpr auto TEXT = L"[TourLevelInfoMsg %s]";
  static constexpr auto FIELD = "level";
  const TourLevelInfo& getTourLevelInfo() const { return body(); }
};

/// News about the tournament.
class HERALD_API TourNotification : public RecordMessage<TourNotification, TesselByte> {
 public:
  static constexpr auto TEXT = L"[TourNotification: iCode=%d]";
  static constexpr auto FIELD = "code";
  /// A code without an event is reported and answered with the event of -1.
  const TournamentNotification& getEvent() const;
};

/// News about the user's table.
class HERALD_API TableNotification : public RecordMessage<TableNotification, TesselByte> {
 public:
  static constexpr auto TEXT = L"[TableNotification: iCode=%d]";
  static constexpr auto FIELD = "code";
  const TableNotificationEvent& getEvent() const;
};

/// The blind level now in force and the one that follows.
class HERALD_API TourNextLevelInfoMsg : public WireMessage<TourNextLevelInfoMsg> {
 public:
  const TourLevelInfo& getCurrentLevelInfo() const { return current_; }
  const TourLevelInfo& getNextLevelInfo() const { return next_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("current", self.current_);
    fields("next", self.next_);
  }

 private:
  TourLevelInfo current_;
  TourLevelInfo next_;
};

/// A player is out, with what the player has won.
class HERALD_API TourKnockoutInfo : public WireMessage<TourKnockoutInfo> {
 public:
  int getPlayerId() const { return playerId_; }
  std::wstring getPlayerName() const { return playerName_.getString(); }
  int getFinalPosition() const { return finalPosition_; }
  int getNumberOfMonetaryPrizes() const { return monetaryPrizes_.getNumberOfPrizes(); }
  Money getMoneyPrize(int i) const { return monetaryPrizes_.getPrize(i); }
  int getNumberOfTicketPrizes() const { return ticketPrizes_.getNumberOfPrizes(); }
  TournamentTicket getTicketPrize(int i) const { return ticketPrizes_.getPrize(i); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("playerName", self.playerName_);
    fields("finalPosition", self.finalPosition_);
    fields("monetaryPrizes", self.monetaryPrizes_);
    fields("ticketPrizes", self.ticketPrizes_);
  }

 private:
  std::int32_t playerId_ = -1;
  Text playerName_;
  std::int32_t finalPosition_ = -1;
  MonetaryPrizeList monetaryPrizes_;
  TicketPrizeList ticketPrizes_;
};

/// A player leaves the user's table for another.
class HERALD_API TourPlayerLeave : public WireMessage<TourPlayerLeave> {
 public:
  int getPlayerId() const { return playerId_; }
  std::wstring getTableMovingToName() const { return tableMovingToName_.getString(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("tableMovingToName", self.tableMovingToName_);
  }

 private:
  std::int32_t playerId_ = -1;
  Text tableMovingToName_;
};

/// A player comes to the user's table from another.
class HERALD_API TourPlayerArrive : public WireMessage<TourPlayerArrive> {
 public:
  std::wstring getPlayerName() const { return playerName_.getString(); }
  std::wstring getTableArrivingFromName() const { return tableArrivingFromName_.getString(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerName", self.playerName_);
    fields("tableArrivingFromName", self.tableArrivingFromName_);
  }

 private:
  Text playerName_;
  Text tableArrivingFromName_;
};

/// The flight is about to end.
class HERALD_API TourFlightEndNotification : public WireMessage<TourFlightEndNotification> {
 public:
  /// Until the flight ends, in milliseconds.
  std::int64_t getRemainingMs() const { return remainingMs_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("remainingMs", self.remainingMs_);
  }

 private:
  std::int64_t remainingMs_ = -1;
};

}  // namespace Tessel
