#pragma once
#include <herald/dispatch/ConnectionStatus.h>
#include <herald/mailboxes/MailBoxes.h>
#include <herald/messages/ServerMessage.h>

#include <array>
#include <asio.hpp>
#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "../common/Recorder.h"
#include "../common/Wire.h"

namespace CardRoom {

/// A player's connection to the server. It works on the network thread, the one that runs the `io_context`: there it
/// cuts the bytes that come into messages, decodes them and posts them on, and there it connects again, after a delay
/// that grows, when the connection is lost. Its public operations are for any thread.
class Connection {
 public:
  struct Settings {
    int id = 1;
    std::string host = "127.0.0.1";
    std::string port = "6120";
    /// Sent first on each connection.
    LoginRequest login{};
    /// Null for none. Used on the network thread.
    Recorder* recorder = nullptr;
    /// Of all messages of the process every so many-th is lost on purpose; 0 for none.
    int lossInterval = 0;
  };

  /// What comes from the server goes into the first mailbox, what becomes of the connection into the second.
  Connection(asio::io_context& io, Settings settings, Tessel::ClientMessageMailBox& messages,
             Tessel::ServerViewMailbox& events);

  void open();
  void send(const Tessel::ServerMessage& request);
  /// What comes from the server makes no sense: connects again.
  void giveUp(Tessel::ConnectionFailed::Error reason);
  /// Ends it for good.
  void close();

  /// The messages that have been posted so far.
  int postedCount() const { return posted_; }

 private:
  /// One TCP connection. What is under way on it when it is given up keeps it, and finds that it is not the current one
  /// any more.
  struct Link {
    explicit Link(asio::io_context& io) : socket(io) {}
    asio::ip::tcp::socket socket;
    std::array<std::uint8_t, 16'384> input{};
    MessageFrames frames;
    std::vector<std::uint8_t> waiting;
    std::vector<std::uint8_t> sending;
    bool isConnected = false;
  };
  using LinkPointer = std::shared_ptr<Link>;

  void connect();
  void connected(const LinkPointer& link);
  void read(const LinkPointer& link);
  void received(std::size_t count);
  void take(const MessageFrames::Frame& frame);
  void write(const LinkPointer& link);
  void send(const std::vector<std::uint8_t>& frame);
  void watch();
  void lost(Tessel::ConnectionFailed::Error reason, unsigned long systemCode = 0);
  void tell(const Tessel::ConnectionStatus& event);

  asio::io_context& io_;
  const Settings settings_;
  Tessel::ClientMessageMailBox& messages_;
  Tessel::ServerViewMailbox& events_;
  asio::ip::tcp::resolver resolver_;
  asio::steady_timer retry_;
  asio::steady_timer watchdog_;
  LinkPointer link_;
  int attempts_ = 0;
  bool isClosed_ = false;
  std::atomic<int> posted_ = 0;
};

}  // namespace CardRoom
