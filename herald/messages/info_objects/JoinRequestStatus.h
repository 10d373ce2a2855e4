#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// The base of a record that travels both ways and is a written one first.
class HERALD_API WritableReadableInfo : public WritableObjectInfo, public ReadableObjectInfo {
 public:
  ~WritableReadableInfo() override;
  std::wstring toDebugString() const override = 0;
  void describe(FieldSink& sink) const override = 0;
};

/// The answer to a request to join a private game.
class HERALD_API JoinRequestStatus : public ReadableWritableRecord<JoinRequestStatus, WritableReadableInfo> {
 public:
  enum class Status : std::int8_t { OK = 0, REFUSED_DENIED = 1, REFUSED_NO_ANSWER = 2 };

  JoinRequestStatus() = default;
  explicit JoinRequestStatus(Status status) : status_(static_cast<std::int8_t>(status)) {}

  Status getStatus() const { return static_cast<Status>(status_); }
  bool isOk() const { return getStatus() == Status::OK; }
  bool isRefusedDenied() const { return getStatus() == Status::REFUSED_DENIED; }
  bool isRefusedNoAnswer() const { return getStatus() == Status::REFUSED_NO_ANSWER; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template named<Status>("status", self.status_);
  }

 private:
  std::int8_t status_ = -1;
};

}  // namespace Tessel
