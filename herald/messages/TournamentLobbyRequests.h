#pragma once
#include <herald/messages/WireRequest.h>
#include <herald/messages/info_objects/TournamentJoinRequest.h>

// What the client asks of a tournament and its lobby.

namespace Tessel {

/// Enters the lobby of a tournament.
class HERALD_API TournamentLobbyReq : public RecordRequest<TournamentLobbyReq, 202, TournamentJoinRequest> {
 public:
  static constexpr auto TEXT = L"[TournamentLobbyReq:]";
  TournamentLobbyReq() = default;
  TournamentLobbyReq(int playerId, int tournamentId) : RecordRequest({playerId, tournamentId, 0}) {}
  const TournamentJoinRequest& getJoinReq() const { return body(); }
};

/// Asks for a table of a tournament.
class HERALD_API TournamentTableReqMsg : public RecordRequest<TournamentTableReqMsg, 203, TournamentJoinRequest> {
 public:
  static constexpr auto TEXT = L"[TournamentTableReqMsg: %s]";
  TournamentTableReqMsg() = default;
  TournamentTableReqMsg(int playerId, int tournamentId, int tableId)
      : RecordRequest({playerId, tournamentId, tableId}) {}
  const TournamentJoinRequest& getJoinReq() const { return body(); }
};

/// Registers for a tournament. Its debug text shows the password: keep it out of logs.
class HERALD_API TournamentJoinRequestMsg : public RecordRequest<TournamentJoinRequestMsg, 205, TournamentJoinRequest> {
 public:
  static constexpr auto TEXT = L"[TournamentJoinRequestMsg: %s]";
  TournamentJoinRequestMsg() = default;
  /// The password is empty for a tournament that requires none.
  TournamentJoinRequestMsg(int playerId, int tournamentId, std::wstring_view password)
      : RecordRequest({playerId, tournamentId, password}) {}
  const TournamentJoinRequest& getJoinReq() const { return body(); }
};

/// Unregisters from a tournament.
class HERALD_API TournamentUnjoinRequestMsg
    : public RecordRequest<TournamentUnjoinRequestMsg, 206, TournamentJoinRequest> {
 public:
  static constexpr auto TEXT = L"[TournamentUnjoinRequestMsg: %s]";
  TournamentUnjoinRequestMsg() = default;
  TournamentUnjoinRequestMsg(int playerId, int tournamentId) : RecordRequest({playerId, tournamentId, 0}) {}
  const TournamentJoinRequest& getJoinReq() const { return body(); }
};

/// Asks for a tournament's data.
class HERALD_API TournamentDataReqWinClient
    : public RecordRequest<TournamentDataReqWinClient, 208, TournamentJoinRequest> {
 public:
  static constexpr auto TEXT = L"[TournamentDataReqWinClient:]";
  TournamentDataReqWinClient() = default;
  TournamentDataReqWinClient(int tournamentId, int playerId) : RecordRequest({playerId, tournamentId, -1}) {}
  const TournamentJoinRequest& getJoinReq() const { return body(); }
};

}  // namespace Tessel
