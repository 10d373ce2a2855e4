#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/Golden.h>
#include <tests/support/Notation.h>
#include <tests/support/RecordingSink.h>
#include <tests/support/VisitingHandler.h>

#include <algorithm>
#include <concepts>
#include <functional>
#include <memory>
#include <set>

namespace Tessel {

namespace {

using Bytes = std::vector<std::uint8_t>;

void expectValues(Inspectable object, const std::wstring& text, const GoldenCase& golden) {
  if (golden.text) {
    EXPECT_EQ(UTFEncoder::toUTF8(text), *golden.text);
  }
  if (!golden.values) return;
  EXPECT_EQ(valuesOf(object), *golden.values);
  EXPECT_EQ(toHex(encodedOf(object)), toHex(golden.encoded()));
}

template <class T>
void expectValues(const T& object, const GoldenCase& golden) {
  expectValues(object, object.toDebugString(), golden);
}

template <class T>
concept Assignable = std::default_initializable<T> && std::copyable<T>;

// Copies live on when what they were made from is gone.
template <class T>
void expectCopies(std::unique_ptr<T> object, const GoldenCase& golden) {
  const T copy(*object);
  T assigned;
  assigned = *object;
  std::unique_ptr<ReadableObjectInfo> clone;
  if constexpr (std::derived_from<T, ReadableObjectInfo>) clone = object->cloneOwned();
  object.reset();
  expectValues(copy, golden);
  expectValues(assigned, golden);
  if (!clone) return;
  const ReadableObjectInfo& cloned = *clone;
  expectValues(cloned, golden);
  EXPECT_EQ(typeid(cloned), typeid(T));
}

// The handler interface names classes that are requests, and two that applications define.
template <class Message>
concept Complete = requires {
  sizeof(Message);
};
template <class Message>
concept CopyableMessage = Complete<Message> && std::derived_from<Message, ClientMessage> && Assignable<Message>;

// What a message has read lies in memory of its own, which a move takes along and a copy leaves behind.
struct CopyTester {
  template <class Message>
  void operator()(const Message&) const {
    if constexpr (CopyableMessage<Message>) {
      expectCopies(read<Message>(), *golden);
      const Message moved(std::move(*read<Message>()));
      expectValues(moved, *golden);
      const auto target = read<Message>();
      *target = std::move(*read<Message>());
      expectValues(*target, *golden);
      *target = Message(*read<Message>());
      expectValues(*target, *golden);
    }
  }

  template <class Message>
  std::unique_ptr<Message> read() const {
    auto message = std::make_unique<Message>();
    ByteStream in(golden->bytes);
    EXPECT_EQ(message->read(in), golden->result);
    return message;
  }

  const GoldenCase* golden;
};

void expectReportOf(const KVRException& report, const std::string& className) {
  EXPECT_EQ(report.getFile(), L"messages/ClientMessageFactory") << className;
  EXPECT_EQ(report.getDetail(), L"Unknown error when reading message " + report.getText()) << className;
}

void checkMessage(const GoldenCase& golden) {
  const WithRecordingSink recording;
  ByteStream in(golden.bytes);
  const DecodedMessage decoded = ClientMessageFactory::decode(*golden.id, in);
  const auto& reports = recording.sink->reports;
  EXPECT_EQ(reports.size(), golden.reports + (golden.throws ? 1 : 0));
  if (golden.throws) {
    EXPECT_EQ(decoded.outcome, DecodeOutcome::READ_THREW);
    if (!golden.throws->empty()) {
      EXPECT_EQ(UTFEncoder::toUTF8(decoded.reason), *golden.throws);
    }
    ASSERT_FALSE(reports.empty());
    expectReportOf(reports.back(), golden.name);
    if (golden.text) {
      EXPECT_EQ(UTFEncoder::toUTF8(reports.back().getText()), *golden.text);
    }
    return;
  }
  EXPECT_EQ(decoded.outcome, golden.result ? DecodeOutcome::DECODED : DecodeOutcome::READ_ANSWERED_FALSE);
  EXPECT_EQ(decoded.bytesLeft, golden.left);
  ASSERT_TRUE(decoded.message);
  expectValues(*decoded.message, golden);
  VisitingHandler handler(CopyTester{&golden});
  decoded.message->handle(handler);
}

// The protocol fixes what is written but not the size of what is only read; here it is that of the wire form.
template <class T>
void expectWritten(const T& record, const GoldenCase& golden) {
  if constexpr (requires { record.size(); } && !std::derived_from<T, InfoVector>) {
    EXPECT_EQ(record.size(), static_cast<int>(golden.encoded().size()));
  }
  if constexpr (std::derived_from<
                    T, WritableObjectInfo> && !std::same_as<T, TableInformation> && !std::same_as<T, PingInfoInfo>) {
    ByteStream out;
    EXPECT_TRUE(record.write(out));
    EXPECT_EQ(toHex(out.bytes()), toHex(golden.encoded()));
  }
}

// Into an object that holds something already; a tagged list alone appends to it.
template <class T>
void expectReadAgain(T& record, const GoldenCase& golden) {
  if (golden.throws || std::derived_from<T, InfoVector>) return;
  ByteStream in(golden.bytes);
  EXPECT_EQ(record.read(in), golden.result);
  expectValues(record, golden);
}

template <class T>
void checkRecord(const GoldenCase& golden) {
  const WithRecordingSink recording;
  ByteStream in(golden.bytes);
  auto record = std::make_unique<T>();
  try {
    EXPECT_EQ(record->read(in), golden.result);
    EXPECT_FALSE(golden.throws);
    EXPECT_EQ(in.unreadCount(), golden.left);
    if (golden.values) expectWritten(*record, golden);
  } catch (const std::exception& failure) {
    ASSERT_TRUE(golden.throws) << failure.what();
    if (!golden.throws->empty()) {
      EXPECT_EQ(failure.what(), *golden.throws);
    }
  }
  EXPECT_EQ(recording.sink->reports.size(), golden.reports);
  expectValues(*record, golden);
  expectReadAgain(*record, golden);
  if constexpr (std::constructible_from<T, ByteStream&>) {
    if (golden.throws) return;
    ByteStream again(golden.bytes);
    expectValues(T(again), golden);
  }
  expectCopies(std::move(record), golden);
}

template <class T>
void readAnything(std::span<const std::uint8_t> bytes) {
  const WithRecordingSink recording;
  ByteStream in(bytes);
  T record;
  try {
    record.read(in);
  } catch (const std::exception&) {
  }
  record.toDebugString();
  valuesOf(record);
  [[maybe_unused]] const T copy(record);
}

struct RecordRow {
  std::string_view name;
  void (*check)(const GoldenCase& golden);
  void (*readAnything)(std::span<const std::uint8_t> bytes);
};

template <class... Records>
std::vector<RecordRow> rowsOf() {
  return {{typeName<Records>(), checkRecord<Records>, readAnything<Records>}...};
}

const RecordRow& recordRow(const std::string& name) {
  static const auto rows =
      rowsOf<AccountBalanceInfo, AmountInfo, BetRequestInfo, BlindLevelSpeedInfo, CancelTourReply, CardInfo, CardsInfo,
             CashierInfo, ChangeCardsInfo, ChatMessage, ClientSatInInfo, ClientSatOutInfo, CreateTourReply, CreditInfo,
             CurrencyInfo, DealtCardsInfo, DiscardCardsInfo, EnteredTour, GameIdInfo, GameInfo, GameInfoList,
             HandValueInfo, InfoVector, JoinRequest, JoinRequestStatus, LobbyInfo, LobbyItemInfo, LobbyPlayerInfo,
             LobbyTableInfo, MonetaryInfo, MonetaryPrizeInfo, MonetaryTypeInfo, MonetaryUnitInfo, MoneyInfo,
             NewRoundInfo, PGSettingsInfo, PGSettingsInfoList, PigIDInfo, PingInfoInfo, PingInfoList, PlayerActionsInfo,
             PlayerId, PlayerInfo, PlayerInGameInfo, PlayerSatDownInfo, PlayerStateInfo, PokerGameInfo,
             PokerGameStateInfo, PokerLobbyInfo, PokerRulesInfo, PokerSelfPlayerInfo, PrivateTourBuyInFeeType,
             PrivateTourGameType, PrivateTourLimitTypes, PrivateTourMonetaryBuyInFeeType, PrivateTourSeatsPerTableType,
             PrivateTourTimeIntervalType, PrivateTourType, RankedPlayerInfo, ReserveMoneyReplyInfo, SelfPlayerInfo,
             SettingsInfo, SitDownReplyInfo, SlowPlayerInfo, StartTournamentReply, SubscriptionInfo, TableInformation,
             TesselBool, TesselByte, TesselInt, TicketPrizeInfo, TourInvitation, TreeNodeInfo, TreeNodeInfoList,
             TsString, VIPList, VIPPlayerInfo, VoteCastInfo, WinPotInfo>();
  const auto found = std::ranges::find(rows, name, &RecordRow::name);
  if (found == rows.end()) throw std::out_of_range(name);
  return *found;
}

TEST(Golden, BodiesBecomeTheirValuesAndBackAgain) {
  for (const GoldenCase& golden : goldenCases()) {
    SCOPED_TRACE(golden.where + ' ' + golden.name);
    if (golden.id)
      checkMessage(golden);
    else
      recordRow(golden.name).check(golden);
  }
}

TEST(Golden, EveryMessageHasACaseAndEveryCaseItsMessage) {
  std::set<std::pair<int, std::string_view>> cases;
  for (const GoldenCase& golden : goldenCases()) {
    if (golden.id) cases.emplace(*golden.id, golden.name);
  }
  for (const ClientMessageRow& row : clientMessageTable()) {
    if (row.create != nullptr) {
      EXPECT_EQ(cases.erase({row.id, row.name}), 1u) << row.name << ' ' << row.id;
    }
  }
  for (const auto& [id, name] : cases) ADD_FAILURE() << "no such message: " << name << ' ' << id;
}

// What is read of such bytes tells values that make a body of the same values.
void expectSameAgain(int id, const ClientMessage& message) {
  const Bytes bytes = encodedOf(message);
  ByteStream in(bytes);
  const DecodedMessage again = ClientMessageFactory::decode(id, in);
  ASSERT_TRUE(again.message);
  EXPECT_EQ(valuesOf(*again.message), valuesOf(message));
}

// Any bytes end in a message, or in one report behind those of its texts.
DecodeOutcome expectOutcome(int id, std::span<const std::uint8_t> bytes, const std::string& name) {
  const WithRecordingSink recording;
  ByteStream in(bytes);
  const DecodedMessage decoded = ClientMessageFactory::decode(id, in);
  const auto& reports = recording.sink->reports;
  EXPECT_EQ(decoded.bytesRead + decoded.bytesLeft, bytes.size());
  if (decoded.outcome == DecodeOutcome::READ_THREW) {
    EXPECT_FALSE(decoded.message);
    EXPECT_FALSE(reports.empty());
    if (!reports.empty()) expectReportOf(reports.back(), name);
    return decoded.outcome;
  }
  if (!decoded.message) {
    ADD_FAILURE() << "no message";
    return decoded.outcome;
  }
  decoded.message->toDebugString();
  if (decoded.outcome == DecodeOutcome::DECODED) expectSameAgain(id, *decoded.message);
  return reports.empty() ? decoded.outcome : DecodeOutcome::READ_ANSWERED_FALSE;
}

// A stream holds its bytes in a buffer of exactly their number, so that the address sanitizer sees a read behind them.
TEST(Golden, EveryPrefixOfABodyHasADefinedOutcome) {
  for (const GoldenCase& golden : goldenCases()) {
    const bool isWhole = golden.result && !golden.throws && golden.reports == 0 && golden.left == 0;
    for (std::size_t size = 0; size < golden.bytes.size(); ++size) {
      SCOPED_TRACE(golden.where + ' ' + std::to_string(size));
      const auto prefix = std::span(golden.bytes).first(size);
      if (!golden.id) {
        recordRow(golden.name).readAnything(prefix);
        continue;
      }
      const DecodeOutcome outcome = expectOutcome(*golden.id, prefix, golden.name);
      if (isWhole) {
        EXPECT_NE(outcome, DecodeOutcome::DECODED);
      }
    }
  }
}

TEST(Golden, EveryChangedByteHasADefinedOutcome) {
  for (const GoldenCase& golden : goldenCases()) {
    Bytes bytes = golden.bytes;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
      SCOPED_TRACE(golden.where + ' ' + std::to_string(i));
      for (const int value : {0x00, 0x7F, 0x80, 0xFF}) {
        bytes[i] = static_cast<std::uint8_t>(value);
        if (golden.id)
          expectOutcome(*golden.id, bytes, golden.name);
        else
          recordRow(golden.name).readAnything(bytes);
      }
      bytes[i] = golden.bytes[i];
    }
  }
}

}  // namespace

}  // namespace Tessel
