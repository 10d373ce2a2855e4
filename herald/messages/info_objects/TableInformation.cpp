#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TableInformation.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

TableInformation::RoundBetInfo::RoundBetInfo(const Money& amount1, const Money& amount2, bool flagA, bool flagB)
    : amount1_(amount1), amount2_(amount2), flagA_(flagA), flagB_(flagB) {}

TableInformation::TableInformation(const TsString& tableName, const TsString& description, const GameType* gameType,
                                   const LimitType* limitType, int monetaryUnitId, const Money& money1,
                                   const Money& money3, const Money& money4, const Money& money5, const Money& money2,
                                   const Money& money6, const TsArray<Money>& amounts,
                                   const TsArray<RoundBetInfo>& rounds, int value1, int nrAmounts, int nrRounds,
                                   int value2, bool flagA, bool flagB)
    : tableName_(tableName.getString()), gameType_(static_cast<std::int8_t>(gameType->getValue())),
      monetaryUnitId_(static_cast<std::int16_t>(monetaryUnitId)), money_{money1, money2, money3,
                                                                         money4, money5, money6},
      flagA_(flagA), flagB_(flagB), value1_(value1), nrAmounts_(nrAmounts), amounts_(amounts.begin(), amounts.end()),
      value2_(value2), description_(description.getString()), nrRounds_(nrRounds),
      rounds_(rounds.begin(), rounds.end()), limitType_(limitType->getValue()) {}

const GameType* TableInformation::getGameType() const {
  return GameTypeFactory::createGameType(static_cast<GameTypes::AllowedGameType>(gameType_));
}

const LimitType* TableInformation::getLimitType() const { return LimitTypeFactory::createLimitType(limitType_); }

Money TableInformation::getMoney(int number) const {
  const int highest = static_cast<int>(money_.size());
  if (number < 1 || number > highest)
    throw OutOfBoundsException(L"messages/info_objects/TableInformation", __LINE__, L"number", 1, highest, number);
  return money_[static_cast<std::size_t>(number - 1)].getMoney();
}

TsArray<Money> TableInformation::getAmounts() const {
  TsArray<Money> amounts;
  for (const TableAmount& amount : amounts_) amounts.add(amount.getMoney());
  return amounts;
}

bool TableInformation::write(ByteStream&) const { return false; }

std::wstring TableInformation::toDebugString() const { return {}; }

bool TableInformation::finishRead() {
  for (TableAmount& amount : money_) amount.setMonetaryUnitId(monetaryUnitId_);
  for (TableAmount& amount : amounts_) amount.setMonetaryUnitId(monetaryUnitId_);
  for (RoundBetInfo& round : rounds_) {
    round.amount1_.setMonetaryUnitId(monetaryUnitId_);
    round.amount2_.setMonetaryUnitId(monetaryUnitId_);
  }
  limitType_ = deriveLimitType();
  return true;
}

LimitTypes::AllowedLimitType TableInformation::deriveLimitType() const {
  using enum LimitTypes::AllowedLimitType;
  bool potLimit = false;
  for (const RoundBetInfo& round : rounds_) {
    if (round.flagB_) return NO_LIMIT;
    potLimit = potLimit || round.flagA_;
  }
  if (potLimit) return POT_LIMIT;
  return flagA_ ? RAISE_FOLD : LIMIT;
}

}  // namespace Tessel
