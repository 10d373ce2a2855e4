#include <herald/messages/AccountEvents.h>
#include <herald/messages/BettingEvents.h>
#include <herald/messages/CardEvents.h>
#include <herald/messages/ChatEvents.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/JoinEvents.h>
#include <herald/messages/LobbyEvents.h>
#include <herald/messages/MessageOperations.h>
#include <herald/messages/PrivateGameEvents.h>
#include <herald/messages/RebuyEvents.h>
#include <herald/messages/SeatEvents.h>
#include <herald/messages/TableStateEvents.h>
#include <herald/messages/TourSummaryEvents.h>
#include <herald/messages/TournamentCreationEvents.h>
#include <herald/messages/TournamentLobbyEvents.h>
#include <herald/messages/TournamentMessages/TourProgressEvents.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace Tessel {

namespace {

template <class Message>
std::unique_ptr<ClientMessage> create() {
  return std::make_unique<Message>();
}

template <class Message>
constexpr ClientMessageRow row(int id) {
  return {id, typeName<Message>(), create<Message>};
}

constexpr ClientMessageRow noMessage(int id) { return {id, {}, nullptr}; }

constexpr ClientMessageRow ROWS[] = {
    row<AdminNotificationMsg>(-94),
    row<PlayerSatDown>(-93),
    row<SitDownReply>(-92),
    row<VIPLoginAnnounce>(-91),
    row<ReserveMoneyReplyPending>(-90),
    row<ReserveMoneyReply>(-89),
    row<PlayerSlowConnection>(-88),
    row<ClientWaitingToSitOut>(-87),
    row<ClientServerShutDown>(-86),
    row<AbusiveChatWarning>(-85),
    row<AccountBalanceInfoUpdateAbsolute>(-84),
    row<AccountBalanceInfoUpdateRelative>(-83),
    row<AccountBalanceInfoMsg>(-82),
    row<MonetaryInfoMsg>(-80),
    row<ShowCashierFailedSystem>(-78),
    row<ShowCashierFailedMoney>(-77),
    row<ShowCashierOk>(-76),
    row<TourSummaryChangeList>(-73),
    row<TourSummaryChangeList>(-72),
    row<UnSubscribeNode>(-68),
    row<TreeReplyUpdate>(-65),
    row<TreeReply>(-64),
    row<VIPInfo>(-62),
    row<GameListUpdate>(-42),
    row<JoinWaitingFail>(-40),
    row<JoinWaitingOk>(-39),
    row<JoinAvailable>(-37),
    row<ClientGlobalChatMsg>(-36),
    row<PlayerStandUp>(-30),
    row<ClientChatMsg>(-23),
    noMessage(-21),
    row<PlayerIGLeft>(-19),
    row<PlayerLeft>(-18),
    row<PlayerJoined>(-15),
    row<GameStateInfoMsg>(-14),
    row<JoinGameFailed>(-13),
    row<JoinLobbyFailed>(-11),
    row<GameList>(-9),
    row<Ping>(-7),
    row<PingInfo>(-6),
    row<LobbyInfoMsg>(-5),
    row<ConnectOk>(-2),
    row<ClientSatIn>(1),
    row<ClientSatOut>(2),
    row<ClientNewRound>(5),
    row<ClientBetBlindReq>(6),
    row<ClientBetReq>(7),
    row<ClientFoldDone>(8),
    row<ClientCheckDone>(9),
    row<ClientAllInDone>(10),
    row<ClientCallDone>(11),
    row<ClientBetDone>(12),
    row<ClientCards>(13),
    row<ClientMuckCardsReq>(15),
    row<ClientShowCardsReq>(16),
    row<ClientWin>(17),
    row<ClientHurryUp>(18),
    row<ClientSlowPlayer>(19),
    row<ClientSlowPlayerBack>(20),
    row<ClientBetsToPot>(23),
    row<ClientShowAllCards>(24),
    row<ClientNextBettingRound>(26),
    row<ClientSetDealerToken>(27),
    row<ClientWaitingToSitIn>(28),
    row<ClientTotalRake>(29),
    row<ClientBetAnteReq>(30),
    row<ClientMuckLosingCardsReq>(32),
    row<ClientBetDeadDone>(33),
    row<ClientTableInfo>(34),
    row<ClientOpenTableReq>(35),
    noMessage(36),
    row<ClientCardsSelectable>(37),
    row<ClientChangeCards>(38),
    row<ClientDiscardCards>(40),
    row<AllInProbabilityResults>(41),
    row<ClientShowdownHandValue>(42),
    row<ClientBettingCapped>(43),
    row<ClientVoteCast>(44),
    row<ClientPlayerTimeout>(45),
    row<ClientSitInWaitingBigBlind>(48),
    row<ClientExtendedWelcomeMessage>(49),
    row<ClientEndRound>(50),
    row<AllInProtectionStatusMsg>(51),
    noMessage(209),
    row<TournamentLobbyReply>(210),
    row<TournamentCreationRulesReply>(230),
    row<CancelTourReplyMsg>(231),
    row<StartTournamentReplyMsg>(232),
    row<CreateTourReplyMsg>(233),
    row<TourCreationRulesFail>(234),
    row<TournamentJoinReplyMsg>(308),
    row<TournamentUnjoinReplyMsg>(309),
    row<TournamentDataWinClientMsg>(312),
    row<TournamentRebuyQueryMsg>(314),
    row<EnteredTourListMsg>(324),
    row<LobbyTourInvitationMsg>(325),
    row<TourBreakInfo>(350),
    row<TourBreakEnd>(351),
    row<TourBreakNotification>(352),
    row<TourSynchInfo>(353),
    row<TourUserRanking>(354),
    row<TourPlayerRankingListInfo>(355),
    row<TourLevelInfoMsg>(356),
    row<TourNotification>(357),
    row<TableNotification>(358),
    row<TourNextLevelInfoMsg>(359),
    row<TourKnockoutInfo>(361),
    row<TourPlayerLeave>(363),
    row<TourPlayerArrive>(364),
    row<TourFlightEndNotification>(365),
    row<SpecificTourSummary>(366),
    row<SpecificTourSummaryUpdate>(367),
    row<LobbyPlayerList>(370),
    row<LobbyTableList>(371),
    row<LobbyTablePlayerList>(372),
    row<TournamentPendingRebuysMsg>(373),
    row<TournamentPlayerNoRebuyNotification>(374),
    row<TourPlayerRebuyNotificationMsg>(375),
    row<TournamentRebuyNotificationMsg>(376),
    row<TourRebuyFailedMsg>(377),
    row<PGGamesSettingsList>(500),
    row<PGCreateGameReply>(501),
    row<PGPlayerReqTimedOut>(502),
    row<PGPromotedModerator>(503),
    row<PGJoinRequestReply>(505),
    row<PGPlayerReqToJoinGame>(520),
};

static_assert(std::ranges::adjacent_find(ROWS, std::ranges::greater_equal(), &ClientMessageRow::id) == std::end(ROWS),
              "the ids ascend and each stands once");

constexpr int LOWEST_ID = ROWS[0].id;
constexpr int HIGHEST_ID = std::end(ROWS)[-1].id;
constexpr std::uint8_t NO_ROW = 255;
static_assert(std::size(ROWS) < NO_ROW);

// The index of each id's row.
constexpr auto ROW_OF_ID = [] {
  std::array<std::uint8_t, HIGHEST_ID - LOWEST_ID + 1> index;
  index.fill(NO_ROW);
  for (std::size_t i = 0; i < std::size(ROWS); ++i)
    index[static_cast<std::size_t>(ROWS[i].id - LOWEST_ID)] = static_cast<std::uint8_t>(i);
  return index;
}();

}  // namespace

std::span<const ClientMessageRow> clientMessageTable() { return ROWS; }

const ClientMessageRow* findClientMessageRow(int id) {
  if (id < LOWEST_ID || id > HIGHEST_ID) return nullptr;
  const std::uint8_t index = ROW_OF_ID[static_cast<std::size_t>(id - LOWEST_ID)];
  return index == NO_ROW ? nullptr : &ROWS[index];
}

}  // namespace Tessel
