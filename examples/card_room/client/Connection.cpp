#include "Connection.h"

#include <herald/messages/ClientMessageFactory.h>
#include <herald/platform/keystone/BugReporter.h>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Tessel;
using namespace std::chrono_literals;

namespace CardRoom {

namespace {

constexpr int MOST_ATTEMPTS = 12;
constexpr auto FIRST_DELAY = 100ms;
constexpr std::chrono::milliseconds LONGEST_DELAY = 5s;
/// The server pings every second.
constexpr auto LONGEST_SILENCE = 4s;

}  // namespace

Connection::Connection(asio::io_context& io, Settings settings, ClientMessageMailBox& messages,
                       ServerViewMailbox& events)
    : io_(io), settings_(std::move(settings)), messages_(messages), events_(events), resolver_(io), retry_(io),
      watchdog_(io) {}

void Connection::open() {
  asio::post(io_, [this] { connect(); });
}

void Connection::connect() {
  link_ = std::make_shared<Link>(io_);
  watch();
  resolver_.async_resolve(settings_.host, settings_.port, [this, link = link_](asio::error_code error, auto endpoints) {
    if (link != link_) return;
    if (error) return lost(ConnectionFailed::FAILED_NET, static_cast<unsigned long>(error.value()));
    asio::async_connect(link->socket, endpoints, [this, link](asio::error_code refused, const auto&) {
      if (link != link_) return;
      if (refused) return lost(ConnectionFailed::FAILED_NET, static_cast<unsigned long>(refused.value()));
      connected(link);
    });
  });
}

void Connection::connected(const LinkPointer& link) {
  asio::error_code ignored;
  link->socket.set_option(asio::ip::tcp::no_delay(true), ignored);
  link->isConnected = true;
  ConnectionRegistration registration;
  registration.setConnectionId(settings_.id);
  registration.setPort(link->socket.remote_endpoint(ignored).port());
  tell(registration);
  ByteStream login;
  if (settings_.login.write(login)) send(std::vector<std::uint8_t>(login.bytes().begin(), login.bytes().end()));
  read(link);
}

void Connection::read(const LinkPointer& link) {
  link->socket.async_read_some(asio::buffer(link->input), [this, link](asio::error_code error, std::size_t count) {
    if (link != link_) return;
    if (error) return lost(ConnectionFailed::FAILED_NET, static_cast<unsigned long>(error.value()));
    watch();
    received(count);
    if (link == link_) read(link);
  });
}

void Connection::received(std::size_t count) {
  const LinkPointer link = link_;
  try {
    link->frames.append(std::span(link->input).first(count));
    while (const auto frame = link->frames.next()) {
      take(*frame);
      if (link != link_) return;
    }
  } catch (const KeystoneException& outOfStep) {
    outOfStep.report();
    lost(ConnectionFailed::FAILED_DATA);
  }
}

// The factory reports what it cannot make a message of. A message of a newer server can be done without; after one that
// is damaged, what the client shows would be wrong.
void Connection::take(const MessageFrames::Frame& frame) {
  if (settings_.recorder != nullptr) settings_.recorder->message(frame.id, frame.body);
  ByteStream body = ByteStream::view(frame.body);
  DecodedMessage decoded = ClientMessageFactory::decode(frame.id, body);
  if (decoded.outcome == DecodeOutcome::UNKNOWN_ID || decoded.outcome == DecodeOutcome::NO_MESSAGE) return;
  if (decoded.outcome != DecodeOutcome::DECODED || decoded.bytesLeft > 0) return lost(ConnectionFailed::FAILED_DATA);
  attempts_ = 0;
  static std::atomic<int> ofAll = 0;
  if (settings_.lossInterval > 0 && ++ofAll % settings_.lossInterval == 0) return;
  ++posted_;
  messages_.post(std::move(decoded.message));
}

void Connection::send(const ServerMessage& request) {
  ByteStream frame;
  if (!request.write(frame)) return;
  asio::post(io_, [this, bytes = std::vector<std::uint8_t>(frame.bytes().begin(), frame.bytes().end())] {
    if (link_ && link_->isConnected) send(bytes);
  });
}

void Connection::send(const std::vector<std::uint8_t>& frame) {
  if (settings_.recorder != nullptr) settings_.recorder->request(frame);
  link_->waiting.insert(link_->waiting.end(), frame.begin(), frame.end());
  write(link_);
}

void Connection::write(const LinkPointer& link) {
  if (!link->sending.empty() || link->waiting.empty()) return;
  link->sending.swap(link->waiting);
  asio::async_write(link->socket, asio::buffer(link->sending), [this, link](asio::error_code error, std::size_t) {
    if (link != link_) return;
    if (error) return lost(ConnectionFailed::FAILED_NET, static_cast<unsigned long>(error.value()));
    link->sending.clear();
    write(link);
  });
}

void Connection::watch() {
  watchdog_.expires_after(LONGEST_SILENCE);
  watchdog_.async_wait([this, link = link_](asio::error_code error) {
    if (!error && link == link_) lost(ConnectionFailed::FAILED_SERVER_NOT_RESPONDING);
  });
}

void Connection::lost(ConnectionFailed::Error reason, unsigned long systemCode) {
  asio::error_code ignored;
  if (link_) link_->socket.close(ignored);
  link_.reset();
  watchdog_.cancel();
  if (isClosed_) return;
  if (++attempts_ > MOST_ATTEMPTS) return tell(ConnectionFailed(ConnectionFailed::OUT_OF_RECONNECTS));
  tell(ConnectionUpdate(reason, {}, systemCode, attempts_));
  retry_.expires_after(std::min(LONGEST_DELAY, FIRST_DELAY * (1 << (attempts_ - 1))));
  retry_.async_wait([this](asio::error_code error) {
    if (!error && !isClosed_) connect();
  });
}

void Connection::giveUp(ConnectionFailed::Error reason) {
  asio::post(io_, [this, reason] {
    if (link_) lost(reason);
  });
}

void Connection::close() {
  asio::post(io_, [this] {
    isClosed_ = true;
    lost(ConnectionFailed::REQUESTED);
    retry_.cancel();
    tell(ConnectionUnregistration());
  });
}

void Connection::tell(const ConnectionStatus& event) {
  events_.post(std::make_unique<ConnectionStatusMessage>(settings_.id, event));
}

}  // namespace CardRoom
