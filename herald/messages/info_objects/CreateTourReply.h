#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/tableau/CreatePrivateTournamentError.h>

#include <cstdint>

namespace Tessel {

/// Whether a private tournament was created.
class HERALD_API CreateTourReply : public ReadableRecord<CreateTourReply> {
 public:
  CreateTourReply() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit CreateTourReply(ByteStream& in);

  bool isCreationOk() const { return createResult_ == 0; }
  const CreatePrivateTournamentError& getErrorType() const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("createResult", self.createResult_);
  }

 private:
  std::int8_t createResult_ = -1;
};

}  // namespace Tessel
