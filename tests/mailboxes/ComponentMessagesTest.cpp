#include <gtest/gtest.h>
#include <herald/mailboxes/BasicTexasStatControllerMessages.h>
#include <herald/mailboxes/GameModelNotifMessages.h>
#include <herald/mailboxes/LobbyToGameMessages.h>
#include <herald/mailboxes/PlayerNotesSubscriberMessages.h>
#include <herald/mailboxes/ServerViewMessages.h>
#include <herald/mailboxes/TournamentLobbyControllerMessages.h>
#include <herald/platform/keystone/MVCModel.h>
#include <herald/wire/WireTypes.h>

#include <functional>
#include <string_view>
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
const Model model;

class Update : public NotificationUpdateObject {
 public:
  Update() : NotificationUpdateObject(model) {}
};

const UserLoginProperties login(L"alice", L"secret", true, false);

template <class Kind, class Base, class... Args>
std::function<Base*()> maker(Args... args) {
  return [args...] { return new Counted<Kind>(args...); };
}

struct ControllerRow {
  std::function<TournamentLobbyControllerMessage*()> make;
  std::string_view kind;
  std::wstring text;
};

template <class Kind, class... Args>
ControllerRow row(std::wstring text, Args... args) {
  return {maker<Kind, TournamentLobbyControllerMessage>(args...), typeName<Kind>(), std::move(text)};
}

TEST(ComponentMessages, EachControllerKindReachesItsOperationPrintsItselfAndIsDeletedOnce) {
  const ControllerRow rows[] = {
      row<LCRequestAccountBalance>(L"[LCRequestAccountBalance]"),
      row<LCInformModelThatViewNotInFocus>(L"[LCInformModelThatViewNotInFocus type=3]", 3),
      row<LCRequestGameListNode>(L"[LCRequestGameListNode id=4]", 4, 'a'),
      row<LCClassificationReq>(L"[LCClassificationReq ]", L""),
      row<LCGameSelected>(L"[LCGameSelected: GameId=5]", 5),
      row<LCUserInactive>(L"[LCUserInactive:]"),
      row<LCLeaveWaitingReq>(L"[LCLeaveWaitingReq:]"),
      row<LCCreateTableReq>(
          L"[LCCreateTableReq: TableId=1, MaxPlayers=6, MinBuyIn=200, Moderated=2, Description=mine, Speed=3]", 1, 6,
          PGSettings::JoinType{2}, L"mine", PokerGameInfo::GameSpeed{3}, 200),
      row<LCCreateTable>(L"[LCCreateTable:]"),
      row<LCWaitingReq>(L"[LCWaitingReq:]"),
      row<LCChatMsg>(L"[LCChatMsg: hello]", L"hello"),
      row<LCConnect>(L"[LCConnect: NickName=alice Password=1 rememberPassword=1 autoLogin=0 ]", login),
      row<LCJoinLobbyReq>(L"[LCJoinLobbyReq: 6]", 6),
      row<LCGotoTable>(L"[LCGotoTable: Node id: 7 Game id: 8]", 7, 8),
      row<TLCNotificationUpdate>(L"[TLCNotificationUpdate]", Update()),
      row<TLCStartPrivateTournament>(L"[TLCStartPrivateTournament - tourId=9]", 9),
      row<TLCCancelPrivateTournament>(L"[TLCCancelPrivateTournament - tourId=10]", 10),
      row<TLCUserActive>(L"[TLCUserActive]"),
      row<TLCRequestGameListNode>(L"[LCRequestGameListNode id=11]", 11, 'b'),
      row<TLCRebuyReply>(L"[LCRebuyRequest]", 12),
      row<TLCShowLobby>(L"[TLCShowLobby: 13, iNodeId=14]", CasinoListTypes{13}, 14),
      row<TLCTournamentOpenTableReq>(L"[TLCTournamentOpenTableReq: 15 16 tabnr=16]", 15, 16),
      row<TLCTournamentTableReq>(L"[TLCTournamentTableReq]", 17, 18),
      row<TLCUnregisterForTournament>(L"[TLCUnregisterForTournament: -1]"),
      row<TLCRegisterForTournament>(L"[TLCRegisterForTournament: 19, password=]", 19, L""),
      row<TLCCloseTournamentLobby>(L"[TLCCloseTournamentLobby: -1]"),
      row<TLCChatMsg>(L"[TLCChatMsg: hi 20]", ChatDestination{20}, L"hi"),
      row<TLCJoinTournamentLobbyReq>(L"[TLCJoinTournamentLobbyReq: 21]", 21),
      row<TLCInitConnect>(L"[TLCInitConnect: User=alice, NodeId = 22]", login, 22),
  };
  using Kinds =
      KindList<LCRequestAccountBalance, LCInformModelThatViewNotInFocus, LCRequestGameListNode, LCClassificationReq,
               LCGameSelected, LCUserInactive, LCLeaveWaitingReq, LCCreateTableReq, LCCreateTable, LCWaitingReq,
               LCChatMsg, LCConnect, LCJoinLobbyReq, LCGotoTable, TLCNotificationUpdate, TLCStartPrivateTournament,
               TLCCancelPrivateTournament, TLCUserActive, TLCRequestGameListNode, TLCRebuyReply, TLCShowLobby,
               TLCTournamentOpenTableReq, TLCTournamentTableReq, TLCUnregisterForTournament, TLCRegisterForTournament,
               TLCCloseTournamentLobby, TLCChatMsg, TLCJoinTournamentLobbyReq, TLCInitConnect>;
  Recorder<TournamentLobbyControllerMessageHandler, Kinds> recorder;
  std::vector<std::string_view> expected;
  for (const ControllerRow& each : rows) {
    TournamentLobbyControllerMessage* message = each.make();
    EXPECT_EQ(message->toDebugString(), each.text);
    TournamentLobbyControllerMessageHandler::handle(recorder, message);
    EXPECT_EQ(living, 0) << each.kind;
    expected.push_back(each.kind);
  }
  EXPECT_EQ(expected.size(), 29u);
  EXPECT_EQ(recorder.kinds, expected);
}

// The families whose handlers dispatch by pointer.
template <class Handler, class Base, class Kinds>
void expectDispatch(const std::vector<std::function<Base*()>>& makers, std::vector<std::string_view> expected) {
  Recorder<Handler, Kinds> recorder;
  for (const auto& make : makers) Handler::handle(&recorder, make());
  EXPECT_EQ(recorder.kinds, expected);
  EXPECT_EQ(living, 0);
}

template <class Handler, class Base, class... Kinds>
void expectDispatchOfPlainKinds() {
  expectDispatch<Handler, Base, KindList<Kinds...>>({maker<Kinds, Base>()...}, {typeName<Kinds>()...});
}

TEST(ComponentMessages, TheOtherFamiliesReachTheirOperationsAndAreDeletedOnce) {
  expectDispatchOfPlainKinds<BasicTexasStatControllerMessageHandler, BasicTexasStatControllerMessage, BTSCSetUserName,
                             BTSCHideViews, BTSCShowViews, BTSCNewHand, BTSCReset, BTSCSetGlobalStats,
                             BTSCSetSessionStats, BTSCSetPlayMoney, BTSCSetRealMoney>();

  SettingsInfo settings;
  settings.set(SettingsInfo::SOUND);
  using LTG = LobbyToGameMessage;
  expectDispatch<LobbyToGameMessageHandler, LTG,
                 KindList<UserSettingsUpdate, ShutdownGameModel, BringTableToTop, LobbySettingsMessage>>(
      {maker<UserSettingsUpdate, LTG>(), maker<ShutdownGameModel, LTG>(), maker<BringTableToTop, LTG>(),
       maker<LobbySettingsMessage, LTG>(settings)},
      {"UserSettingsUpdate", "ShutdownGameModel", "BringTableToTop", "LobbySettingsMessage"});
}

// Trivially destructible kinds without a virtual destructor: the sanitizers watch their deletion through the base.
TEST(ComponentMessages, GameModelNotificationsReachTheirOperationsAndAreFreed) {
  const std::vector<std::function<GameModelNotifMessage*()>> makers = {
      [] { return new GMGameIdSwitch(1, 2); },      [] { return new GMGameSelected(1, 2); },
      [] { return new GMFullScreenMode(1, true); }, [] { return new GMLobby(1); },
      [] { return new GMAttention(1, true); },      [] { return new GMLeave(1, GMLeave::ReasonForLeaving{2}, 3); },
  };
  expectDispatch<GameModelNotificationHandler, GameModelNotifMessage,
                 KindList<GMGameIdSwitch, GMGameSelected, GMFullScreenMode, GMLobby, GMAttention, GMLeave>>(
      makers, {"GMGameIdSwitch", "GMGameSelected", "GMFullScreenMode", "GMLobby", "GMAttention", "GMLeave"});
}

TEST(ComponentMessages, NotesAndServerViewMessagesReachTheirOperations) {
  Recorder<PlayerNotesSubscriberMessageHandler, KindList<PNSPlayerNoteText, PNSPlayerNoteNotification>> notes;
  PNSPlayerNoteText(L"me", L"bob", L"bluffs").handle(notes);
  PNSPlayerNoteNotification(L"me", L"bob", true, 3).handle(notes);
  EXPECT_EQ(notes.kinds, (std::vector<std::string_view>{"PNSPlayerNoteText", "PNSPlayerNoteNotification"}));

  Recorder<ServerViewMessageHandler, KindList<ConnectionStatusMessage, ClientDataMessage>> views;
  ConnectionStatusMessage(1, ConnectionUnregistration()).handle(views);
  ClientDataMessage(1, 12, ByteStream()).handle(views);
  EXPECT_EQ(views.kinds, (std::vector<std::string_view>{"ConnectionStatusMessage", "ClientDataMessage"}));
}

TEST(ComponentMessages, MessagesOwnWhatTheyCarry) {
  ByteStream stream;
  stream << std::int32_t{7};
  const ClientDataMessage data(1, 12, stream);
  stream.clear();
  EXPECT_EQ(data.getByteStream().GetSize(), 4);

  const TLCNotificationUpdate update{Update()};
  const TLCNotificationUpdate updateCopy(update);
  EXPECT_NE(update.getNotificationUpdateObject(), updateCopy.getNotificationUpdateObject());
  const ConnectionStatusMessage status(1, ConnectionFailed(ConnectionFailed::CLOSED, L"gone"));
  const ConnectionStatusMessage statusCopy(status);
  EXPECT_NE(status.getConnectionStatus(), statusCopy.getConnectionStatus());
  EXPECT_EQ(statusCopy.getConnectionStatus()->toDebugString(), status.getConnectionStatus()->toDebugString());
}

TEST(ComponentMessages, OnlyThePresenceOfAPasswordIsPrinted) {
  EXPECT_EQ(LCConnect(UserLoginProperties(L"alice", L"", false, true)).toDebugString(),
            L"[LCConnect: NickName=alice Password=0 rememberPassword=0 autoLogin=1 ]");
}

}  // namespace
}  // namespace Tessel
