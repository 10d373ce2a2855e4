#pragma once
#include <herald/platform/keystone/Money.h>
#include <herald/platform/keystone/TsTime.h>

#include <cstdint>

namespace Tessel {

/// The rebuy and add-on terms of a tournament, what the user has left of them, and where the tournament stands relative
/// to its add-on period.
class HERALD_API TournamentRebuyModel {
 public:
  static constexpr int UNLIMITED_NUMBER_OF_REBUYS = -1;

  /// The terms of rebuys: the amount is what a rebuy gives in chips, the duration that of the rebuy period in
  /// milliseconds.
  void setRebuyInfo(int totalRebuys, const Money& rebuyCost, const Money& rebuyAmount, std::int64_t rebuyDurationMs);
  void setAddonInfo(int totalAddons, const Money& addonCost, const Money& addonAmount);
  /// What the user has left. The end of the rebuy period is taken from the present, to the nearest second.
  void setUserRebuyInfo(int remainingRebuys, std::int64_t msUntilPeriodEnd);
  void setRebuyPeriodEnded();
  void setAddonPeriodStarts();
  void setAddonPeriodEnds();

  bool hasRebuys() const { return hasRebuys_; }
  bool hasAddons() const { return hasAddons_; }
  bool hasUserInfo() const { return hasUserInfo_; }
  int getTotalNumberOfRebuys() const { return totalRebuys_; }
  int getTotalNumberOfAddons() const { return totalAddons_; }
  bool hasUnlimitedNumberOfRebuys() const { return totalRebuys_ == UNLIMITED_NUMBER_OF_REBUYS; }
  Money getRebuyCost() const { return rebuyCost_; }
  Money getAddonCost() const { return addonCost_; }
  Money getRebuyAmount() const { return rebuyAmount_; }
  Money getAddonAmount() const { return addonAmount_; }
  /// In milliseconds, -1 while unknown.
  std::int64_t getRebuyDuration() const { return rebuyDurationMs_; }
  int getRemainingUserRebuys() const { return remainingUserRebuys_; }
  TsTime getRebuyPeriodEndTime() const { return rebuyPeriodEndTime_; }

  /// By the present time: the answer changes without a notification.
  bool isInRebuyPeriod() const;
  bool isBeforeAddonPeriod() const { return addonPeriod_ == AddonPeriod::BEFORE; }
  bool isInAddonPeriod() const { return addonPeriod_ == AddonPeriod::IN; }
  bool isAfterAddonPeriod() const { return addonPeriod_ == AddonPeriod::AFTER; }

 private:
  enum class AddonPeriod { BEFORE, IN, AFTER };

  bool hasRebuys_ = false;
  bool hasAddons_ = false;
  int totalRebuys_ = UNLIMITED_NUMBER_OF_REBUYS;
  int totalAddons_ = -1;
  Money rebuyCost_;
  Money addonCost_;
  Money rebuyAmount_;
  Money addonAmount_;
  std::int64_t rebuyDurationMs_ = -1;
  bool hasUserInfo_ = false;
  int remainingUserRebuys_ = -1;
  TsTime rebuyPeriodEndTime_;
  AddonPeriod addonPeriod_ = AddonPeriod::BEFORE;
};

}  // namespace Tessel
