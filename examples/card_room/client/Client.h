#pragma once
#include <herald/SpecificTournamentModel/SpecificTournamentModel.h>
#include <herald/dispatch/ConditionedClientMessages.h>
#include <herald/dispatch/ConnectionStatus.h>
#include <herald/mailboxes/MailBoxes.h>
#include <herald/messages/info_objects/PlayerActionsInfo.h>
#include <herald/platform/keystone/PostOffice.h>
#include <herald/platform/keystone/User.h>

#include <asio.hpp>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "../common/Ledger.h"
#include "Connection.h"
#include "LobbyController.h"
#include "TableHandler.h"

namespace CardRoom {

class Client;

/// Who plays: a person at a terminal, or a program. Called on the user's thread.
class Pilot {
 public:
  virtual ~Pilot() = default;
  /// The player is in the lobby, at no table and in no tournament, and the lobby's lists have come.
  virtual void inLobby(Client& client) = 0;
  /// It is the player's turn.
  virtual void toMove(Client& client, const Tessel::PlayerActionsInfo& actions) = 0;
  virtual void handEnded(Client& client) = 0;
  /// The player is in this tournament from now on; null: in none, and the model goes when this has returned.
  virtual void follows(Tessel::SpecificTournamentModel*) {}
};

/// What the lobby lists.
struct LobbyModel {
  struct Game {
    std::wstring name;
    int players = 0;
    int seats = 0;
  };
  struct Tournament {
    std::wstring name;
    int entrants = 0;
    bool isOpen = false;
  };

  std::map<int, Game> games;
  std::map<int, Tournament> tournaments;
};

/// One player's client, without its view. Everything here happens on the user's thread, in `work`; the connection,
/// which works on the network thread, hands over what comes through the mailboxes.
class Client : public TableHandler,
               private Tessel::ServerViewMessageHandler,
               private Tessel::ConnectionStatusMessageHandler,
               private LobbyController {
 public:
  struct Settings {
    Connection::Settings connection{};
    /// The process-wide models of accounts and of the server's time are this player's.
    bool isUser = true;
    /// Null for none. Used on the user's thread.
    Ledger* ledger = nullptr;
  };

  Client(asio::io_context& io, Tessel::PostOffice& office, const Settings& settings, Pilot& pilot);

  ~Client() override;
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;

  void start() { connection_.open(); }
  /// Delivers what has come since the last call.
  void work();
  void quit() { connection_.close(); }
  /// The server has said good-bye, or the connection has failed for good.
  bool isOver() const { return isOver_; }

  /// What the user asks of the lobby and of tournaments is posted here, from any thread.
  Tessel::TournamentLobbyControllerMailbox& commands() { return commands_; }

  /// Moves at the table.
  void fold();
  void checkOrCall(std::int64_t amount);
  void bet(std::int64_t amount);
  void allIn(std::int64_t amount);
  void reserveMoney(std::int64_t amount);
  void leaveTable();

  const Tessel::User& me() const { return me_; }
  const LobbyModel& lobby() const { return lobby_; }
  const TableModel::Seat* mySeat() const { return table().seatOf(me_.getId()); }
  /// Null when the player is in no tournament.
  Tessel::SpecificTournamentModel* tournament() { return tournament_ ? &*tournament_ : nullptr; }
  const std::wstring& status() const { return status_; }
  const std::wstring& news() const { return news_; }

  int postedCount() const { return connection_.postedCount(); }
  int deliveredCount() const { return deliveredCount_; }
  int loginCount() const { return loginCount_; }
  bool isMailLeft() const { return !messages_.isEmpty() || !events_.isEmpty() || !commands_.isEmpty(); }

  using TableHandler::handle;
  void handle(const Tessel::ConnectOk& message) override;
  void handle(const Tessel::Ping& message) override;
  void handle(const Tessel::ClientServerShutDown& message) override;
  void handle(const Tessel::MonetaryInfoMsg& message) override;
  void handle(const Tessel::AccountBalanceInfoMsg& message) override;
  void handle(const Tessel::AccountBalanceInfoUpdateAbsolute& message) override;
  void handle(const Tessel::GameList& message) override;
  void handle(const Tessel::GameListUpdate& message) override;
  void handle(const Tessel::TourSummaryChangeList& message) override;
  void handle(const Tessel::ClientChatMsg& message) override;
  void handle(const Tessel::ClientGlobalChatMsg& message) override;

  void handle(const Tessel::GameStateInfoMsg& message) override;
  void handle(const Tessel::ClientTableInfo& message) override;
  void handle(const Tessel::JoinGameFailed& message) override;
  void handle(const Tessel::SitDownReply& message) override;
  void handle(const Tessel::PlayerSatDown& message) override;
  void handle(const Tessel::ReserveMoneyReply& message) override;
  void handle(const Tessel::ClientBetReq& message) override;
  void handle(const Tessel::ClientEndRound& message) override;
  void handle(const Tessel::PlayerIGLeft& message) override;

  void handle(const Tessel::TournamentJoinReplyMsg& message) override;
  void handle(const Tessel::EnteredTourListMsg& message) override;
  void handle(const Tessel::SpecificTourSummary& message) override;
  void handle(const Tessel::LobbyTourInvitationMsg& message) override;
  void handle(const Tessel::TourKnockoutInfo& message) override;

 private:
  /// A table is open when both have come.
  enum Condition : unsigned int { STATE_HAS_COME, INFORMATION_HAS_COME, CONDITION_COUNT };

  using LobbyController::handle;
  using Tessel::ConnectionStatusMessageHandler::handle;
  using Tessel::ServerViewMessageHandler::handle;
  void handle(const Tessel::ConnectionStatusMessage& message) override;
  void handle(const Tessel::ClientDataMessage& message) override;
  void handle(const Tessel::ConnectionOK& event) override;
  void handle(const Tessel::ConnectionUpdate& event) override;
  void handle(const Tessel::ConnectionFailed& event) override;
  void handle(const Tessel::ConnectionRegistration& event) override;
  void handle(const Tessel::ConnectionUnregistration& event) override;

  void handle(const Tessel::LCGotoTable& command) override;
  void handle(const Tessel::LCRequestAccountBalance& command) override;
  void handle(const Tessel::LCRequestGameListNode& command) override;
  void handle(const Tessel::LCChatMsg& command) override;
  void handle(const Tessel::TLCRegisterForTournament& command) override;
  void handle(const Tessel::TLCUnregisterForTournament& command) override;

  void deliver(std::unique_ptr<Tessel::ClientMessage> message);
  void note(const Tessel::ClientMessage& message);
  /// Asks for a table's state and information, and holds back what comes about it until both are there.
  void openTable(const Tessel::ServerMessage& request);
  void openTournamentTable(int tableId);
  void stopHolding();
  /// The next step to play at a ring game: a seat, money, a place in the next hand.
  void takePart();
  void lookAround();
  void followTournament(int id);
  void leaveTournament();

  const Settings settings_;
  Pilot& pilot_;
  Tessel::ClientMessageMailBox messages_;
  Tessel::ServerViewMailbox events_;
  Tessel::TournamentLobbyControllerMailbox commands_;
  Connection connection_;
  Tessel::ConditionedClientMessages untilTableIsOpen_{*this, CONDITION_COUNT};

  Tessel::User me_;
  int session_ = 0;
  LobbyModel lobby_;
  int game_ = -1;            ///< The ring game where the player is or wants to be.
  bool isEntering_ = false;  ///< A tournament has been asked for.
  std::optional<Tessel::SpecificTournamentModel> tournament_;
  std::wstring status_;
  std::wstring news_;
  bool isOver_ = false;
  int deliveredCount_ = 0;
  int loginCount_ = 0;
};

}  // namespace CardRoom
