#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/keystone/User.h>

#include <memory>
#include <string>

namespace Tessel {

class ConnectionStatusMessageHandler;

/// Something that has happened to the connection to a server. Events are values.
class HERALD_API ConnectionStatus {
 public:
  virtual ~ConnectionStatus();
  /// A new copy of the event's own class. The caller owns it.
  [[nodiscard]] virtual ConnectionStatus* clone() const = 0;
  /// A line of text for traces, with its line feed.
  virtual std::wstring toDebugString() const = 0;
  /// Calls the handler's operation for the event's own class.
  virtual void handle(ConnectionStatusMessageHandler& handler) const = 0;

  [[nodiscard]] std::unique_ptr<ConnectionStatus> cloneOwned() const {
    return std::unique_ptr<ConnectionStatus>(clone());
  }

 protected:
  ConnectionStatus() = default;
  ConnectionStatus(const ConnectionStatus&) = default;
  ConnectionStatus(ConnectionStatus&&) = default;
  ConnectionStatus& operator=(const ConnectionStatus&) = default;
  ConnectionStatus& operator=(ConnectionStatus&&) = default;
};

/// The connection is established.
class HERALD_API ConnectionOK : public ConnectionStatus {
 public:
  explicit ConnectionOK(User user);

  User getUser() const { return user_; }

  [[nodiscard]] ConnectionStatus* clone() const override;
  std::wstring toDebugString() const override;
  void handle(ConnectionStatusMessageHandler& handler) const override;

 private:
  User user_;
};

class HERALD_API ConnectionRegistration : public ConnectionStatus {
 public:
  int getConnectionId() const { return connectionId_; }
  void setConnectionId(int connectionId) { connectionId_ = connectionId; }
  int getPort() const { return port_; }
  void setPort(int port) { port_ = port; }

  [[nodiscard]] ConnectionStatus* clone() const override;
  std::wstring toDebugString() const override;
  void handle(ConnectionStatusMessageHandler& handler) const override;

 private:
  int connectionId_ = -1;
  int port_ = -1;
};

class HERALD_API ConnectionUnregistration : public ConnectionStatus {
 public:
  int getConnectionId() const { return connectionId_; }
  void setConnectionId(int connectionId) { connectionId_ = connectionId; }

  [[nodiscard]] ConnectionStatus* clone() const override;
  std::wstring toDebugString() const override;
  void handle(ConnectionStatusMessageHandler& handler) const override;

 private:
  int connectionId_ = -1;
};

/// The connection has failed, or could not be made.
class HERALD_API ConnectionFailed : public ConnectionStatus {
 public:
  /// Any int is a value; these have a text.
  enum Error : int {
    FAILED_AUTH = -1,
    REQUESTED = 1,
    KEY_SUCCESS = 2,
    UNDEFINED = 3,
    FAILED_NET = 4,
    FAILED_KEY_NET = 5,
    FAILED_SERVER = 6,
    FAILED_USER = 7,
    FAILED_DATA = 8,
    FAILED_COMMUNICATOR = 9,
    CLOSED = 10,
    ALREADY_CONNECTED = 11,
    FAIL_VERSION = 12,
    FAIL_PASS = 13,
    FAIL_TWICE = 14,
    OUT_OF_RECONNECTS = 15,
    SEND_FAILED_NOT_CONNECTED = 16,
    FAILED_SERVER_NOT_RESPONDING = 17,
    FAILED_ACCOUNT_DISABLED = 18,
  };

  /// An empty message becomes the text for the code: the operating system's text of the system code where the code is
  /// `FAILED_KEY_NET` and the system code is not 0, else the text from the resources, where the code has one.
  explicit ConnectionFailed(Error errorCode = UNDEFINED, std::wstring message = {}, unsigned long systemCode = 0);

  Error getErrorCode() const { return errorCode_; }
  const std::wstring& getMessage() const { return message_; }
  /// The operating system's error code, 0 for none.
  unsigned long getSystemCode() const { return systemCode_; }

  [[nodiscard]] ConnectionStatus* clone() const override;
  std::wstring toDebugString() const override;
  void handle(ConnectionStatusMessageHandler& handler) const override;
  /// Whether there is no use in trying again. It depends on the code alone.
  virtual bool isFatal() const;

 private:
  Error errorCode_;
  std::wstring message_;
  unsigned long systemCode_;
};

/// The connection is being made again.
class HERALD_API ConnectionUpdate : public ConnectionFailed {
 public:
  explicit ConnectionUpdate(Error errorCode = UNDEFINED, std::wstring message = {}, unsigned long systemCode = 0,
                            int reconnectAttempts = 0);

  int getReconnectAttempts() const { return reconnectAttempts_; }

  [[nodiscard]] ConnectionStatus* clone() const override;
  std::wstring toDebugString() const override;
  void handle(ConnectionStatusMessageHandler& handler) const override;

 private:
  int reconnectAttempts_;
};

/// Receives connection events: one operation per event class.
class HERALD_API ConnectionStatusMessageHandler {
 public:
  virtual ~ConnectionStatusMessageHandler();
  virtual void handle(const ConnectionUpdate& event) = 0;
  virtual void handle(const ConnectionFailed& event) = 0;
  virtual void handle(const ConnectionOK& event) = 0;
  virtual void handle(const ConnectionUnregistration& event) = 0;
  virtual void handle(const ConnectionRegistration& event) = 0;
};

}  // namespace Tessel
