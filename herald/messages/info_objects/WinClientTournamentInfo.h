#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/TsString.h>
#include <herald/platform/keystone/TsArray.h>
#include <herald/platform/tableau/GameType.h>
#include <herald/platform/tableau/LimitType.h>

#include <cstdint>

namespace Tessel {

/// What the client shows of a tournament.
class HERALD_API WinClientTournamentInfo : public ReadableRecord<WinClientTournamentInfo> {
 public:
  int getTournamentId() const { return tournamentId_; }
  Money getBuyIn() const { return buyIn_.getMoney(); }
  Money getFee() const { return fee_.getMoney(); }
  int getNrOfEnrolled() const { return nrOfEnrolled_; }
  Money getPrizePool() const { return prizePool_.getMoney(); }
  int getEntryLevel() const { return entryLevel_; }
  int getNrOfWinners() const { return nrOfWinners_; }
  Money getStartingChips() const { return startingChips_.getMoney(); }
  /// Its values are the server's.
  char getTournamentType() const { return static_cast<char>(tournamentType_); }
  /// Never null.
  const GameType* getGameType() const;
  /// Never null.
  const LimitType* getLimitType() const;
  std::wstring getName() const { return name_.getString(); }
  std::wstring getDescription() const { return description_.getString(); }
  /// Its values are the server's.
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
    fields("buyIn", self.buyIn_);
    fields("fee", self.fee_);
    fields("nrOfEnrolled", self.nrOfEnrolled_);
    fields("prizePool", self.prizePool_);
    fields("entryLevel", self.entryLevel_);
    fields("nrOfWinners", self.nrOfWinners_);
    fields("startingChips", self.startingChips_);
    fields("tournamentType", self.tournamentType_);
    fields("gameType", self.gameType_);
    fields("limitType", self.limitType_);
    fields("name", self.name_);
    fields("description", self.description_);
    fields("playerStatus", self.playerStatus_);
    fields.template countedOrNone<std::int32_t>("bigBlinds", self.bigBlinds_);
  }

 private:
  std::int32_t tournamentId_ = -1;
  MoneyInfo buyIn_{Money()};
  MoneyInfo fee_{Money()};
  std::int32_t nrOfEnrolled_ = -1;
  MoneyInfo prizePool_{Money()};
  std::int32_t entryLevel_ = -1;
  std::int32_t nrOfWinners_ = -1;
  MoneyInfo startingChips_{Money()};
  std::int8_t tournamentType_ = -1;
  std::int8_t gameType_ = -1;
  std::int8_t limitType_ = -1;
  TsString name_;
  TsString description_;
  std::int8_t playerStatus_ = -1;
  TsArray<AmountInfo> bigBlinds_;
};

}  // namespace Tessel
