#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/AllocationCount.h>
#include <tests/support/Told.h>
#include <tests/support/WireBytes.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <typeinfo>

namespace Tessel {
namespace {

using namespace WireBytes;

ByteStream& appendGame(ByteStream& out, int id, int monetaryUnitId) {
  return out << id << L"game" << number16(2) << number16(9) << number16(4) << number16(monetaryUnitId) << 80 << 6;
}

ByteStream& appendPokerGame(ByteStream& out, int monetaryUnitId, int tableFlags) {
  return appendGame(out, 7, monetaryUnitId) << byte(1) << byte(2) << number64(100) << number64(200) << byte(tableFlags);
}

// ---- The lobby tree

void appendNode(ByteStream& out, int id, int nrSubNodes, int nodeType = 0, int lobbyType = 1) {
  out << number16(id) << number16(3) << L"name" << number16(80) << byte(nodeType) << byte(lobbyType)
      << byte(nrSubNodes);
}

// 1 above 5, 2 and 7; 2 above 6 and another 7.
TreeNodeInfo smallTree() {
  ByteStream out;
  const int nodes[][2] = {{1, 3}, {5, 0}, {2, 2}, {6, 0}, {7, 0}, {7, 0}};
  for (const auto& [id, nrSubNodes] : nodes) appendNode(out, id, nrSubNodes);
  return decode<TreeNodeInfo>(out);
}

// Prints "1:2(5:0() 2:0() )" for node 1 above 5 and 2.
class TreePrinter : public FieldSink {
 public:
  explicit TreePrinter(int refusedRecord = 0, bool wantsLayout = false)
      : refusedRecord_(refusedRecord), wantsLayout_(wantsLayout) {}

  void number(std::string_view name, WireType, std::int64_t value) override {
    if (name == "id") text_ << value;
  }
  void text(std::string_view, std::string_view, bool) override {}
  bool beginRecord(std::string_view, std::string_view type) override {
    EXPECT_EQ(type, "TreeNodeInfo");
    return ++records_ != refusedRecord_;
  }
  void endRecord() override { text_ << ' '; }
  void beginList(std::string_view, WireType countType, std::int64_t count) override {
    EXPECT_EQ(countType, WireType::BYTE);
    text_ << ':' << count << '(';
  }
  void endList() override { text_ << ')'; }
  void beginConditional(bool) override {}
  void endConditional() override {}
  bool wantsLayout() const override { return wantsLayout_; }

  int records() const { return records_; }
  std::string text() const { return text_.str(); }

 private:
  std::ostringstream text_;
  int records_ = 0;
  int refusedRecord_;
  bool wantsLayout_;
};

TEST(TreeNodeInfo, AnswersForItsBits) {
  ByteStream out;
  appendNode(out, 1, -128, 0b101, 3);
  const auto node = decode<TreeNodeInfo>(out);
  EXPECT_EQ(told(node.isSubscribable(), node.wasLastSelectedNode(), node.isPrivate(), node.isTournamentNode(),
                 node.getNumSubNodes()),
            "1 0 1 1 0");
  const std::string kinds[] = {"1 0 0", "0 1 0", "0 0 1", "0 0 1", "0 0 0"};
  for (int lobbyType = 0; lobbyType < 5; ++lobbyType) {
    ByteStream body;
    appendNode(body, 1, 0, 0, lobbyType);
    const auto ofType = decode<TreeNodeInfo>(body);
    EXPECT_EQ(told(ofType.isRootNode(), ofType.isRingGameNode(), ofType.isTournamentNode()), kinds[lobbyType]);
  }
  EXPECT_EQ(TreeNodeInfo(1, 2, true, 3).toDebugString(),
            L"[TreeNodeInfo - iId=1, iNameId=2, iDefaultName=, iPort=3, iNodeType=1, iLobbyType=-1");
}

TEST(TreeNodeInfo, FindsTheFirstLeafOnly) {
  const TreeNodeInfo tree = smallTree();
  EXPECT_EQ(tree.getNodeInTree(7), &tree.getSubNode(1).getSubNode(1));
  EXPECT_EQ(tree.getNodeInTree(5), &tree.getSubNode(0));
  EXPECT_EQ(tree.getNodeInTree(1), nullptr);
  EXPECT_EQ(tree.getNodeInTree(2), nullptr);
  EXPECT_THROW(tree.getSubNode(3), OutOfBoundsException);
}

TEST(TreeNodeInfo, DescribesItself) {
  struct {
    TreePrinter sink;
    std::string text;
  } cases[] = {
      {TreePrinter(), "1:3(5:0() 2:2(6:0() 7:0() ) 7:0() )"},
      {TreePrinter(2), "1:3(5:0()  7:0() )"},
      {TreePrinter(0, true), "1:3( )"},
  };
  const TreeNodeInfo tree = smallTree();
  for (auto& [sink, text] : cases) {
    tree.describe(sink);
    EXPECT_EQ(sink.text(), text);
  }
}

TEST(TreeNodeInfo, IsAssignedFromItsOwnSubNode) {
  TreeNodeInfo tree = smallTree();
  tree = tree.getSubNode(1);
  EXPECT_EQ(tree.getId(), 2);
  EXPECT_EQ(tree.getNumSubNodes(), 2);
  ByteStream leaf;
  appendNode(leaf, 4, 0);
  tree.read(leaf);
  EXPECT_EQ(tree.getNumSubNodes(), 0);
}

TEST(TreeNodeInfo, NeedsNoStackForItsDepth) {
  constexpr int LEVELS = 150'000;
  ByteStream out;
  for (int level = 0; level < LEVELS; ++level) {
    appendNode(out, 1, 2);
    appendNode(out, 2, 0);
  }
  appendNode(out, 3, 0);

  const auto tree = decode<TreeNodeInfo>(out);
  TreeNodeInfo copy(tree);
  copy = tree;
  EXPECT_EQ(copy.size(), out.GetSize());
  const TreeNodeInfo* leaf = copy.getNodeInTree(3);
  ASSERT_NE(leaf, nullptr);
  EXPECT_EQ(leaf->getNumSubNodes(), 0);
  TreePrinter sink;
  copy.describe(sink);
  EXPECT_EQ(sink.records(), 2 * LEVELS);
}

TEST(TreeNodeInfo, AllocatesPerGroupOfSubNodes) {
  ByteStream out;
  appendNode(out, 1, 100);
  for (int id = 0; id < 100; ++id) appendNode(out, id, 0);
  TreeNodeInfo tree;
  const int before = allocationCount();
  tree.read(out);
  EXPECT_LE(allocationCount() - before, 5);
}

TEST(TreeNodeInfo, RefusesMoreSubNodesThanTheBytesCanHold) {
  ByteStream out;
  for (int level = 0; level < 50'000; ++level) appendNode(out, 1, 127);
  TreeNodeInfo tree;
  EXPECT_THROW(tree.read(out), KeystoneException);
  EXPECT_GT(out.unreadCount(), out.bytes().size() * 9 / 10);
}

TEST(TypedVectors, RefuseElementsOfAnotherClass) {
  ByteStream out;
  out << 1 << L"com.tessel.shared.info.TreeNodeInfo";
  appendNode(out, 5, 0);
  const auto nodes = decode<TreeNodeInfoList>(out);
  EXPECT_EQ(nodes.getTreeNodeInfo(0).getId(), 5);
  EXPECT_THROW(nodes.getTreeNodeInfo(1), OutOfBoundsException);
  EXPECT_THROW(decode<VIPList>(out).getVIPPlayer(0), std::bad_cast);
  EXPECT_THROW(decode<PGSettingsInfoList>(out).getGameInfo(0), std::bad_cast);
  const auto copy = nodes.cloneOwned();
  EXPECT_EQ(dynamic_cast<const TreeNodeInfoList&>(*copy).getTreeNodeInfo(0).getId(), 5);
}

// ---- Games and their lobbies

TEST(PokerGameInfo, TakesItsFlagsApart) {
  ByteStream out;
  const auto game = decode<PokerGameInfo>(appendPokerGame(out, 3, 0x2E));
  const PokerGameInfo same(game, game.getGameType(), game.getLimitType(), 100, 200, true, true,
                           PokerGameInfo::GameSpeed{2}, false, true);
  for (const PokerGameInfo& info : {game, same}) {
    EXPECT_EQ(told(info.getGameSpeed(), info.isPrivate(), info.isModerated(), info.iIsBootable(), info.isNetworkTable(),
                   info.getGameType()->getValue(), info.getLimitType()->getValue()),
              "2 1 1 0 1 1 2");
    EXPECT_EQ(std::unique_ptr<LobbyNodeInterface>(info.cloneNode())->getLobbyNodeId(), 7);
  }
}

TEST(GameInfo, IsWrittenWithAWideMonetaryUnit) {
  ByteStream in, out, expected;
  auto game = decode<GameInfo>(appendGame(in, 7, -3));
  EXPECT_FALSE(game.isFull());
  game.setNrPlayers(10);
  EXPECT_TRUE(game.isFull());
  EXPECT_TRUE(game.write(out));
  expected << 7 << L"game" << number16(10) << number16(9) << number16(4) << -3 << 80 << 6;
  EXPECT_TRUE(std::ranges::equal(out.bytes(), expected.bytes()));
}

// ---- Players

TEST(VIPPlayerInfo, HasAnIconPerBit) {
  const struct {
    int vipType;
    TsArray<int> icons;
  } cases[] = {{0, {1}}, {0b1010, {1, 3}}, {0b100, {2}}, {0b10001, {1}}, {-1, {1, 2, 3}}};
  for (const auto& [vipType, icons] : cases) {
    ByteStream out;
    out << 1 << false << byte(0) << vipType << L"" << 0;
    EXPECT_EQ(decode<VIPPlayerInfo>(out).getVIPIcons(), icons) << vipType;
  }
}

TEST(PingInfoInfo, IsNotWritten) {
  ByteStream out;
  const PingInfoInfo info;
  EXPECT_FALSE(static_cast<const WritableObjectInfo&>(info).write(out));
  EXPECT_EQ(out.GetSize(), 0);
}

TEST(ChatMessage, KnowsTheOperatorsPrefix) {
  EXPECT_EQ(ChatMessage::getPrefixChar(L"^Hello"), ChatMessage::ADMIN_PREFIX_CHAR);
  EXPECT_EQ(ChatMessage::getPrefixChar(L""), L"");
}

TEST(SettingsInfo, SetsAndClearsFlags) {
  ByteStream in;
  auto settings = decode<SettingsInfo>(in << number64(0x1'0000'0003));
  EXPECT_TRUE(settings.isSet(SettingsInfo::SOUND | SettingsInfo::SHOW_HALO));
  EXPECT_FALSE(settings.isSet(SettingsInfo::SHOW_HALO));
  settings.set(SettingsInfo::SHOW_CASH);
  EXPECT_EQ(settings.getUINTFormat(), 0x1'0000'0007);
  settings.unSet(SettingsInfo::SOUND);
  EXPECT_EQ(settings.getUINTFormat(), 6);
}

// ---- Messages

TEST(NodeIds, AreSetByUpdatesAndByUnsubscribingButNotByGameLists) {
  const auto update = golden<GameListUpdate>();
  const auto list = golden<GameList>();
  EXPECT_EQ(told(update.getNodeId(), static_cast<const ClientMessage&>(update).getNodeId(),
                 golden<UnSubscribeNode>().getNodeId(), list.getNodeId(),
                 static_cast<const ClientMessage&>(list).getNodeId()),
            "-420 -420 -680 -90 -1");
}

TEST(NumPlayersLoggedIn, IsRead) {
  ByteStream out;
  const auto message = decode<NumPlayersLoggedIn>(out << 1 << 2 << 3 << 4 << 5);
  EXPECT_EQ(told(message.getRealPlayersAtTable(), message.getPlayPlayersAtTable(), message.getNumRealTables(),
                 message.getNumPlayTables(), message.getRealMoneyAtTables()),
            "1 2 3 4 5");
  EXPECT_EQ(message.toDebugString(),
            L"[NumPlayersLoggedInMsg: iRealPlayersAtTable=1, iPlayPlayersAtTable=2, iNumRealTables=3, "
            L"iNumPlayTables=4, iRealMoneyAtTables=5]");
}

// ---- Money

class MonetaryRecords : public testing::Test {
 protected:
  ~MonetaryRecords() override { MoneyModel::getInstance().replaceAll({}, {}, {}); }

  // Unit 3 is real dollars, unit 4 play chips without a currency.
  static MonetaryInfo monetaryInfo() {
    ByteStream out;
    out << byte(2) << number16(3) << L"real" << L"USD" << number16(4) << L"play" << L"none";
    out << byte(2) << L"real" << L"Real" << byte(4) << byte(1) << L"play" << L"Play" << byte(3) << byte(2);
    out << byte(1) << L"USD" << L"$" << L" US" << number16(100) << byte(1);
    return decode<MonetaryInfo>(out);
  }

  static PGSettingsInfo settingsIn(int monetaryUnitId) {
    ByteStream out;
    out << 1 << byte(0) << byte(2) << L"text" << number16(monetaryUnitId) << number64(5) << number64(10);
    return decode<PGSettingsInfo>(out);
  }
};

TEST_F(MonetaryRecords, FillTheMoneyModel) {
  ByteStream out;
  const auto game = decode<PokerGameInfo>(appendPokerGame(out, 3, 0));
  EXPECT_EQ(game.getLimits().toString(), L"100/200");
  monetaryInfo().applyTo(MoneyModel::getInstance());
  EXPECT_EQ(Money(5, 3).toString(), L"$5 US");
  EXPECT_EQ(Money(5, 4).toString(), L"5");
  EXPECT_EQ(game.getLimits().toString(), L"$100 US/$200 US");
  const PGSettingsInfo settings = settingsIn(3);
  EXPECT_TRUE(settings.isRealMoneyGame());
  EXPECT_FALSE(settingsIn(4).isRealMoneyGame());
  MoneyModel::getInstance().replaceAll({}, {}, {});
  EXPECT_EQ(settings.toDebugString(),
            L"[PGSettingsInfo: settingId=1, gameType=0, description=text, limit=$5 US/$10 US]")
      << "the limits are those of the time of reading";
}

TEST_F(MonetaryRecords, DoNotGuessTheTypeOfAnUnknownUnit) {
  try {
    settingsIn(3).isRealMoneyGame();
    FAIL();
  } catch (const KeystoneException& failure) {
    EXPECT_EQ(failure.getText(), L"Cannot find Monetary Type (id=3)");
    EXPECT_EQ(failure.getFile(), L"messages/info_objects/PGSettingsInfo");
  }
}

TEST_F(MonetaryRecords, AnswerDefaultsBeyondTheirEnds) {
  const MonetaryInfo info = monetaryInfo();
  EXPECT_EQ(told(info.getMonetaryUnitInfo(1).getId(), info.getMonetaryUnitInfo(2).getId(),
                 info.getMonetaryTypeInfo(1).isRefillable(), info.getMonetaryTypeInfo(-1).getName(),
                 info.getCurrencyInfo(0).getCutOffAmount(), info.getCurrencyInfo(1).getCutOffAmount()),
            "4 -1 1  100 -1");

  const auto balances = golden<AccountBalanceInfo>();
  EXPECT_EQ(told(balances.getAccountBalance(1), balances.getAccountBalance(2), balances.getAccountBalance(-1)),
            "174/-173 0/-1 0/-1");
}

}  // namespace
}  // namespace Tessel
