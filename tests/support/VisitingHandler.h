#pragma once
#include <herald/dispatch/DefaultClientMessageHandler.h>
#include <herald/wire/WireTypes.h>

#include <string_view>
#include <utility>
#include <vector>

namespace Tessel {

template <class... Messages>
struct ClassList {};

/// The parameter classes of the handler operations, in the order of their declaration.
using HandledClasses = ClassList<
    AccountBalanceInfoUpdateAbsolute, AccountBalanceInfoUpdateRelative, AccountBalanceInfoMsg, AccountBalanceInfoReq,
    MonetaryInfoMsg, MonetaryInfoReq, TourCreationRulesFail, CancelTourReplyMsg, StartTournamentReplyMsg,
    CreateTourReplyMsg, TournamentCreationRulesReply, EnteredTourListMsg, LobbyTourInvitationMsg,
    AllInProbabilityResults, ClientDiscardCards, ClientCardsSelectable, ClientChangeCards, UnSubscribeNode,
    TreeReplyUpdate, TreeReply, VIPLoginAnnounce, VIPInfo, TourRebuyFailedMsg, TournamentRebuyNotificationMsg,
    TourPlayerRebuyNotificationMsg, TournamentPlayerNoRebuyNotification, TournamentPendingRebuysMsg,
    TournamentRebuyQueryMsg, TourNextLevelInfoMsg, LobbyTablePlayerList, LobbyTableList, LobbyPlayerList,
    SpecificTourSummaryUpdate, SpecificTourSummary, TourFlightEndNotification, TourPlayerArrive, TourPlayerLeave,
    TourKnockoutInfo, TableNotification, TourNotification, TourLevelInfoMsg, TourPlayerRankingListInfo, TourSynchInfo,
    TourUserRanking, TourBreakEnd, TourBreakInfo, TourBreakNotification, TourSummaryChangeList,
    TournamentDataWinClientMsg, TournamentUnjoinReplyMsg, TournamentJoinReplyMsg, TournamentLobbyReply,
    AdminNotificationMsg, PlayerSatDown, SitDownReply, ClientSitInWaitingBigBlind, ClientVoteCast, ClientPlayerTimeout,
    ReserveMoneyReplyPending, ReserveMoneyReply, PlayerSlowConnection, ClientWaitingToSitOut, ClientBettingCapped,
    ClientShowdownHandValue, ShowCashierFailedSystem, ShowCashierFailedMoney, ShowCashierOk, ClientOpenTableReq,
    GameListUpdate, ClientTableInfo, ClientBetDeadDone, ClientBetDone, ClientCallDone, ClientAllInDone, ClientCheckDone,
    ClientFoldDone, ClientMuckLosingCardsReq, ClientShowCardsReq, ClientMuckCardsReq, ClientBetReq, ClientBetBlindReq,
    ClientBetAnteReq, ClientWin, ClientShowAllCards, ClientHurryUp, ClientTotalRake, ClientBetsToPot,
    ClientNextBettingRound, ClientCards, ClientEndRound, ClientNewRound, ClientSetDealerToken, ClientDisconnected,
    ClientSlowPlayer, ClientSatOut, ClientReconnected, ClientSlowPlayerBack, ClientSatIn, ClientWaitingToSitIn,
    AllInProtectionStatusMsg, ClientExtendedWelcomeMessage, ClientServerShutDown, AbusiveChatWarning,
    NumPlayersLoggedIn, JoinWaitingFail, JoinWaitingOk, JoinAvailable, PlayerStandUp, ClientGlobalChatMsg,
    ClientChatMsg, JoinGameFailed, PlayerIGLeft, PlayerLeft, PlayerJoined, GameStateInfoMsg, GameList, JoinLobbyFailed,
    LobbyInfoMsg, PingInfo, Ping, ServerConnectionStatus, PGJoinRequestReply, PGCreateGameReply, PGPlayerReqTimedOut,
    PGPlayerReqToJoinGame, PGPromotedModerator, PGGamesSettingsList, ConnectOk>;

template <class Visitor, class Classes>
class VisitingHandlerOf;

template <class Visitor>
class VisitingHandlerOf<Visitor, ClassList<>> : public DefaultClientMessageHandler {
 public:
  explicit VisitingHandlerOf(Visitor visitor) : visit(std::move(visitor)) {}
  using DefaultClientMessageHandler::handle;

 protected:
  Visitor visit;
};

template <class Visitor, class A, class... Rest>
class VisitingHandlerOf<Visitor, ClassList<A, Rest...>> : public VisitingHandlerOf<Visitor, ClassList<Rest...>> {
 public:
  using VisitingHandlerOf<Visitor, ClassList<Rest...>>::VisitingHandlerOf;
  using VisitingHandlerOf<Visitor, ClassList<Rest...>>::handle;
  void handle(const A& message) override { this->visit(message); }
};

// Eight operations a level while there are eight: the compiler's time grows with the square of the levels.
template <class Visitor, class A, class B, class C, class D, class E, class F, class G, class H, class... Rest>
class VisitingHandlerOf<Visitor, ClassList<A, B, C, D, E, F, G, H, Rest...>>
    : public VisitingHandlerOf<Visitor, ClassList<Rest...>> {
 public:
  using VisitingHandlerOf<Visitor, ClassList<Rest...>>::VisitingHandlerOf;
  using VisitingHandlerOf<Visitor, ClassList<Rest...>>::handle;
  void handle(const A& message) override { this->visit(message); }
  void handle(const B& message) override { this->visit(message); }
  void handle(const C& message) override { this->visit(message); }
  void handle(const D& message) override { this->visit(message); }
  void handle(const E& message) override { this->visit(message); }
  void handle(const F& message) override { this->visit(message); }
  void handle(const G& message) override { this->visit(message); }
  void handle(const H& message) override { this->visit(message); }
};

/// Calls the visitor with the message as its own class. It has every operation of the handler interface.
template <class Visitor>
class VisitingHandler : public VisitingHandlerOf<Visitor, HandledClasses> {
 public:
  explicit VisitingHandler(Visitor visitor) : VisitingHandlerOf<Visitor, HandledClasses>(std::move(visitor)) {}
};

struct NameRecorder {
  template <class Message>
  void operator()(const Message&) const {
    names->push_back(typeName<Message>());
  }
  std::vector<std::string_view>* names;
};

/// Keeps the class of each operation that ran.
class RecordingHandler : public VisitingHandler<NameRecorder> {
 public:
  RecordingHandler() : VisitingHandler(NameRecorder{&names}) {}
  RecordingHandler(const RecordingHandler&) = delete;
  RecordingHandler& operator=(const RecordingHandler&) = delete;

  std::vector<std::string_view> names;
};

}  // namespace Tessel
