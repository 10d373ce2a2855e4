#pragma once
#include <herald/messages/info_objects/TsString.h>
#include <herald/platform/keystone/List.h>
#include <herald/platform/keystone/Money.h>
#include <herald/platform/keystone/TsArray.h>
#include <herald/platform/tableau/GameType.h>
#include <herald/platform/tableau/LimitType.h>
#include <herald/wire/Text.h>

#include <array>
#include <cstdint>

namespace Tessel {

/// What the table information window shows. The numbered amounts, flags and values are the server's; they stand in the
/// order in which they travel. It is never sent: `write` writes nothing and answers false.
class HERALD_API TableInformation : public ReadableRecord<TableInformation, ReadableWritableInfo> {
  // Only the amount travels; `read` gives all of them the table's monetary unit.
  class TableAmount {
   public:
    static constexpr bool IS_TRANSPARENT = true;

    TableAmount() = default;
    TableAmount(const Money& money) : amount_(money.getAmount()), monetaryUnitId_(money.getMonetaryUnitId()) {}

    Money getMoney() const { return {amount_, monetaryUnitId_}; }
    void setMonetaryUnitId(int monetaryUnitId) { monetaryUnitId_ = monetaryUnitId; }

    template <class Self, class Fields>
    static void wire(Self& self, Fields& fields) {
      fields("", self.amount_);
    }

   private:
    std::int64_t amount_ = 0;
    int monetaryUnitId_ = -1;
  };

 public:
  /// Two amounts and two flags of one betting round.
  class HERALD_API RoundBetInfo {
   public:
    RoundBetInfo() = default;
    RoundBetInfo(const Money& amount1, const Money& amount2, bool flagA, bool flagB);

    Money getAmount1() const { return amount1_.getMoney(); }
    Money getAmount2() const { return amount2_.getMoney(); }
    bool getFlagA() const { return flagA_; }
    bool getFlagB() const { return flagB_; }

    template <class Self, class Fields>
    static void wire(Self& self, Fields& fields) {
      fields("amount1", self.amount1_);
      fields("amount2", self.amount2_);
      fields("flagA", self.flagA_);
      fields("flagB", self.flagB_);
    }

   private:
    friend class TableInformation;

    TableAmount amount1_;
    TableAmount amount2_;
    bool flagA_ = false;
    bool flagB_ = false;
  };

  TableInformation() = default;
  /// The limit type is kept as given; only `read` derives it. So is the monetary unit of each amount: only
  /// `read` gives them all the table's.
  TableInformation(const TsString& tableName, const TsString& description, const GameType* gameType,
                   const LimitType* limitType, int monetaryUnitId, const Money& money1, const Money& money3,
                   const Money& money4, const Money& money5, const Money& money2, const Money& money6,
                   const TsArray<Money>& amounts, const TsArray<RoundBetInfo>& rounds, int value1, int nrAmounts,
                   int nrRounds, int value2, bool flagA, bool flagB);

  std::wstring getTableName() const { return tableName_.getString(); }
  std::wstring getDescription() const { return description_.getString(); }
  /// Never null; it lives as long as the process, as the limit type does.
  const GameType* getGameType() const;
  const LimitType* getLimitType() const;
  int getMonetaryUnitId() const { return monetaryUnitId_; }
  /// The money 1 to 6; another number throws `OutOfBoundsException`.
  Money getMoney(int number) const;
  TsArray<Money> getAmounts() const;
  TsArray<RoundBetInfo> getRounds() const { return TsArray<RoundBetInfo>(rounds_); }
  int getValue1() const { return value1_; }
  int getValue2() const { return value2_; }
  bool getFlagA() const { return flagA_; }
  bool getFlagB() const { return flagB_; }

  [[nodiscard]] bool write(ByteStream& out) const override;
  /// Empty.
  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tableName", self.tableName_);
    fields.template named<GameTypes::AllowedGameType>("gameType", self.gameType_);
    fields("monetaryUnitId", self.monetaryUnitId_);
    fields("money1", self.money_[0]);
    fields("flagA", self.flagA_);
    fields("flagB", self.flagB_);
    fields("value1", self.value1_);
    fields.template countedKeeping<std::int32_t>("amounts", self.nrAmounts_, self.amounts_);
    fields("money2", self.money_[1]);
    fields("value2", self.value2_);
    fields("description", self.description_);
    fields("money3", self.money_[2]);
    fields("money4", self.money_[3]);
    fields("money5", self.money_[4]);
    fields("money6", self.money_[5]);
    fields.template countedKeeping<std::int32_t>("rounds", self.nrRounds_, self.rounds_);
    fields.onRead(self, &TableInformation::finishRead);
  }

 private:
  bool finishRead();
  LimitTypes::AllowedLimitType deriveLimitType() const;

  Text tableName_;
  std::int8_t gameType_ = -1;
  std::int16_t monetaryUnitId_ = -1;
  std::array<TableAmount, 6> money_;
  bool flagA_ = false;
  bool flagB_ = false;
  std::int32_t value1_ = -1;
  std::int32_t nrAmounts_ = 0;
  List<TableAmount> amounts_;
  std::int32_t value2_ = -1;
  Text description_;
  std::int32_t nrRounds_ = 0;
  List<RoundBetInfo> rounds_;
  LimitTypes::AllowedLimitType limitType_ = LimitTypes::AllowedLimitType::UNKNOWN;
};

}  // namespace Tessel
