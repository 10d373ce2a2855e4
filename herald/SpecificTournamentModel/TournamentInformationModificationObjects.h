#pragma once
#include <herald/SpecificTournamentModel/TournamentBaseModel.h>
#include <herald/messages/info_objects/SpecificLobbyPlayerInfo.h>
#include <herald/messages/info_objects/TourSummary.h>
#include <herald/messages/info_objects/TourSummaryUpdate.h>

#include <cstdint>
#include <utility>

// Changes of a tournament's basic, global and player information, as the controller hands them to the model. Each
// answers whether the observers are to be told: always. Internal: not exported.

namespace Tessel {

class TournamentBaseModificationObject {
 public:
  TournamentBaseModificationObject(int numberOfEntrants, int numberOfPlayersRemaining, std::int64_t averageChipStack)
      : numberOfEntrants_(numberOfEntrants), numberOfPlayersRemaining_(numberOfPlayersRemaining),
        averageChipStack_(averageChipStack) {}

  bool modify(TournamentBaseModel& basic) const {
    basic.setNumberOfEntrants(numberOfEntrants_);
    basic.setNumberOfPlayersRemaining(numberOfPlayersRemaining_);
    basic.setAverageChipStack(averageChipStack_);
    return true;
  }

 private:
  int numberOfEntrants_;
  int numberOfPlayersRemaining_;
  std::int64_t averageChipStack_;
};

class TournamentGlobalInformationModificationObject {
 public:
  virtual ~TournamentGlobalInformationModificationObject() = default;
  /// The caller owns the copy.
  [[nodiscard]] virtual TournamentGlobalInformationModificationObject* clone() const = 0;
  virtual bool modify(TourSummary& summary) = 0;
};

/// A whole summary.
class TournamentGlobalInformationBaseModificationObject : public TournamentGlobalInformationModificationObject {
 public:
  explicit TournamentGlobalInformationBaseModificationObject(TourSummary summary) : summary_(std::move(summary)) {}

  [[nodiscard]] TournamentGlobalInformationModificationObject* clone() const override {
    return new TournamentGlobalInformationBaseModificationObject(*this);
  }

  bool modify(TourSummary& summary) override {
    summary = summary_;
    return true;
  }

 private:
  TourSummary summary_;
};

/// An update of the summary; one for another tournament changes nothing.
class TournamentGlobalInformationUpdateModificationObject : public TournamentGlobalInformationModificationObject {
 public:
  explicit TournamentGlobalInformationUpdateModificationObject(TourSummaryUpdate update) : update_(std::move(update)) {}

  [[nodiscard]] TournamentGlobalInformationModificationObject* clone() const override {
    return new TournamentGlobalInformationUpdateModificationObject(*this);
  }

  bool modify(TourSummary& summary) override {
    update_.update(summary);
    return true;
  }

 private:
  TourSummaryUpdate update_;
};

class TournamentPlayerInformationModificationObject {
 public:
  explicit TournamentPlayerInformationModificationObject(SpecificLobbyPlayerInfo info) : info_(std::move(info)) {}

  bool modify(SpecificLobbyPlayerInfo& info) const {
    info = info_;
    return true;
  }

 private:
  SpecificLobbyPlayerInfo info_;
};

}  // namespace Tessel
