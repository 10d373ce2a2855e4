#pragma once
#include <herald/messages/info_objects/AmountInfo.h>
#include <herald/platform/keystone/List.h>
#include <herald/platform/keystone/TsArray.h>

#include <cstdint>

namespace Tessel {

/// How the bets that a player may make are to be understood; 0 to 2 are the server's.
enum class BetType : std::int8_t { TYPE_0, TYPE_1, TYPE_2, NO_VALID_TYPE };

/// What a player may do in a betting round, and the amounts that the player may bet.
class HERALD_API PlayerActionsInfo : public ReadableRecord<PlayerActionsInfo> {
 public:
  PlayerActionsInfo() = default;
  PlayerActionsInfo(int seat, bool mayFold, bool mayCheckFold, bool mayCheckCall, bool mayCallAny, bool mayBetRaise,
                    bool mayBetRaiseAny, std::int64_t checkCallValue, bool firstBetPlaced, BetType betType,
                    const TsArray<std::int64_t>& bets);

  /// On the wire -11, -12 and -13 are the types 0, 1 and 2; any other code is no valid type.
  static BetType convertBetType(int code) {
    const bool isKnown = code <= FIRST_BET_TYPE_CODE && code > FIRST_BET_TYPE_CODE - BET_TYPES;
    return isKnown ? static_cast<BetType>(FIRST_BET_TYPE_CODE - code) : BetType::NO_VALID_TYPE;
  }

  int getSeat() const { return seat_; }
  bool mayFold() const { return may(MAY_FOLD); }
  bool mayCheckFold() const { return may(MAY_CHECK_FOLD); }
  bool mayCheckCall() const { return may(MAY_CHECK_CALL); }
  bool mayCallAny() const { return may(MAY_CALL_ANY); }
  bool mayBetRaise() const { return may(MAY_BET_RAISE); }
  bool mayBetRaiseAny() const { return may(MAY_BET_RAISE_ANY); }
  /// In the smallest units of the table's currency, or in its chips, as the bets.
  std::int64_t getCheckCallValue() const { return checkCallValue_.getAmount(); }
  BetType getBetType() const { return convertBetType(betTypeCode_); }

  int getNrBets() const { return static_cast<int>(bets_.size()); }
  /// An index outside 0 to `getNrBets()` - 1 throws `OutOfBoundsException`.
  std::int64_t getBet(int i) const;

  /// The client's own mark; it never travels.
  bool isFirstBetPlaced() const { return firstBetPlaced_; }
  void setFirstBetPlaced(bool placed) { firstBetPlaced_ = placed; }

  std::wstring toDebugString() const override;
  bool operator==(const PlayerActionsInfo& other) const;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("seat", self.seat_);
    fields("actionFlags", self.actionFlags_);
    fields("checkCallValue", self.checkCallValue_);
    fields("betTypeCode", self.betTypeCode_);
    fields.onRead(self, &PlayerActionsInfo::checkBetType);
    fields.template counted<std::int8_t>("bets", self.bets_);
  }

 private:
  // The codes of the types 0 to 2 count down from this one.
  static constexpr int FIRST_BET_TYPE_CODE = -11;
  static constexpr int BET_TYPES = 3;

  static constexpr char MAY_FOLD = 0x01;
  static constexpr char MAY_CHECK_FOLD = 0x02;
  static constexpr char MAY_CHECK_CALL = 0x04;
  static constexpr char MAY_CALL_ANY = 0x08;
  static constexpr char MAY_BET_RAISE = 0x10;
  static constexpr char MAY_BET_RAISE_ANY = 0x20;

  bool may(char action) const { return (actionFlags_ & action) != 0; }
  bool checkBetType() const {
    if (mayBetRaise() && getBetType() == BetType::NO_VALID_TYPE) [[unlikely]]
      throwNoBetType();
    return true;
  }
  [[noreturn]] static void throwNoBetType();

  std::int8_t seat_ = -1;
  std::int8_t actionFlags_ = 0;
  Amount checkCallValue_;
  std::int8_t betTypeCode_ = -1;
  bool firstBetPlaced_ = false;
  List<Amount> bets_;
};

}  // namespace Tessel
