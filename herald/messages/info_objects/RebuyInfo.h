#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>

#include <cstdint>

namespace Tessel {

/// The rebuys and the add-on that a tournament offers: what each gives in chips and what it costs.
class HERALD_API RebuyInfo : public ReadableRecord<RebuyInfo> {
 public:
  /// -1 when there is no limit.
  int getNumberOfRebuys() const { return numberOfRebuys_; }
  bool hasUnlimitedNumberOfRebuys() const { return numberOfRebuys_ == -1; }
  /// In milliseconds.
  std::int64_t getRebuyPeriodDurationMs() const { return durationMs_; }
  bool hasAddon() const { return hasAddon_; }
  Money getRebuy() const { return rebuy_.getMoney(); }
  Money getRebuyCost() const { return rebuyCost_.getMoney(); }
  Money getAddon() const { return addon_.getMoney(); }
  Money getAddonCost() const { return addonCost_.getMoney(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("numberOfRebuys", self.numberOfRebuys_);
    fields("durationMs", self.durationMs_);
    fields("hasAddon", self.hasAddon_);
    fields("rebuy", self.rebuy_);
    fields("rebuyCost", self.rebuyCost_);
    fields("addon", self.addon_);
    fields("addonCost", self.addonCost_);
  }

 private:
  std::int32_t numberOfRebuys_ = -1;
  std::int64_t durationMs_ = -1;
  bool hasAddon_ = false;
  MoneyAmount rebuy_;
  MoneyAmount rebuyCost_;
  MoneyAmount addon_;
  MoneyAmount addonCost_;
};

}  // namespace Tessel
