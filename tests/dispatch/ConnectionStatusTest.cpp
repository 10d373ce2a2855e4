#include <gtest/gtest.h>
#include <herald/herald.h>

#include <set>
#include <sstream>

namespace Tessel {
namespace {

std::wstring resourceText(const std::wstring& key) {
  std::wstring text;
  EXPECT_TRUE(ResourceManager::getInstance().getText(7, L"ServerConnectionErrorMessages", L"CONNECTION_" + key, text));
  return text;
}

TEST(ConnectionStatus, EveryCodeHasItsTextAndItsFatality) {
  std::wistringstream keys(  // of the codes -1 and 1 to 18
      L"FAILED_AUTH REQUESTED KEY_SUCCESS UNDEFINED FAILED_NET FAILED_KEY_NET FAILED_SERVER FAILED_USER FAILED_DATA "
      L"FAILED_COMMUNICATOR CLOSED ALREADY_CONNECTED FAIL_VERSION FAIL_PASS FAIL_TWICE OUT_OF_RECONNECTS "
      L"SEND_FAILED_NOT_CONNECTED FAILED_SERVER_NOT_RESPONDING FAILED_ACCOUNT_DISABLED");
  const std::set<int> fatal = {-105, -104, -103, -102, -101, -10, -8, -7, -4, -3, -2, -1,
                               3,    5,    6,    7,    8,    9,   12, 13, 14, 15, 17, 18};
  std::set<std::wstring> texts;
  for (int code = -110; code <= 25; ++code) {
    SCOPED_TRACE(code);
    const ConnectionFailed event(static_cast<ConnectionFailed::Error>(code));
    const bool hasText = code == -1 || (code >= 1 && code <= 18);
    std::wstring key;
    if (hasText) keys >> key;
    EXPECT_EQ(event.getMessage(), hasText ? resourceText(key) : L"");
    EXPECT_EQ(event.isFatal(), fatal.contains(code));
    EXPECT_EQ(ConnectionUpdate(static_cast<ConnectionFailed::Error>(code)).isFatal(), fatal.contains(code));
    if (hasText) {
      EXPECT_TRUE(texts.insert(event.getMessage()).second) << "each key has a text of its own";
    }
  }
}

TEST(ConnectionStatus, TheCallersTextAndTheSystemsTextComeFirst) {
  EXPECT_EQ(ConnectionFailed().getErrorCode(), 3);
  EXPECT_EQ(ConnectionFailed(ConnectionFailed::FAILED_NET, L"mine").getMessage(), L"mine");
  const ConnectionFailed system(ConnectionFailed::FAILED_KEY_NET, L"", 2);
  EXPECT_FALSE(system.getMessage().empty());
  EXPECT_NE(system.getMessage(), resourceText(L"FAILED_KEY_NET"));
  EXPECT_EQ(ConnectionFailed(ConnectionFailed::FAILED_NET, L"", 2).getMessage(), resourceText(L"FAILED_NET"));
}

class EventRecorder : public ConnectionStatusMessageHandler {
 public:
  void handle(const ConnectionUpdate&) override { seen += "update "; }
  void handle(const ConnectionFailed&) override { seen += "failed "; }
  void handle(const ConnectionOK&) override { seen += "ok "; }
  void handle(const ConnectionUnregistration&) override { seen += "unregistration "; }
  void handle(const ConnectionRegistration&) override { seen += "registration "; }

  std::string seen;
};

TEST(ConnectionStatus, EachEventPrintsClonesAndDeliversItself) {
  ConnectionRegistration registration;
  registration.setConnectionId(4);
  registration.setPort(9100);
  const User user(7, L"alice");
  const ConnectionOK ok(user);
  const ConnectionUnregistration unregistration;
  const ConnectionFailed failed(ConnectionFailed::CLOSED, L"gone", 5);
  const ConnectionUpdate update(ConnectionFailed::CLOSED, L"again", 6, 3);
  const std::pair<const ConnectionStatus&, std::wstring> rows[] = {
      {ok, L"Got ConnectionOK, user: " + user.toDebugString() + L"\n"},
      {registration, L"Registered Connection w. ID: 4 and port = 9100\n"},
      {unregistration, L"Unregistered Connection w. ID: -1\n"},
      {failed, L"Connection Failed: Error Code = 10, Error Desc. = 'gone', System Code = 5\n"},
      {update, L"Connection Update: Code = 10, Msg = 'again', System Code = 6, #Reconnect Attempts = 3\n"},
  };
  EventRecorder recorder;
  for (const auto& [event, text] : rows) {
    const auto clone = event.cloneOwned();
    EXPECT_EQ(clone->toDebugString(), text);
    clone->handle(recorder);
  }
  EXPECT_EQ(recorder.seen, "ok registration unregistration failed update ");
}

TEST(ConnectionStatus, AMessageOwnsACloneAndKeepsItsOwnNodeId) {
  auto source = std::make_unique<ConnectionFailed>(ConnectionFailed::CLOSED, L"gone");
  auto message = std::make_unique<ServerConnectionStatus>(source.get());
  source.reset();
  message->setNodeId(5);
  ServerConnectionStatus copy(*message);
  EXPECT_EQ(copy.getNodeId(), -1);
  copy.setNodeId(8);
  copy = *message;
  EXPECT_EQ(copy.getNodeId(), 8);
  message.reset();
  EXPECT_EQ(dynamic_cast<const ConnectionFailed&>(*copy.getConnectionStatus()).getMessage(), L"gone");
}

class Connecting : public ConnectingClientMessageHandler {
 public:
  using ConnectingClientMessageHandler::handle;
  void handle(const AbusiveChatWarning&) override {}
  void handle(const ClientGlobalChatMsg&) override {}
  void handle(const ClientChatMsg&) override {}
  void handle(const ConnectOk&) override {}
};
static_assert(std::is_abstract_v<Connecting>, "a handler that does not answer a ping is not complete");

}  // namespace
}  // namespace Tessel
