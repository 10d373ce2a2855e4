#pragma once
#include <herald/messages/LobbyRequests.h>
#include <herald/messages/TableRequests.h>
#include <herald/messages/TournamentLobbyRequests.h>

#include <asio.hpp>
#include <chrono>
#include <cstdint>
#include <list>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "../../../samples/engine/Lobby.h"
#include "../common/Ledger.h"
#include "LiveTable.h"
#include "Session.h"
#include "SitAndGo.h"

namespace CardRoom {

/// The card room behind the connections: its members, their money, the lobby, the tables and the tournaments. It
/// answers requests.
class Room : public Session::Owner, public Clients {
 public:
  struct Options {
    int tables = 3;
    Pace pace{};
    std::uint32_t seed = 1;
    Ledger* ledger = nullptr;
  };

  Room(asio::io_context& io, const Options& options);

  void requested(Session& session, const Tessel::RequestFrames::Frame& frame) override;
  void ended(Session& session) override;

  /// Tells everyone the time, and asks for an answer.
  void ping();
  /// Tells the lobby's subscribers what has changed there.
  void tellLobbyChanges();

  /// No hand begins any more.
  void close();
  bool isHandRunning() const;
  /// But for those who have been gone for long.
  bool isEveryoneConnected() const;
  /// The last word to all who are connected.
  void sayGoodBye();
  /// Throws `std::logic_error` unless all money that was given out is still there.
  void checkMoney() const;

  int handsPlayed() const { return handsPlayed_; }
  int tournamentsPlayed() const { return tournamentsPlayed_; }
  std::size_t memberCount() const { return members_.size(); }

 private:
  enum Node { ROOT = 1, HOLDEM = 11, SIT_AND_GOES = 22 };

  /// Who has logged in once, connected or not.
  struct Member {
    Person person;
    std::int64_t account = 0;  ///< what is at no table, in cents
    int ping = 0;              ///< in milliseconds
    std::shared_ptr<Session> session{};
    std::chrono::steady_clock::time_point lastSeen{};  ///< when the connection ended
    LiveTable* table = nullptr;
    SitAndGo* tournament = nullptr;
    std::set<int> nodes{};  ///< to whose news the client has subscribed
  };

  void send(int player, int messageId, const Body& body) override;
  bool isConnected(int player) const override;
  template <class Message>
  void tell(const Member& member, const Body& body = {}) {
    send(member.person.id, messageId<Message>(), body);
  }

  void logIn(Session& session, std::span<const std::uint8_t> body);
  void tellEntered(const Member& member);
  Member* memberOf(const Session& session);
  /// Lets the one of these classes that the request is of be answered; false for none.
  template <class... Requests>
  bool answerOneOf(Member& member, const Tessel::ServerMessage& request);
  bool answer(Member& member, const Tessel::ServerMessage& request);

  void answer(Member& member, const Tessel::Pong& request);
  void answer(Member& member, const Tessel::MonetaryInfoReq& request);
  void answer(Member& member, const Tessel::AccountBalanceInfoReq& request);
  void answer(Member& member, const Tessel::GetTreeReq& request);
  void answer(Member& member, const Tessel::SubscribeNodeReq& request);
  void answer(Member& member, const Tessel::UnSubscribeNodeReq& request);
  void answer(Member& member, const Tessel::ServerGlobalChatMsg& request);

  void answer(Member& member, const Tessel::JoinGameRequest& request);
  void answer(Member& member, const Tessel::TableInfoReq& request);
  void answer(Member& member, const Tessel::SitDownRequest& request);
  void answer(Member& member, const Tessel::ReserveMoney& request);
  void answer(Member& member, const Tessel::ServerSitIn& request);
  void answer(Member& member, const Tessel::ServerSitOut& request);
  void answer(Member& member, const Tessel::PlayerLeaveGame& request);
  void answer(Member& member, const Tessel::ServerChatMsg& request);
  void answer(Member& member, const Tessel::ServerFold& request);
  void answer(Member& member, const Tessel::ServerCheckCall& request);
  void answer(Member& member, const Tessel::ServerBet& request);
  void answer(Member& member, const Tessel::ServerAllIn& request);

  void answer(Member& member, const Tessel::TournamentLobbyReq& request);
  void answer(Member& member, const Tessel::TournamentJoinRequestMsg& request);
  void answer(Member& member, const Tessel::TournamentUnjoinRequestMsg& request);
  void answer(Member& member, const Tessel::TournamentTableReqMsg& request);

  void refill(Member& member);
  void tellBalance(const Member& member);
  LiveTable* ringTable(int id);
  SitAndGo* sitAndGo(int id);
  void openSitAndGo();
  void tournamentChanged(SitAndGo& tournament);
  void tellTournaments(const std::vector<Body>& added, const std::vector<Body>& changed,
                       const std::vector<int>& removed);
  void noteHand(LiveTable& table);
  template <class Visit>
  void forEachTable(const Visit& visit) const;

  asio::io_context& io_;
  const Options options_;
  GameNode lobby_;
  std::map<int, Member> members_;
  std::map<std::wstring, int> idsByNick_;
  std::map<int, int> playersBySession_;
  std::list<LiveTable> tables_;
  std::list<SitAndGo> tournaments_;
  std::int64_t given_ = 0;  ///< all money that members ever got
  std::int64_t fees_ = 0;
  bool isClosed_ = false;
  int nextTournament_ = 30'000;
  int handsPlayed_ = 0;
  int tournamentsPlayed_ = 0;
};

}  // namespace CardRoom
