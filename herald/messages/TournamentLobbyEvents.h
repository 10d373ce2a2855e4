#pragma once
#include <herald/messages/TournamentMessages/TourProgressEvents.h>
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/EnteredTour.h>
#include <herald/messages/info_objects/LobbyPlayerInfo.h>
#include <herald/messages/info_objects/LobbyTableInfo.h>
#include <herald/messages/info_objects/TourInvitation.h>
#include <herald/messages/info_objects/TournamentJoinRequest.h>
#include <herald/messages/info_objects/WinClientTournamentInfo.h>
#include <herald/platform/keystone/TsArray.h>

#include <cstdint>

// The lobby of a tournament and the registration for it. An index outside a list fails with `std::invalid_argument`.

namespace Tessel {

/// The user is in the lobby of the tournament; lists of its players and tables follow.
class HERALD_API TournamentLobbyReply : public RecordMessage<TournamentLobbyReply, TournamentJoinRequest> {
 public:
  static constexpr auto TEXT = L"[TournamentLobbyReply:]";
  TournamentJoinRequest getJoinReq() const { return body(); }
};

/// The request to register, with what came of it.
class HERALD_API TournamentJoinReplyMsg : public RecordMessage<TournamentJoinReplyMsg, TournamentJoinRequest> {
 public:
  static constexpr auto TEXT = L"[TournamentJoinReplyMsg:]";
  TournamentJoinRequest getJoinReq() const { return body(); }
};

/// The request to unregister, with what came of it.
class HERALD_API TournamentUnjoinReplyMsg : public RecordMessage<TournamentUnjoinReplyMsg, TournamentJoinRequest> {
 public:
  static constexpr auto TEXT = L"[TournamentUnjoinReplyMsg:]";
  TournamentJoinRequest getJoinReq() const { return body(); }
};

class HERALD_API TournamentDataWinClientMsg
    : public RecordMessage<TournamentDataWinClientMsg, WinClientTournamentInfo> {
 public:
  static constexpr auto TEXT = L"[TournamentDataWinClientMsg:]";
  WinClientTournamentInfo getTournamentInfo() const { return body(); }
};

/// The tournaments that the user has entered.
class HERALD_API EnteredTourListMsg : public WireMessage<EnteredTourListMsg> {
 public:
  int getNumberTours() const { return tours_.size(); }
  const EnteredTour& getEnteredTour(int i) const { return tours_.at(i); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template counted<std::int16_t>("tours", self.tours_);
  }

 private:
  TsArray<EnteredTour> tours_;
};

/// The user is asked to a table of a tournament.
class HERALD_API LobbyTourInvitationMsg : public RecordMessage<LobbyTourInvitationMsg, TourInvitation> {
 public:
  static constexpr auto TEXT = L"[LobbyTourInvitationMsg %s ]";
  const TourInvitation& getInvitation() const { return body(); }
};

/// Changes in the list of registered players.
class HERALD_API LobbyPlayerList : public WireMessage<LobbyPlayerList> {
 public:
  /// The players who registered or changed.
  const TsArray<LobbyPlayerInfo>& getRegisteredPlayers() const { return registeredPlayers_; }
  /// The ids of the players who unregistered.
  TsArray<int> getUnregisteredPlayers() const { return unregisteredPlayers_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template counted<std::int16_t>("registeredPlayers", self.registeredPlayers_);
    fields.template counted<std::int16_t>("unregisteredPlayers", self.unregisteredPlayers_);
  }

 private:
  TsArray<LobbyPlayerInfo> registeredPlayers_;
  TsArray<std::int32_t> unregisteredPlayers_;
};

/// Changes in the list of running tables.
class HERALD_API LobbyTableList : public WireMessage<LobbyTableList> {
 public:
  /// The tables that are new or changed.
  const TsArray<LobbyTableInfo>& getUpdatedTables() const { return updatedTables_; }
  /// The ids of the tables that are gone.
  TsArray<int> getRemovedTables() const { return removedTables_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template counted<std::int16_t>("updatedTables", self.updatedTables_);
    fields.template counted<std::int16_t>("removedTables", self.removedTables_);
  }

 private:
  TsArray<LobbyTableInfo> updatedTables_;
  TsArray<std::int32_t> removedTables_;
};

/// The players at a table, with their places in the tournament.
class HERALD_API LobbyTablePlayerList : public WireMessage<LobbyTablePlayerList> {
 public:
  int getTableId() const { return tableId_; }
  TsArray<RankedPlayer> getRankedPlayers() const { return ranking_.getRankedPlayers(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tableId", self.tableId_);
    fields("ranking", self.ranking_);
  }

 private:
  std::int32_t tableId_ = -1;
  TourPlayerRankingListInfo ranking_;
};

}  // namespace Tessel
