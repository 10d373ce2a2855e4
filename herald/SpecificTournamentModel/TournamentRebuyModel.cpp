#include <herald/SpecificTournamentModel/TournamentRebuyModel.h>
#include <herald/platform/keystone/SaturatingArithmetic.h>
#include <herald/platform/keystone/TimeUtils.h>

namespace Tessel {

void TournamentRebuyModel::setRebuyInfo(int totalRebuys, const Money& rebuyCost, const Money& rebuyAmount,
                                        std::int64_t rebuyDurationMs) {
  hasRebuys_ = true;
  totalRebuys_ = totalRebuys;
  rebuyCost_ = rebuyCost;
  rebuyAmount_ = rebuyAmount;
  rebuyDurationMs_ = rebuyDurationMs;
}

void TournamentRebuyModel::setAddonInfo(int totalAddons, const Money& addonCost, const Money& addonAmount) {
  hasAddons_ = true;
  totalAddons_ = totalAddons;
  addonCost_ = addonCost;
  addonAmount_ = addonAmount;
}

void TournamentRebuyModel::setUserRebuyInfo(int remainingRebuys, std::int64_t msUntilPeriodEnd) {
  hasUserInfo_ = true;
  remainingUserRebuys_ = remainingRebuys;
  const std::int64_t seconds = SaturatingArithmetic::add(msUntilPeriodEnd, std::int64_t{500}) / 1000;
  rebuyPeriodEndTime_ = TimeUtils::getTimeFromOffset(seconds);
}

void TournamentRebuyModel::setRebuyPeriodEnded() {
  hasUserInfo_ = true;
  remainingUserRebuys_ = 0;
  rebuyPeriodEndTime_ = TsTime(0);
}

void TournamentRebuyModel::setAddonPeriodStarts() { addonPeriod_ = AddonPeriod::IN; }

void TournamentRebuyModel::setAddonPeriodEnds() { addonPeriod_ = AddonPeriod::AFTER; }

bool TournamentRebuyModel::isInRebuyPeriod() const { return rebuyPeriodEndTime_ >= TimeUtils::getTime(); }

}  // namespace Tessel
