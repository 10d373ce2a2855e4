#pragma once
#include <herald/messages/ImprovedServerMessage.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/wire/Text.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// What this card room adds to the protocol: the header before each message of the server, and the request to log in.

namespace CardRoom {

/// Stands before the body of each message of the server: the message's id and the length of its body, high byte first.
struct MessageHeader {
  static constexpr std::size_t SIZE = 6;
  /// The longest body that is sent or taken, in bytes.
  static constexpr std::int32_t LONGEST_BODY = 1 << 20;

  std::int16_t id = 0;
  std::int32_t length = 0;
};

/// Appends the header and the body. Throws `KeystoneException` for a body that is too long.
void appendMessage(int id, std::span<const std::uint8_t> body, std::vector<std::uint8_t>& out);

/// Cuts what comes from the server into messages.
class MessageFrames {
 public:
  struct Frame {
    int id;
    std::span<const std::uint8_t> body;
  };

  void append(std::span<const std::uint8_t> bytes);
  /// Nothing while half a frame waits for its rest. The body is valid until the next `append`. A length that no message
  /// has throws `KeystoneException`: the connection is of no use any more.
  std::optional<Frame> next();

 private:
  Tessel::ByteStream bytes_;
};

/// Who logs in. A record of the application's own, declared as the library's are.
class LoginInfo : public Tessel::ReadableWritableRecord<LoginInfo> {
 public:
  LoginInfo() = default;
  LoginInfo(std::wstring_view nick, std::wstring_view city) : nick_(nick), city_(city) {}

  std::wstring getNick() const { return nick_.getString(); }
  std::wstring getCity() const { return city_.getString(); }
  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("nick", self.nick_);
    fields("city", self.city_);
  }

 private:
  Tessel::Text nick_;
  Tessel::Text city_;
};

/// The first request on each connection: a request of the application's own.
class LoginRequest : public Tessel::ImprovedServerMessage {
 public:
  static constexpr short ID = 600;

  LoginRequest() = default;
  LoginRequest(std::wstring_view nick, std::wstring_view city) : login_(nick, city) {}

  std::wstring toDebugString() const override;
  void writeBody(Tessel::ByteStream& out) const override;
  short getPacketDescriptor() const override { return ID; }

 private:
  LoginInfo login_;
};

}  // namespace CardRoom
