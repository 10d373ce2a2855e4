#include <herald/dispatch/ConnectionStatus.h>
#include <herald/platform/keystone/Format.h>
#include <herald/platform/keystone/SystemClock.h>
#include <herald/platform/lexicon/ResourceManager.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace Tessel {

namespace {

struct ErrorRow {
  int code;
  const wchar_t* key;  // null: the code has no text
  bool fatal;
};

// In ascending order. A code that is not here has no text and is not fatal.
constexpr ErrorRow ERRORS[] = {
    {-105, nullptr, true},
    {-104, nullptr, true},
    {-103, nullptr, true},
    {-102, nullptr, true},
    {-101, nullptr, true},
    {-10, nullptr, true},
    {-8, nullptr, true},
    {-7, nullptr, true},
    {-4, nullptr, true},
    {-3, nullptr, true},
    {-2, nullptr, true},
    {ConnectionFailed::FAILED_AUTH, L"CONNECTION_FAILED_AUTH", true},
    {0, nullptr, false},
    {ConnectionFailed::REQUESTED, L"CONNECTION_REQUESTED", false},
    {ConnectionFailed::KEY_SUCCESS, L"CONNECTION_KEY_SUCCESS", false},
    {ConnectionFailed::UNDEFINED, L"CONNECTION_UNDEFINED", true},
    {ConnectionFailed::FAILED_NET, L"CONNECTION_FAILED_NET", false},
    {ConnectionFailed::FAILED_KEY_NET, L"CONNECTION_FAILED_KEY_NET", true},
    {ConnectionFailed::FAILED_SERVER, L"CONNECTION_FAILED_SERVER", true},
    {ConnectionFailed::FAILED_USER, L"CONNECTION_FAILED_USER", true},
    {ConnectionFailed::FAILED_DATA, L"CONNECTION_FAILED_DATA", true},
    {ConnectionFailed::FAILED_COMMUNICATOR, L"CONNECTION_FAILED_COMMUNICATOR", true},
    {ConnectionFailed::CLOSED, L"CONNECTION_CLOSED", false},
    {ConnectionFailed::ALREADY_CONNECTED, L"CONNECTION_ALREADY_CONNECTED", false},
    {ConnectionFailed::FAIL_VERSION, L"CONNECTION_FAIL_VERSION", true},
    {ConnectionFailed::FAIL_PASS, L"CONNECTION_FAIL_PASS", true},
    {ConnectionFailed::FAIL_TWICE, L"CONNECTION_FAIL_TWICE", true},
    {ConnectionFailed::OUT_OF_RECONNECTS, L"CONNECTION_OUT_OF_RECONNECTS", true},
    {ConnectionFailed::SEND_FAILED_NOT_CONNECTED, L"CONNECTION_SEND_FAILED_NOT_CONNECTED", false},
    {ConnectionFailed::FAILED_SERVER_NOT_RESPONDING, L"CONNECTION_FAILED_SERVER_NOT_RESPONDING", true},
    {ConnectionFailed::FAILED_ACCOUNT_DISABLED, L"CONNECTION_FAILED_ACCOUNT_DISABLED", true},
};

const ErrorRow& errorRow(int code) {
  static constexpr ErrorRow NO_ROW{0, nullptr, false};
  const auto row = std::ranges::find(ERRORS, code, &ErrorRow::code);
  return row == std::end(ERRORS) ? NO_ROW : *row;
}

std::wstring errorText(ConnectionFailed::Error code, unsigned long systemCode) {
  if (code == ConnectionFailed::FAILED_KEY_NET && systemCode != 0) return getSystemErrorText(systemCode);
  const wchar_t* key = errorRow(code).key;
  std::wstring text;
  if (key != nullptr)
    ResourceManager::getInstance().getText(ResourceManager::TEXT_CATEGORY, L"ServerConnectionErrorMessages", key, text);
  return text;
}

}  // namespace

ConnectionStatus::~ConnectionStatus() = default;
ConnectionStatusMessageHandler::~ConnectionStatusMessageHandler() = default;

ConnectionOK::ConnectionOK(User user) : user_(std::move(user)) {}

ConnectionStatus* ConnectionOK::clone() const { return new ConnectionOK(*this); }

std::wstring ConnectionOK::toDebugString() const { return formatText(L"Got ConnectionOK, user: %s\n", user_); }

void ConnectionOK::handle(ConnectionStatusMessageHandler& handler) const { handler.handle(*this); }

ConnectionStatus* ConnectionRegistration::clone() const { return new ConnectionRegistration(*this); }

std::wstring ConnectionRegistration::toDebugString() const {
  return formatText(L"Registered Connection w. ID: %d and port = %d\n", connectionId_, port_);
}

void ConnectionRegistration::handle(ConnectionStatusMessageHandler& handler) const { handler.handle(*this); }

ConnectionStatus* ConnectionUnregistration::clone() const { return new ConnectionUnregistration(*this); }

std::wstring ConnectionUnregistration::toDebugString() const {
  return formatText(L"Unregistered Connection w. ID: %d\n", connectionId_);
}

void ConnectionUnregistration::handle(ConnectionStatusMessageHandler& handler) const { handler.handle(*this); }

ConnectionFailed::ConnectionFailed(Error errorCode, std::wstring message, unsigned long systemCode)
    : errorCode_(errorCode), message_(std::move(message)), systemCode_(systemCode) {
  if (message_.empty()) message_ = errorText(errorCode, systemCode);
}

ConnectionStatus* ConnectionFailed::clone() const { return new ConnectionFailed(*this); }

std::wstring ConnectionFailed::toDebugString() const {
  return formatText(L"Connection Failed: Error Code = %d, Error Desc. = '%s', System Code = %d\n", errorCode_, message_,
                    systemCode_);
}

void ConnectionFailed::handle(ConnectionStatusMessageHandler& handler) const { handler.handle(*this); }

bool ConnectionFailed::isFatal() const { return errorRow(errorCode_).fatal; }

ConnectionUpdate::ConnectionUpdate(Error errorCode, std::wstring message, unsigned long systemCode,
                                   int reconnectAttempts)
    : ConnectionFailed(errorCode, std::move(message), systemCode), reconnectAttempts_(reconnectAttempts) {}

ConnectionStatus* ConnectionUpdate::clone() const { return new ConnectionUpdate(*this); }

std::wstring ConnectionUpdate::toDebugString() const {
  return formatText(L"Connection Update: Code = %d, Msg = '%s', System Code = %d, #Reconnect Attempts = %d\n",
                    getErrorCode(), getMessage(), getSystemCode(), reconnectAttempts_);
}

void ConnectionUpdate::handle(ConnectionStatusMessageHandler& handler) const { handler.handle(*this); }

}  // namespace Tessel
