#pragma once
#include <herald/messages/ClientMessage.h>
#include <herald/wire/WireTypes.h>

// A message from a server is a declaration of a few lines: its class, its debug format, its accessors. The templates
// below give it `read`, `handle`, `describe` and, where the body is one record or nothing, `toDebugString`. Their
// bodies are in MessageOperations.h, which the table of messages includes.
//
// A new message is: its class, its row in the table of messages, its operation in AbstractClientMessageHandler and its
// default in DefaultClientMessageHandler.

namespace Tessel {

/// What `read` answers for a message whose body is one record.
enum class HERALD_VISIBLE ReadResult { OF_RECORD, ALWAYS_TRUE };

/// A message without a body. Self::TEXT is its debug text.
template <class Self>
class HERALD_API EmptyMessage : public ClientMessage {
 public:
  bool read(ByteStream& in) override;
  void handle(AbstractClientMessageHandler& handler) const override;
  std::wstring toDebugString() const override;
  void describe(FieldSink& sink) const override;
};

/// A message whose body is one record. Self::TEXT is its debug format, with one placeholder for the record, or none;
/// Self::FIELD, where there is one, names the record in descriptions, which call it "body" otherwise.
template <class Self, class Record, ReadResult RESULT = ReadResult::OF_RECORD>
class HERALD_API RecordMessage : public ClientMessage {
 public:
  bool read(ByteStream& in) override;
  void handle(AbstractClientMessageHandler& handler) const override;
  std::wstring toDebugString() const override;
  void describe(FieldSink& sink) const override;

 protected:
  RecordMessage() = default;
  explicit RecordMessage(Record body) : body_(std::move(body)) {}
  const Record& body() const { return body_; }

 private:
  Record body_;
};

/// A message with fields of its own, declared once in `wire`, as a record's are. It prints itself.
template <class Self>
class HERALD_API WireMessage : public ClientMessage {
 public:
  bool read(ByteStream& in) override;
  void handle(AbstractClientMessageHandler& handler) const override;
  void describe(FieldSink& sink) const override;
};

}  // namespace Tessel
