#pragma once
#include <herald/messages/info_objects/BlindLevelSpeedInfo.h>
#include <herald/messages/info_objects/PrivateTourGameType.h>
#include <herald/messages/info_objects/PrivateTourMonetaryBuyInFeeType.h>
#include <herald/messages/info_objects/PrivateTourTimeIntervalType.h>
#include <herald/messages/info_objects/PrivateTourType.h>
#include <herald/messages/info_objects/TesselByte.h>
#include <herald/messages/info_objects/TsString.h>
#include <herald/platform/tableau/PrizeStructureType.h>
#include <herald/platform/tableau/RebuyStructure.h>

#include <cstdint>

namespace Tessel {

/// What a private tournament may be like. An index outside 0 to count - 1 throws `OutOfBoundsException`.
class HERALD_API TournamentCreationRules : public ReadableRecord<TournamentCreationRules> {
 public:
  TournamentCreationRules() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream ends before the languages.
  explicit TournamentCreationRules(ByteStream& in);

  const PrivateTourType& getTournamentTypes() const { return tournamentTypes_; }
  const PrivateTourGameTypeList& getGameTypes() const { return gameTypes_; }

  int getNumberOfRebuyStructures() const { return rebuyStructures_.getNrInfos(); }
  const RebuyStructure& getRebuyStructureType(int i) const;

  const PrivateTourMonetaryBuyInFeeTypeList& getBuyInFees() const { return buyInFees_; }

  int getNumberOfBlindLevelSpeeds() const { return blindLevelSpeeds_.getNrInfos(); }
  const BlindLevelSpeedInfo& getBlindLevelSpeedInfo(int i) const { return blindLevelSpeeds_[i]; }

  int getNumberOfPrizeStructures() const { return prizeStructures_.getNrInfos(); }
  const PrizeStructureType& getPrizeStructureType(int i) const;

  const PrivateTourTimeIntervalTypeList& getStartTimeIntervals() const { return startTimeIntervals_; }

  int getNumberOfLanguages() const { return languages_.getNrInfos(); }
  std::wstring getLanguageCode(int i) const { return languages_[i].getString(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tournamentTypes", self.tournamentTypes_);
    fields("gameTypes", self.gameTypes_);
    fields("rebuyStructures", self.rebuyStructures_);
    fields("buyInFees", self.buyInFees_);
    fields("blindLevelSpeeds", self.blindLevelSpeeds_);
    fields("prizeStructures", self.prizeStructures_);
    fields("value1", self.value1_);
    fields("value2", self.value2_);
    fields("startTimeIntervals", self.startTimeIntervals_);
    fields("value3", self.value3_);
    fields("value4", self.value4_);
    fields("value5", self.value5_);
    fields("value6", self.value6_);
    fields("languages", self.languages_);
  }

 private:
  PrivateTourType tournamentTypes_;
  PrivateTourGameTypeList gameTypes_;
  InfoList<TesselByte> rebuyStructures_;
  PrivateTourMonetaryBuyInFeeTypeList buyInFees_;
  InfoList<BlindLevelSpeedInfo> blindLevelSpeeds_;
  InfoList<TesselByte> prizeStructures_;
  // What the numbered values stand for is the server's; they are only carried.
  std::int64_t value1_ = -1;
  std::int64_t value2_ = -1;
  PrivateTourTimeIntervalTypeList startTimeIntervals_;
  std::int16_t value3_ = -1;
  std::int32_t value4_ = -1;
  std::int16_t value5_ = -1;
  std::int32_t value6_ = -1;
  InfoList<TsString> languages_;
};

}  // namespace Tessel
