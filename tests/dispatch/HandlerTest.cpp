#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/RecordingSink.h>
#include <tests/support/VisitingHandler.h>

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>

namespace Tessel {

// The library only names these two; whoever uses them defines them.
class ClientDisconnected {};
class ClientReconnected {};

namespace {

/// Overrides the one operation that has no default.
class PlainHandler : public DefaultClientMessageHandler {
 public:
  using DefaultClientMessageHandler::handle;
  void handle(const AbusiveChatWarning&) override { ++warnings; }
  int warnings = 0;
};

static_assert(std::is_abstract_v<AbstractClientMessageHandler> && std::is_abstract_v<DefaultClientMessageHandler>);
static_assert(!std::is_abstract_v<PlainHandler> && !std::is_abstract_v<RecordingHandler>);
static_assert(std::has_virtual_destructor_v<AbstractClientMessageHandler>);

/// The message classes without an id among them.
std::vector<std::pair<std::string, std::unique_ptr<ClientMessage>>> allMessages() {
  std::vector<std::pair<std::string, std::unique_ptr<ClientMessage>>> messages;
  for (const ClientMessageRow& row : clientMessageTable()) {
    if (row.create != nullptr) messages.emplace_back(row.name, row.create());
  }
  const ConnectionUpdate event;
  messages.emplace_back("ServerConnectionStatus", std::make_unique<ServerConnectionStatus>(&event));
  messages.emplace_back("NumPlayersLoggedIn", std::make_unique<NumPlayersLoggedIn>());
  return messages;
}

TEST(Delivery, EachMessageCallsItsOwnOperationOnce) {
  for (const auto& [name, message] : allMessages()) {
    RecordingHandler handler;
    message->handle(handler);
    EXPECT_EQ(handler.names, std::vector<std::string_view>{name});
  }
}

TEST(DefaultClientMessageHandler, TracesEachMessageInItsWords) {
  const std::map<std::string, std::wstring> otherWords = {
      {"AccountBalanceInfoUpdateAbsolute", L"Default handling of message: AccountBalanceInfoUpdate"},
      {"AccountBalanceInfoUpdateRelative", L"Default handling of message: AccountBalanceInfoUpdate"},
      {"UnSubscribeNode", L"Default handling of message: UnSubscribeNodeReq"},
      {"VIPLoginAnnounce", L"Default handling of message: VipLoginAnnounce"},
      {"TourBreakEnd", L"Defalut handling of message: TourBreakEnd"},
      {"TourBreakInfo", L"Defalut handling of message: TourBreakInfo"},
      {"TourBreakNotification", L"Defalut handling of message: TourBreakNotification"},
      {"TourNextLevelInfoMsg", L""},
      {"TourPlayerRankingListInfo", L""},
      {"AbusiveChatWarning", L""},
  };
  for (const auto& [name, message] : allMessages()) {
    const WithRecordingSink recording;
    PlainHandler handler;
    message->handle(handler);
    EXPECT_EQ(handler.warnings, name == "AbusiveChatWarning" ? 1 : 0) << name;

    const auto words = otherWords.find(name);
    std::vector<std::wstring> expected = {L"Default handling of message: " + std::wstring(name.begin(), name.end())};
    if (words != otherWords.end()) expected[0] = words->second;
    if (expected[0].empty()) expected.clear();
    EXPECT_EQ(recording.sink->traces, expected) << name;
    EXPECT_TRUE(recording.sink->reports.empty()) << name;
  }
}

TEST(DefaultClientMessageHandler, TracesWhatNoMessageDelivers) {
  const WithRecordingSink recording;
  PlainHandler handler;
  handler.handle(AccountBalanceInfoReq());
  handler.handle(MonetaryInfoReq());
  handler.handle(ClientDisconnected());
  handler.handle(ClientReconnected());
  EXPECT_EQ(recording.sink->traces, (std::vector<std::wstring>{L"Default handling of message: AccountBalanceInfoReq",
                                                               L"Default handling of message: MonetaryInfoReq",
                                                               L"Default handling of message: ClientDisconnected",
                                                               L"Default handling of message: ClientReconnected"}));
}

/// Counts itself while it lives.
class CountedMessage : public ClientSatIn {
 public:
  explicit CountedMessage(int& count) : count_(count) { ++count_; }
  CountedMessage(const CountedMessage&) = delete;
  CountedMessage& operator=(const CountedMessage&) = delete;
  ~CountedMessage() override { --count_; }

 private:
  int& count_;
};

TEST(Delivery, TheStaticOperationDestroysTheMessageAfterwards) {
  int alive = 0;
  int aliveDuring = 0;
  VisitingHandler watching([&](const auto&) { aliveDuring += alive; });
  AbstractClientMessageHandler::handle(watching, new CountedMessage(alive));
  AbstractClientMessageHandler::handle(watching, std::make_unique<CountedMessage>(alive));
  EXPECT_EQ(aliveDuring, 2);
  EXPECT_EQ(alive, 0);

  const WithRecordingSink recording;
  PlainHandler plain;
  AbstractClientMessageHandler::handle(plain, new CountedMessage(alive));
  EXPECT_EQ(alive, 0);
  EXPECT_EQ(recording.sink->traces.size(), 1u);

  VisitingHandler throwing([](const auto&) { throw std::runtime_error("handler"); });
  EXPECT_THROW(AbstractClientMessageHandler::handle(throwing, new CountedMessage(alive)), std::runtime_error);
  EXPECT_EQ(alive, 0);
}

}  // namespace

}  // namespace Tessel
