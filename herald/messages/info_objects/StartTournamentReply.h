#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// Carries the enumeration of the results of a start; their meanings are the server's.
class Start_Tour_Result {
 public:
  enum StartTourResult : int {};
};

/// What came of the request to start a private tournament.
class HERALD_API StartTournamentReply : public ReadableRecord<StartTournamentReply> {
 public:
  StartTournamentReply() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit StartTournamentReply(ByteStream& in);

  Start_Tour_Result::StartTourResult getStartResult() const { return Start_Tour_Result::StartTourResult{startResult_}; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("startResult", self.startResult_);
  }

 private:
  std::int8_t startResult_ = -1;
};

}  // namespace Tessel
