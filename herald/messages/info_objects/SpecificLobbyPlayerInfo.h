#pragma once
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/platform/tableau/StatusInTour.h>

#include <cstdint>

namespace Tessel {

/// How the user stands in a tournament.
class HERALD_API SpecificLobbyPlayerInfo : public ReadableRecord<SpecificLobbyPlayerInfo> {
 public:
  Money getLargestChipStack() const { return largestStack_.getMoney(); }
  Money getAverageChipStack() const { return averageStack_.getMoney(); }
  StatusInTour getStatusInTour() const { return StatusInTour{statusInTour_}; }
  /// The leader has 1.
  int getUserRanking() const { return currentPosition_; }
  Money getUserChipStack() const { return ownChipStack_.getMoney(); }
  bool isUserSittingAtTable() const { return userTableId_ != -1; }
  /// -1 when the user sits at no table.
  int getTableIdForUser() const { return userTableId_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("largestStack", self.largestStack_);
    fields("averageStack", self.averageStack_);
    fields.template named<StatusInTour>("statusInTour", self.statusInTour_);
    fields("currentPosition", self.currentPosition_);
    fields("ownChipStack", self.ownChipStack_);
    fields("userTableId", self.userTableId_);
  }

 private:
  MoneyAmount largestStack_;
  MoneyAmount averageStack_;
  std::int8_t statusInTour_ = -1;
  std::int32_t currentPosition_ = -1;
  MoneyAmount ownChipStack_;
  std::int32_t userTableId_ = -1;
};

}  // namespace Tessel
