#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/tableau/TournamentType.h>

#include <cstdint>

namespace Tessel {

/// Tournament types as a mask.
class HERALD_API PrivateTourType : public ReadableRecord<PrivateTourType> {
 public:
  static constexpr int SITNGO_BIT = 0;
  static constexpr int SCHEDULED_BIT = 1;

  PrivateTourType() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit PrivateTourType(ByteStream& in);

  bool getIsSNG() const;
  bool getIsScheduled() const;

  /// The mask of one type; 0 for a type without a bit.
  static int convertFromInternalTourType(Tourney::TournamentType type);

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("type", self.type_);
  }

 private:
  std::int8_t type_ = -1;
};

}  // namespace Tessel
