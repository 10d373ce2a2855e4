#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/TsArray.h>
#include <herald/platform/tableau/GameType.h>
#include <herald/platform/tableau/LimitType.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// What the client shows of a tournament. Its money changes only when a whole record has been read.
class HERALD_API WinClientTournamentInfo : public ReadableRecord<WinClientTournamentInfo> {
 public:
  int getTournamentId() const { return tournamentId_; }
  Money getBuyIn() const { return buyIn_; }
  Money getFee() const { return fee_; }
  int getNrOfEnrolled() const { return nrOfEnrolled_; }
  Money getPrizePool() const { return prizePool_; }
  int getEntryLevel() const { return entryLevel_; }
  int getNrOfWinners() const { return nrOfWinners_; }
  Money getStartingChips() const { return startingChips_; }
  /// Its values are the server's. Where plain char is unsigned, as on ARM, a negative one comes as 256 more than it is.
  char getTournamentType() const { return static_cast<char>(tournamentType_); }
  /// Never null.
  const GameType* getGameType() const;
  /// Never null.
  const LimitType* getLimitType() const;
  std::wstring getName() const { return name_.getString(); }
  std::wstring getDescription() const { return description_.getString(); }
  /// Its values are the server's. Where plain char is unsigned, as on ARM, a negative one comes as 256 more than it is.
  char getPlayerStatus() const { return static_cast<char>(playerStatus_); }

  int numberOfBigBlinds() const { return bigBlinds_.size(); }
  /// The big blind of a level, in the monetary unit of the starting chips. An index outside 0 to `numberOfBigBlinds()`
  /// - 1 throws `std::invalid_argument`.
  Money bigBlind(int i) const;

  /// Empty.
  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tournamentId", self.tournamentId_);
    fields("buyIn", self.travelled_.buyIn);
    fields("fee", self.travelled_.fee);
    fields("nrOfEnrolled", self.nrOfEnrolled_);
    fields("prizePool", self.travelled_.prizePool);
    fields("entryLevel", self.entryLevel_);
    fields("nrOfWinners", self.nrOfWinners_);
    fields("startingChips", self.travelled_.startingChips);
    fields("tournamentType", self.tournamentType_);
    fields.template named<GameTypes::AllowedGameType>("gameType", self.gameType_);
    fields.template named<LimitTypes::AllowedLimitType>("limitType", self.limitType_);
    fields("name", self.name_);
    fields("description", self.description_);
    fields("playerStatus", self.playerStatus_);
    fields.template countedOrNone<std::int32_t>("bigBlinds", self.bigBlinds_);
    fields.onRead(self, &WinClientTournamentInfo::takeMoney);
  }

 private:
  // The money as it travels.
  struct TravelledMoney {
    MoneyAmount buyIn;
    MoneyAmount fee;
    MoneyAmount prizePool;
    MoneyAmount startingChips;
  };

  bool takeMoney();

  TravelledMoney travelled_;
  Money buyIn_;
  Money fee_;
  Money prizePool_;
  Money startingChips_;
  std::int32_t tournamentId_ = -1;
  std::int32_t nrOfEnrolled_ = -1;
  std::int32_t entryLevel_ = -1;
  std::int32_t nrOfWinners_ = -1;
  std::int8_t tournamentType_ = -1;
  std::int8_t gameType_ = -1;
  std::int8_t limitType_ = -1;
  Text name_;
  Text description_;
  std::int8_t playerStatus_ = -1;
  TsArray<Amount> bigBlinds_;
};

}  // namespace Tessel
