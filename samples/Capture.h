#pragma once
#include <herald/messages/ServerMessage.h>
#include <tools/CaptureWriter.h>

#include <cstdint>
#include <filesystem>
#include <vector>

#include "People.h"
#include "engine/Audience.h"

namespace Samples {

using CardRoom::Body;

/// The user's connection, recorded packet by packet into a classic pcap file. Its clock starts at a fixed date and
/// moves a little with each packet, so that a play gives the same bytes at every run.
class Capture : public CardRoom::Audience {
 public:
  /// Replaces the file; throws `Tessel::CaptureWriteError` when it cannot be written, as all below do.
  explicit Capture(const std::filesystem::path& file);

  /// The server sends a message, under the id (the first, where there are two) that the message's class has.
  template <class Message>
  void server(const Body& body = {}) {
    server(CardRoom::messageId<Message>(), body);
  }
  void server(int id, const Body& body);

  /// The client sends a request.
  void client(const Tessel::ServerMessage& request);

  std::vector<int> listeners() const override { return {USER.id}; }
  void tell(int, int messageId, const Body& body) override { server(messageId, body); }
  void answered(const Person& person, const Tessel::ServerMessage& request) override {
    if (person.id == USER.id) client(request);
  }
  void pause(std::int64_t milliseconds) override { milliseconds_ += milliseconds; }
  std::int64_t now() const override { return milliseconds_; }

  /// Completes the file.
  void close() { writer_.close(); }

 private:
  void write(Tessel::Direction direction, const Body& message);

  Tessel::CaptureWriter writer_;
  std::int64_t milliseconds_ = 1'709'924'400'000;  // 8 March 2024, 19:00 UTC
};

}  // namespace Samples
