#pragma once
#include <herald/messages/info_objects/PrivateTourLimitTypes.h>
#include <herald/messages/info_objects/PrivateTourSeatsPerTableType.h>
#include <herald/platform/tableau/GameType.h>

#include <cstdint>

namespace Tessel {

/// A game that a private tournament may be played in, with its limits and its seats per table.
class HERALD_API PrivateTourGameType : public ReadableRecord<PrivateTourGameType> {
 public:
  PrivateTourGameType() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit PrivateTourGameType(ByteStream& in);

  /// As it came: it need not be a named value.
  GameTypes::AllowedGameType getGameType() const { return GameTypes::AllowedGameType{gameType_}; }
  const PrivateTourLimitTypes& getLimit() const { return limit_; }
  const PrivateTourSeatsPerTableTypeList& getSeats() const { return seats_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template named<GameTypes::AllowedGameType>("gameType", self.gameType_);
    fields("limit", self.limit_);
    fields("seats", self.seats_);
  }

 private:
  std::int8_t gameType_ = -1;
  PrivateTourLimitTypes limit_;
  PrivateTourSeatsPerTableTypeList seats_;
};

class HERALD_API PrivateTourGameTypeList
    : public ReadableRecord<PrivateTourGameTypeList, InfoList<PrivateTourGameType>> {
 public:
  /// An index outside 0 to `getNrInfos()` - 1 throws `OutOfBoundsException`.
  const PrivateTourGameType& getPrivateTourGameType(int i) const { return (*this)[i]; }

  /// Leaves the items out.
  std::wstring toDebugString() const override;
};

}  // namespace Tessel
