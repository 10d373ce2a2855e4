#include <herald/messages/LobbyRequests.h>
#include <herald/messages/PrivateGameRequests.h>
#include <herald/messages/RebuyRequests.h>
#include <herald/messages/RequestOperations.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/messages/TableRequests.h>
#include <herald/messages/TournamentCreationRequests.h>
#include <herald/messages/TournamentLobbyRequests.h>

#include <algorithm>
#include <iterator>

namespace Tessel {

namespace {

template <class Request>
std::unique_ptr<ServerMessage> create() {
  return std::make_unique<Request>();
}

template <class Request>
bool read(ServerMessage& request, ByteStream& body) {
  return readLayout(static_cast<Request&>(request), body);
}

template <class Request>
constexpr ServerMessageRow row() {
  return {Request::ID, typeName<Request>(), create<Request>, read<Request>};
}

constexpr ServerMessageRow ROWS[] = {
    row<AccountBalanceInfoReq>(),
    row<MonetaryInfoReq>(),
    row<ShowCashierReq>(),
    row<UnSubscribeNodeReq>(),
    row<SubscribeNodeReq>(),
    row<GetTreeReq>(),
    row<UnSubscribeVIPs>(),
    row<VIPRequest>(),
    row<GameListRequestMsg>(),
    row<LeaveWaitingReq>(),
    row<JoinWaitingReq>(),
    row<ServerGlobalChatMsg>(),
    row<PlayerStandUpReq>(),
    row<ReserveMoney>(),
    row<SitDownRequest>(),
    row<ServerChatMsg>(),
    row<PlayerLeaveGame>(),
    row<JoinGameRequest>(),
    row<JoinLobbyRequest>(),
    row<Pong>(),
    row<ServerSitIn>(),
    row<ServerSitOut>(),
    row<ServerBet>(),
    row<ServerFold>(),
    row<ServerCheckCall>(),
    row<ServerAllIn>(),
    row<ServerMuckCards>(),
    row<ServerShowCards>(),
    row<ServerImBack>(),
    row<ServerSettings>(),
    row<ServerInTurnAction>(),
    row<ServerHurryAck>(),
    row<TableInfoReq>(),
    row<PlayerCastVote>(),
    row<PlayerCancelVote>(),
    row<WaitForBigBlind>(),
    row<DoNotWaitForBigBlind>(),
    row<AutoPostBlind>(),
    row<ManualPostBlind>(),
    row<ServerDiscardCards>(),
    row<TournamentLobbyReq>(),
    row<TournamentTableReqMsg>(),
    row<TournamentJoinRequestMsg>(),
    row<TournamentUnjoinRequestMsg>(),
    row<TournamentDataReqWinClient>(),
    row<TournamentRebuyReplyMsg>(),
    row<TournamentCreationRulesReq>(),
    row<CancelTournamentReq>(),
    row<StartTournamentReq>(),
    row<CreateTournamentReq>(),
    row<PGJoinGameReq>(),
    row<PGGamesSettingsListReq>(),
    row<PGCreateGameReq>(),
    row<PGPlayerCancelJoinGameGameReq>(),
    row<PGPlayerJoinRequestReply>(),
};

static_assert(std::ranges::adjacent_find(ROWS, std::ranges::greater_equal(), &ServerMessageRow::id) == std::end(ROWS),
              "the ids ascend and each stands once");

}  // namespace

std::span<const ServerMessageRow> serverMessageTable() { return ROWS; }

const ServerMessageRow* findServerMessageRow(int id) {
  const auto row = std::ranges::lower_bound(ROWS, id, {}, &ServerMessageRow::id);
  return row != std::end(ROWS) && row->id == id ? row : nullptr;
}

}  // namespace Tessel
