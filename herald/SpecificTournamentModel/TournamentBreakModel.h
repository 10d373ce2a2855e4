#pragma once
#include <herald/platform/tableau/TesselTime.h>

namespace Tessel {

/// The break schedule of a tournament: nothing known, between breaks, on a break, or no more breaks. A query in a state
/// in which it has no meaning throws `IllegalAccessException`, so ask `hasValidInfo` and `isOnBreak` first.
class HERALD_API TournamentBreakModel {
 public:
  bool hasValidInfo() const { return state_ != State::NO_INFORMATION; }
  bool isOnBreak() const { return state_ == State::ON_BREAK; }
  /// Throws while nothing is known.
  bool hasMoreBreaks() const;
  /// Throws unless on a break.
  TesselTime getBreakEndTime() const;
  /// Throws unless between breaks, and so does the next.
  TesselTime getNextBreakTime() const;
  TesselTimeSpan getNextBreakDuration() const;

  void setNoInfo();
  void setNoMoreBreaks();
  /// A break is on. Throws `IllegalStateTransitionException`, and changes nothing, after the last break.
  void setOnBreakStatus(TesselTime breakEnd);
  /// The next break is known. Throws as `setOnBreakStatus` does.
  void setNotOnBreakStatus(TesselTime nextBreak, TesselTimeSpan duration);
  /// The break is over; nothing happens when none is on.
  void setEndBreakStatus();

 private:
  enum class State : int { NO_INFORMATION, BETWEEN_BREAKS, ON_BREAK, NO_MORE_BREAKS };

  TesselTime nextBreakTime_;
  TesselTime breakEndTime_;
  State state_ = State::NO_INFORMATION;
};

}  // namespace Tessel
