#include <gtest/gtest.h>
#include <herald/herald.h>

#include <functional>
#include <memory>
#include <string_view>
#include <type_traits>
#include <vector>

namespace Tessel {
namespace {

template <class... Kinds>
struct KindList {};

/// Overrides the operation of each kind, and keeps the kind whose operation ran.
template <class Handler, class Kinds>
class Recorder;

template <class Handler>
class Recorder<Handler, KindList<>> : public Handler {
 public:
  using Handler::handle;
  std::vector<std::string_view> kinds;
};

template <class Handler, class First, class... Rest>
class Recorder<Handler, KindList<First, Rest...>> : public Recorder<Handler, KindList<Rest...>> {
 public:
  using Recorder<Handler, KindList<Rest...>>::handle;
  void handle(const First&) override { this->kinds.push_back(typeName<First>()); }
};

int living = 0;

// A kind whose constructions and destructions are counted.
template <class Kind>
class Counted : public Kind {
 public:
  template <class... Args>
  explicit Counted(Args&&... args) : Kind(std::forward<Args>(args)...) {
    ++living;
  }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() override { --living; }
};

class Model : public MVCModel {};
const Model MODEL;

class Update : public NotificationUpdateObject {
 public:
  Update() : NotificationUpdateObject(MODEL) {}
};

const UserLoginProperties LOGIN(L"alice", L"secret", true, false);

/// How a message is made, and the text that it prints where its family prints at all.
template <class Kind>
struct Row {
  std::function<Kind*()> make;
  std::wstring text;
};

template <class Kind, class... Args>
Row<Kind> row(std::wstring text = L"", Args... args) {
  using Made = std::conditional_t<std::has_virtual_destructor_v<Kind>, Counted<Kind>, Kind>;
  return {[args...] { return new Made(args...); }, std::move(text)};
}

template <class Handler, class Kinds, class Kind>
void expectDelivery(const Row<Kind>& row) {
  SCOPED_TRACE(typeName<Kind>());
  Recorder<Handler, Kinds> recorder;
  Kind* message = row.make();
  if constexpr (requires { message->toDebugString(); }) {
    EXPECT_EQ(message->toDebugString(), row.text);
  }
  if constexpr (requires { Handler::handle(recorder, message); })
    Handler::handle(recorder, message);
  else if constexpr (requires { Handler::handle(&recorder, message); })
    Handler::handle(&recorder, message);
  else
    std::unique_ptr<Kind>(message)->handle(recorder);
  EXPECT_EQ(recorder.kinds, std::vector{typeName<Kind>()});
  EXPECT_EQ(living, 0);
}

/// The kinds are all that the handler has operations for: it would be abstract without one.
template <class Handler, class... Kinds>
void expectDeliveries(const Row<Kinds>&... rows) {
  (expectDelivery<Handler, KindList<Kinds...>>(rows), ...);
}

TEST(ComponentMessages, EachControllerKindReachesItsOperationPrintsItselfAndIsDeletedOnce) {
  expectDeliveries<TournamentLobbyControllerMessageHandler>(
      row<LCRequestAccountBalance>(L"[LCRequestAccountBalance]"),
      row<LCInformModelThatViewNotInFocus>(L"[LCInformModelThatViewNotInFocus type=3]", 3),
      row<LCRequestGameListNode>(L"[LCRequestGameListNode id=4]", 4, 'a'),
      row<LCClassificationReq>(L"[LCClassificationReq ]", L""), row<LCGameSelected>(L"[LCGameSelected: GameId=5]", 5),
      row<LCUserInactive>(L"[LCUserInactive:]"), row<LCLeaveWaitingReq>(L"[LCLeaveWaitingReq:]"),
      row<LCCreateTableReq>(
          L"[LCCreateTableReq: TableId=1, MaxPlayers=6, MinBuyIn=200, Moderated=2, Description=mine, Speed=3]", 1, 6,
          PGSettings::JoinType{2}, L"mine", PokerGameInfo::GameSpeed{3}, 200),
      row<LCCreateTable>(L"[LCCreateTable:]"), row<LCWaitingReq>(L"[LCWaitingReq:]"),
      row<LCChatMsg>(L"[LCChatMsg: hello]", L"hello"),
      row<LCConnect>(L"[LCConnect: NickName=alice Password=1 rememberPassword=1 autoLogin=0 ]", LOGIN),
      row<LCJoinLobbyReq>(L"[LCJoinLobbyReq: 6]", 6), row<LCGotoTable>(L"[LCGotoTable: Node id: 7 Game id: 8]", 7, 8),
      row<TLCNotificationUpdate>(L"[TLCNotificationUpdate]", Update()),
      row<TLCStartPrivateTournament>(L"[TLCStartPrivateTournament - tourId=9]", 9),
      row<TLCCancelPrivateTournament>(L"[TLCCancelPrivateTournament - tourId=10]", 10),
      row<TLCUserActive>(L"[TLCUserActive]"), row<TLCRequestGameListNode>(L"[LCRequestGameListNode id=11]", 11, 'b'),
      row<TLCRebuyReply>(L"[LCRebuyRequest]", 12),
      row<TLCShowLobby>(L"[TLCShowLobby: 13, iNodeId=14]", CasinoListTypes{13}, 14),
      row<TLCTournamentOpenTableReq>(L"[TLCTournamentOpenTableReq: 15 16 tabnr=16]", 15, 16),
      row<TLCTournamentTableReq>(L"[TLCTournamentTableReq]", 17, 18),
      row<TLCUnregisterForTournament>(L"[TLCUnregisterForTournament: -1]"),
      row<TLCRegisterForTournament>(L"[TLCRegisterForTournament: 19, password=]", 19, L""),
      row<TLCCloseTournamentLobby>(L"[TLCCloseTournamentLobby: -1]"),
      row<TLCChatMsg>(L"[TLCChatMsg: hi 20]", ChatDestination{20}, L"hi"),
      row<TLCJoinTournamentLobbyReq>(L"[TLCJoinTournamentLobbyReq: 21]", 21),
      row<TLCInitConnect>(L"[TLCInitConnect: User=alice, NodeId = 22]", LOGIN, 22));
}

TEST(ComponentMessages, TheOtherFamiliesReachTheirOperationsAndAreDeletedOnce) {
  expectDeliveries<BasicTexasStatControllerMessageHandler>(
      row<BTSCSetUserName>(), row<BTSCHideViews>(), row<BTSCShowViews>(), row<BTSCNewHand>(), row<BTSCReset>(),
      row<BTSCSetGlobalStats>(), row<BTSCSetSessionStats>(), row<BTSCSetPlayMoney>(), row<BTSCSetRealMoney>());
  expectDeliveries<LobbyToGameMessageHandler>(row<UserSettingsUpdate>(), row<ShutdownGameModel>(),
                                              row<BringTableToTop>(), row<LobbySettingsMessage>(L"", SettingsInfo()));
  expectDeliveries<PlayerNotesSubscriberMessageHandler>(row<PNSPlayerNoteText>(L"", L"me", L"bob", L"bluffs"),
                                                        row<PNSPlayerNoteNotification>(L"", L"me", L"bob", true, 3));
  expectDeliveries<ServerViewMessageHandler>(row<ConnectionStatusMessage>(L"", 1, ConnectionUnregistration()),
                                             row<ClientDataMessage>(L"", 1, 12, ByteStream()));
  // Trivially destructible kinds without a virtual destructor: the sanitizers watch their deletion through the base.
  expectDeliveries<GameModelNotificationHandler>(
      row<GMGameIdSwitch>(L"", 1, 2), row<GMGameSelected>(L"", 1, 2), row<GMFullScreenMode>(L"", 1, true),
      row<GMLobby>(L"", 1), row<GMAttention>(L"", 1, true), row<GMLeave>(L"", 1, GMLeave::ReasonForLeaving{2}, 3));
}

TEST(ComponentMessages, MessagesOwnWhatTheyCarry) {
  ByteStream stream;
  stream << std::int32_t{7};
  const ClientDataMessage data(1, 12, stream);
  stream.clear();
  EXPECT_EQ(data.getByteStream().GetSize(), 4);
  EXPECT_EQ(std::pair(data.getConnectionId(), data.getPacketDescriptor()), std::pair(1, 12));

  const auto update = std::make_unique<TLCNotificationUpdate>(Update());
  const TLCNotificationUpdate updateCopy(*update);
  EXPECT_NE(update->getNotificationUpdateObject(), updateCopy.getNotificationUpdateObject());
  const auto status = std::make_unique<ConnectionStatusMessage>(1, ConnectionFailed(ConnectionFailed::CLOSED, L"gone"));
  const ConnectionStatusMessage statusCopy(*status);
  EXPECT_NE(status->getConnectionStatus(), statusCopy.getConnectionStatus());
  EXPECT_EQ(statusCopy.getConnectionStatus()->toDebugString(), status->getConnectionStatus()->toDebugString());
}

TEST(ComponentMessages, OnlyThePresenceOfAPasswordIsPrinted) {
  EXPECT_EQ(LCConnect(UserLoginProperties(L"alice", L"", false, true)).toDebugString(),
            L"[LCConnect: NickName=alice Password=0 rememberPassword=0 autoLogin=1 ]");
}

}  // namespace
}  // namespace Tessel
