#pragma once
#include <herald/dispatch/AbstractClientMessageHandler.h>
#include <herald/wire/WireTypes.h>

#include <string_view>

namespace Tessel {

/// Traces every message that a derived handler does not take. `AbusiveChatWarning` stays pure: every concrete handler
/// says what it does about it.
class HERALD_API DefaultClientMessageHandler : public AbstractClientMessageHandler {
 public:
  ~DefaultClientMessageHandler() override;
  using AbstractClientMessageHandler::handle;

  void handle(const AccountBalanceInfoUpdateAbsolute&) override {
    trace(L"Default handling of message: AccountBalanceInfoUpdate");
  }
  void handle(const AccountBalanceInfoUpdateRelative&) override {
    trace(L"Default handling of message: AccountBalanceInfoUpdate");
  }
  void handle(const AccountBalanceInfoMsg& message) override { traceDefault(message); }
  void handle(const AccountBalanceInfoReq& message) override { traceDefault(message); }
  void handle(const MonetaryInfoMsg& message) override { traceDefault(message); }
  void handle(const MonetaryInfoReq& message) override { traceDefault(message); }
  void handle(const TourCreationRulesFail& message) override { traceDefault(message); }
  void handle(const CancelTourReplyMsg& message) override { traceDefault(message); }
  void handle(const StartTournamentReplyMsg& message) override { traceDefault(message); }
  void handle(const CreateTourReplyMsg& message) override { traceDefault(message); }
  void handle(const TournamentCreationRulesReply& message) override { traceDefault(message); }
  void handle(const EnteredTourListMsg& message) override { traceDefault(message); }
  void handle(const LobbyTourInvitationMsg& message) override { traceDefault(message); }
  void handle(const AllInProbabilityResults& message) override { traceDefault(message); }
  void handle(const ClientDiscardCards& message) override { traceDefault(message); }
  void handle(const ClientCardsSelectable& message) override { traceDefault(message); }
  void handle(const ClientChangeCards& message) override { traceDefault(message); }
  void handle(const UnSubscribeNode&) override { trace(L"Default handling of message: UnSubscribeNodeReq"); }
  void handle(const TreeReplyUpdate& message) override { traceDefault(message); }
  void handle(const TreeReply& message) override { traceDefault(message); }
  void handle(const VIPLoginAnnounce&) override { trace(L"Default handling of message: VipLoginAnnounce"); }
  void handle(const VIPInfo& message) override { traceDefault(message); }
  void handle(const TourRebuyFailedMsg& message) override { traceDefault(message); }
  void handle(const TournamentRebuyNotificationMsg& message) override { traceDefault(message); }
  void handle(const TourPlayerRebuyNotificationMsg& message) override { traceDefault(message); }
  void handle(const TournamentPlayerNoRebuyNotification& message) override { traceDefault(message); }
  void handle(const TournamentPendingRebuysMsg& message) override { traceDefault(message); }
  void handle(const TournamentRebuyQueryMsg& message) override { traceDefault(message); }
  void handle(const TourNextLevelInfoMsg&) override {}
  void handle(const LobbyTablePlayerList& message) override { traceDefault(message); }
  void handle(const LobbyTableList& message) override { traceDefault(message); }
  void handle(const LobbyPlayerList& message) override { traceDefault(message); }
  void handle(const SpecificTourSummaryUpdate& message) override { traceDefault(message); }
  void handle(const SpecificTourSummary& message) override { traceDefault(message); }
  void handle(const TourFlightEndNotification& message) override { traceDefault(message); }
  void handle(const TourPlayerArrive& message) override { traceDefault(message); }
  void handle(const TourPlayerLeave& message) override { traceDefault(message); }
  void handle(const TourKnockoutInfo& message) override { traceDefault(message); }
  void handle(const TableNotification& message) override { traceDefault(message); }
  void handle(const TourNotification& message) override { traceDefault(message); }
  void handle(const TourLevelInfoMsg& message) override { traceDefault(message); }
  void handle(const TourPlayerRankingListInfo&) override {}
  void handle(const TourSynchInfo& message) override { traceDefault(message); }
  void handle(const TourUserRanking& message) override { traceDefault(message); }
  void handle(const TourBreakEnd&) override { trace(L"Defalut handling of message: TourBreakEnd"); }
  void handle(const TourBreakInfo&) override { trace(L"Defalut handling of message: TourBreakInfo"); }
  void handle(const TourBreakNotification&) override { trace(L"Defalut handling of message: TourBreakNotification"); }
  void handle(const TourSummaryChangeList& message) override { traceDefault(message); }
  void handle(const TournamentDataWinClientMsg& message) override { traceDefault(message); }
  void handle(const TournamentUnjoinReplyMsg& message) override { traceDefault(message); }
  void handle(const TournamentJoinReplyMsg& message) override { traceDefault(message); }
  void handle(const TournamentLobbyReply& message) override { traceDefault(message); }
  void handle(const AdminNotificationMsg& message) override { traceDefault(message); }
  void handle(const PlayerSatDown& message) override { traceDefault(message); }
  void handle(const SitDownReply& message) override { traceDefault(message); }
  void handle(const ClientSitInWaitingBigBlind& message) override { traceDefault(message); }
  void handle(const ClientVoteCast& message) override { traceDefault(message); }
  void handle(const ClientPlayerTimeout& message) override { traceDefault(message); }
  void handle(const ReserveMoneyReplyPending& message) override { traceDefault(message); }
  void handle(const ReserveMoneyReply& message) override { traceDefault(message); }
  void handle(const PlayerSlowConnection& message) override { traceDefault(message); }
  void handle(const ClientWaitingToSitOut& message) override { traceDefault(message); }
  void handle(const ClientBettingCapped& message) override { traceDefault(message); }
  void handle(const ClientShowdownHandValue& message) override { traceDefault(message); }
  void handle(const ShowCashierFailedSystem& message) override { traceDefault(message); }
  void handle(const ShowCashierFailedMoney& message) override { traceDefault(message); }
  void handle(const ShowCashierOk& message) override { traceDefault(message); }
  void handle(const ClientOpenTableReq& message) override { traceDefault(message); }
  void handle(const GameListUpdate& message) override { traceDefault(message); }
  void handle(const ClientTableInfo& message) override { traceDefault(message); }
  void handle(const ClientBetDeadDone& message) override { traceDefault(message); }
  void handle(const ClientBetDone& message) override { traceDefault(message); }
  void handle(const ClientCallDone& message) override { traceDefault(message); }
  void handle(const ClientAllInDone& message) override { traceDefault(message); }
  void handle(const ClientCheckDone& message) override { traceDefault(message); }
  void handle(const ClientFoldDone& message) override { traceDefault(message); }
  void handle(const ClientMuckLosingCardsReq& message) override { traceDefault(message); }
  void handle(const ClientShowCardsReq& message) override { traceDefault(message); }
  void handle(const ClientMuckCardsReq& message) override { traceDefault(message); }
  void handle(const ClientBetReq& message) override { traceDefault(message); }
  void handle(const ClientBetBlindReq& message) override { traceDefault(message); }
  void handle(const ClientBetAnteReq& message) override { traceDefault(message); }
  void handle(const ClientWin& message) override { traceDefault(message); }
  void handle(const ClientShowAllCards& message) override { traceDefault(message); }
  void handle(const ClientHurryUp& message) override { traceDefault(message); }
  void handle(const ClientTotalRake& message) override { traceDefault(message); }
  void handle(const ClientBetsToPot& message) override { traceDefault(message); }
  void handle(const ClientNextBettingRound& message) override { traceDefault(message); }
  void handle(const ClientCards& message) override { traceDefault(message); }
  void handle(const ClientEndRound& message) override { traceDefault(message); }
  void handle(const ClientNewRound& message) override { traceDefault(message); }
  void handle(const ClientSetDealerToken& message) override { traceDefault(message); }
  void handle(const ClientDisconnected& message) override { traceDefault(message); }
  void handle(const ClientSlowPlayer& message) override { traceDefault(message); }
  void handle(const ClientSatOut& message) override { traceDefault(message); }
  void handle(const ClientReconnected& message) override { traceDefault(message); }
  void handle(const ClientSlowPlayerBack& message) override { traceDefault(message); }
  void handle(const ClientSatIn& message) override { traceDefault(message); }
  void handle(const ClientWaitingToSitIn& message) override { traceDefault(message); }
  void handle(const AllInProtectionStatusMsg& message) override { traceDefault(message); }
  void handle(const ClientExtendedWelcomeMessage& message) override { traceDefault(message); }
  void handle(const ClientServerShutDown& message) override { traceDefault(message); }
  void handle(const NumPlayersLoggedIn& message) override { traceDefault(message); }
  void handle(const JoinWaitingFail& message) override { traceDefault(message); }
  void handle(const JoinWaitingOk& message) override { traceDefault(message); }
  void handle(const JoinAvailable& message) override { traceDefault(message); }
  void handle(const PlayerStandUp& message) override { traceDefault(message); }
  void handle(const ClientGlobalChatMsg& message) override { traceDefault(message); }
  void handle(const ClientChatMsg& message) override { traceDefault(message); }
  void handle(const JoinGameFailed& message) override { traceDefault(message); }
  void handle(const PlayerIGLeft& message) override { traceDefault(message); }
  void handle(const PlayerLeft& message) override { traceDefault(message); }
  void handle(const PlayerJoined& message) override { traceDefault(message); }
  void handle(const GameStateInfoMsg& message) override { traceDefault(message); }
  void handle(const GameList& message) override { traceDefault(message); }
  void handle(const JoinLobbyFailed& message) override { traceDefault(message); }
  void handle(const LobbyInfoMsg& message) override { traceDefault(message); }
  void handle(const PingInfo& message) override { traceDefault(message); }
  void handle(const Ping& message) override { traceDefault(message); }
  void handle(const ServerConnectionStatus& message) override { traceDefault(message); }
  void handle(const PGJoinRequestReply& message) override { traceDefault(message); }
  void handle(const PGCreateGameReply& message) override { traceDefault(message); }
  void handle(const PGPlayerReqTimedOut& message) override { traceDefault(message); }
  void handle(const PGPlayerReqToJoinGame& message) override { traceDefault(message); }
  void handle(const PGPromotedModerator& message) override { traceDefault(message); }
  void handle(const PGGamesSettingsList& message) override { traceDefault(message); }
  void handle(const ConnectOk& message) override { traceDefault(message); }

 protected:
  DefaultClientMessageHandler() = default;
  DefaultClientMessageHandler(const DefaultClientMessageHandler&) = default;
  DefaultClientMessageHandler& operator=(const DefaultClientMessageHandler&) = default;

 private:
  template <class Message>
  static void traceDefault(const Message&) {
    traceName(typeName<Message>());
  }
  /// "Default handling of message: " and the name.
  static void traceName(std::string_view name);
  static void trace(std::wstring_view text);
};

}  // namespace Tessel
