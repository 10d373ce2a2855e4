#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// Carries the enumeration of the results of a cancellation; their meanings are the server's.
class Cancel_Tour_Result {
 public:
  enum CancelTourResult : int {};
};

/// What came of the request to cancel a private tournament.
class HERALD_API CancelTourReply : public ReadableRecord<CancelTourReply> {
 public:
  CancelTourReply() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit CancelTourReply(ByteStream& in);

  Cancel_Tour_Result::CancelTourResult getCancelReply() const {
    return Cancel_Tour_Result::CancelTourResult{cancelResult_};
  }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("cancelResult", self.cancelResult_);
  }

 private:
  std::int8_t cancelResult_ = -1;
};

}  // namespace Tessel
