#pragma once
#include <herald/messages/ImprovedServerMessage.h>
#include <herald/messages/ServerMessage.h>
#include <herald/wire/WireTypes.h>

#include <utility>

// A request is a declaration of a few lines: its id, its debug format, its constructor. Bodies of the templates are in
// RequestOperations.h, which the table of requests includes. A new request is its class and its row in that table.

namespace Tessel {

/// A request without a body. Self::TEXT is its debug text.
template <class Self, short REQUEST_ID>
class HERALD_API EmptyRequest : public ServerMessage {
 public:
  static constexpr short ID = REQUEST_ID;

  [[nodiscard]] bool write(ByteStream& out) const override;
  std::wstring toDebugString() const override;
  void describe(FieldSink& sink) const override;

  template <class Request, class Fields>
  static void wire(Request&, Fields&) {}
};

/// A request whose body is one record. Self::TEXT is its debug format, with one %s for the record, or none;
/// Self::FIELD, where there is one, names the record in descriptions, which call it "body" otherwise.
template <class Self, short REQUEST_ID, class Record>
class HERALD_API RecordRequest : public ServerMessage {
 public:
  static constexpr short ID = REQUEST_ID;

  [[nodiscard]] bool write(ByteStream& out) const override;
  std::wstring toDebugString() const override;
  void describe(FieldSink& sink) const override;

  template <class Request, class Fields>
  static void wire(Request& self, Fields& fields) {
    fields(bodyName<Self>(), self.body_);
  }

 protected:
  RecordRequest() = default;
  explicit RecordRequest(Record body) : body_(std::move(body)) {}
  const Record& body() const { return body_; }

 private:
  Record body_;
};

/// A request with fields of its own, declared once in `wire`, as a record's are. It prints itself.
template <class Self, short REQUEST_ID>
class HERALD_API WireRequest : public ServerMessage {
 public:
  static constexpr short ID = REQUEST_ID;

  [[nodiscard]] bool write(ByteStream& out) const override;
  void describe(FieldSink& sink) const override;
};

/// The same for a request whose body is measured after it has been written.
template <class Self, short REQUEST_ID>
class HERALD_API ImprovedRequest : public ImprovedServerMessage {
 public:
  static constexpr short ID = REQUEST_ID;

  void writeBody(ByteStream& out) const override;
  short getPacketDescriptor() const override;
  void describe(FieldSink& sink) const override;
};

}  // namespace Tessel
