#pragma once
#include <herald/SpecificTournamentModel/TournamentBreakModel.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/tableau/TournamentLevelInformation.h>

#include <utility>

// Changes of the break schedule and of the levels, as the controller hands them to the model. Internal: not exported.

namespace Tessel {

class TournamentBreakModificationObject {
 public:
  virtual ~TournamentBreakModificationObject() = default;
  /// The caller owns the copy.
  [[nodiscard]] virtual TournamentBreakModificationObject* clone() const = 0;
  /// Answers whether the observers are to be told: always.
  virtual bool modify(TournamentBreakModel& breaks) = 0;

 protected:
  /// Each change first leaves a state that would refuse it; were one refused all the same, it would be reported.
  template <class Change>
  static bool applied(const Change& change) {
    try {
      change();
    } catch (const IllegalStateTransitionException& refused) {
      refused.report();
    }
    return true;
  }
};

/// A break is on and ends that many seconds from now.
class TournamentOnBreakModificationObject : public TournamentBreakModificationObject {
 public:
  explicit TournamentOnBreakModificationObject(int breakEndOffset) : breakEndOffset_(breakEndOffset) {}

  [[nodiscard]] TournamentBreakModificationObject* clone() const override {
    return new TournamentOnBreakModificationObject(*this);
  }

  bool modify(TournamentBreakModel& breaks) override {
    return applied([&] {
      if (breaks.hasValidInfo() && !breaks.hasMoreBreaks()) breaks.setNoInfo();
      breaks.setOnBreakStatus(TesselTime::createFromSecondsOffset(breakEndOffset_));
    });
  }

 private:
  int breakEndOffset_;
};

/// The next break begins that many seconds from now and lasts that many seconds; (-1, -1): the break has ended.
class TournamentNotOnBreakModificationObject : public TournamentBreakModificationObject {
 public:
  TournamentNotOnBreakModificationObject(int nextBreakOffset, int duration)
      : nextBreakOffset_(nextBreakOffset), duration_(duration) {}

  [[nodiscard]] TournamentBreakModificationObject* clone() const override {
    return new TournamentNotOnBreakModificationObject(*this);
  }

  bool modify(TournamentBreakModel& breaks) override {
    const bool breakHasEnded = nextBreakOffset_ == -1 && duration_ == -1;
    return applied([&] { breakHasEnded ? endBreak(breaks) : setNextBreak(breaks); });
  }

 private:
  static void endBreak(TournamentBreakModel& breaks) {
    if (breaks.hasValidInfo() && !breaks.isOnBreak()) breaks.setNoInfo();
    breaks.setEndBreakStatus();
  }

  void setNextBreak(TournamentBreakModel& breaks) const {
    if (breaks.hasValidInfo() && (!breaks.hasMoreBreaks() || breaks.isOnBreak())) breaks.setNoInfo();
    breaks.setNotOnBreakStatus(TesselTime::createFromSecondsOffset(nextBreakOffset_), TesselTimeSpan(duration_));
  }

  int nextBreakOffset_;
  int duration_;
};

class TournamentNoMoreBreaksModificationObject : public TournamentBreakModificationObject {
 public:
  [[nodiscard]] TournamentBreakModificationObject* clone() const override {
    return new TournamentNoMoreBreaksModificationObject(*this);
  }

  bool modify(TournamentBreakModel& breaks) override {
    return applied([&] {
      if (breaks.hasValidInfo() && breaks.isOnBreak()) breaks.setNoInfo();
      breaks.setNoMoreBreaks();
    });
  }
};

class TournamentLevelInformationModificationObject {
 public:
  explicit TournamentLevelInformationModificationObject(TournamentLevelInformation level) : level_(std::move(level)) {}

  /// Replaces every value of the level but its break state.
  void modify(TournamentLevelInformation& level) const { level.replaceLevel(level_); }

 private:
  TournamentLevelInformation level_;
};

}  // namespace Tessel
