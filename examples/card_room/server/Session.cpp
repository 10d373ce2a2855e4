#include "Session.h"

#include <herald/inspect/Encoding.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/platform/keystone/Exceptions.h>

#include <utility>

#include "../common/Wire.h"

using namespace Tessel;

namespace CardRoom {

namespace {

/// A client that does not read for so long that this many bytes wait for it is given up.
constexpr std::size_t LONGEST_QUEUE = 16 << 20;

std::string_view classOf(int messageId) { return findClientMessageRow(messageId)->name; }

}  // namespace

Session::Session(int id, asio::ip::tcp::socket socket, Owner& owner, Surroundings surroundings)
    : id_(id), socket_(std::move(socket)), delay_(socket_.get_executor()), owner_(owner),
      surroundings_(std::move(surroundings)) {}

void Session::start() {
  asio::error_code ignored;
  socket_.set_option(asio::ip::tcp::no_delay(true), ignored);
  read();
}

void Session::read() {
  socket_.async_read_some(asio::buffer(input_), [self = shared_from_this()](asio::error_code error, std::size_t count) {
    if (self->state_ == State::SILENT) return;
    if (error) return self->drop();
    self->received(std::span(self->input_).first(count));
    if (self->state_ != State::ENDED) self->read();
  });
}

void Session::received(std::span<const std::uint8_t> bytes) {
  try {
    frames_.append(bytes);
    while (const auto frame = frames_.next()) {
      if (state_ == State::ENDED) return;
      record(*frame);
      owner_.requested(*this, *frame);
    }
  } catch (const KeystoneException& outOfStep) {
    outOfStep.report();
    drop();
  }
}

void Session::record(const RequestFrames::Frame& frame) const {
  if (surroundings_.recorder == nullptr) return;
  ByteStream whole;
  whole << static_cast<std::int16_t>(frame.id) << static_cast<std::int16_t>(frame.body.size());
  whole.append(frame.body);
  surroundings_.recorder->request(whole.bytes());
}

void Session::send(int messageId, std::span<const std::uint8_t> body) {
  if (state_ != State::OPEN) return;
  if (messagesLeft_ && --*messagesLeft_ == 0) return close();
  // The first message names the session in the clients' notes: no damage comes to it.
  const bool isFirst = std::exchange(isFirst_, false);
  switch (surroundings_.chaos ? surroundings_.chaos->nextFault() : Chaos::Fault::NONE) {
    case Chaos::Fault::DAMAGE:
      if (isFirst) break;
      return sendDamaged(messageId, surroundings_.chaos->damaged(body));
    case Chaos::Fault::CUT:
      return sendHalf(messageId, body);
    case Chaos::Fault::SILENCE:
      state_ = State::SILENT;
      return;
    case Chaos::Fault::UNKNOWN_ID:
      enqueue(surroundings_.chaos->unknownId(), surroundings_.chaos->noise());
      break;
    case Chaos::Fault::NONE:
      break;
  }
  if (surroundings_.ledger != nullptr) surroundings_.ledger->message(id_, classOf(messageId), body);
  enqueue(messageId, body);
}

// The client believes what the bytes say, if they say anything. Its picture is wrong then, so that the connection ends
// soon.
void Session::sendDamaged(int messageId, std::span<const std::uint8_t> body) {
  ByteStream stream = ByteStream::view(body);
  const DecodedMessage decoded = ClientMessageFactory::decode(messageId, stream);
  const bool isBelieved = decoded.outcome == DecodeOutcome::DECODED && decoded.bytesLeft == 0;
  ByteStream believed;
  if (surroundings_.ledger != nullptr && isBelieved && encode(*decoded.message, believed)) {
    surroundings_.ledger->lie(id_);
    surroundings_.ledger->message(id_, classOf(messageId), believed.bytes());
  }
  enqueue(messageId, body);
  constexpr int MOST_AFTER_LIE = 40;
  if (isBelieved && !messagesLeft_) messagesLeft_ = 1 + surroundings_.chaos->roll(MOST_AFTER_LIE);
}

void Session::sendHalf(int messageId, std::span<const std::uint8_t> body) {
  Bytes message;
  appendMessage(messageId, body, message);
  message.resize(static_cast<std::size_t>(surroundings_.chaos->roll(static_cast<int>(message.size()))));
  waiting_.insert(waiting_.end(), message.begin(), message.end());
  close();
}

void Session::enqueue(int messageId, std::span<const std::uint8_t> body) {
  if (surroundings_.recorder != nullptr) surroundings_.recorder->message(messageId, body);
  appendMessage(messageId, body, waiting_);
  if (waiting_.size() > LONGEST_QUEUE) return close();
  write();
}

void Session::close() {
  if (state_ != State::OPEN) return;
  state_ = State::CLOSING;
  write();
}

void Session::drop() {
  if (std::exchange(state_, State::ENDED) == State::ENDED) return;
  asio::error_code ignored;
  socket_.shutdown(asio::ip::tcp::socket::shutdown_both, ignored);
  socket_.close(ignored);
  delay_.cancel();
  owner_.ended(*this);
}

void Session::write() {
  if (isWriting_ || state_ == State::SILENT || state_ == State::ENDED) return;
  if (sent_ == sending_.size()) {
    sending_.clear();
    sent_ = 0;
    sending_.swap(waiting_);
  }
  const std::size_t rest = sending_.size() - sent_;
  if (rest == 0) {
    // Later, because whoever closes it may be in the middle of something.
    if (state_ == State::CLOSING) asio::post(socket_.get_executor(), [self = shared_from_this()] { self->drop(); });
    return;
  }
  isWriting_ = true;
  if (!surroundings_.chaos) return writeNow(rest);
  const std::size_t count = surroundings_.chaos->nextWrite(rest);
  delay_.expires_after(surroundings_.chaos->nextDelay());
  delay_.async_wait([self = shared_from_this(), count](asio::error_code) { self->writeNow(count); });
}

void Session::writeNow(std::size_t count) {
  asio::async_write(socket_, asio::buffer(sending_.data() + sent_, count),
                    [self = shared_from_this()](asio::error_code error, std::size_t written) {
                      self->isWriting_ = false;
                      self->sent_ += written;
                      if (error) return self->state_ == State::SILENT ? void() : self->drop();
                      self->write();
                    });
}

}  // namespace CardRoom
