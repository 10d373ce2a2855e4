#include <herald/SpecificTournamentModel/TournamentBreakModel.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

namespace {

constexpr const wchar_t* FILE_NAME = L"SpecificTournamentModel/TournamentBreakModel";

// Logs and bug trackers know these failures by the line numbers given here, which therefore stay.

void requireAccess(bool allowed, const wchar_t* operation, int line) {
  if (!allowed) throw IllegalAccessException(FILE_NAME, line, operation, L"");
}

void requireTransition(bool allowed, const wchar_t* wanted, int line) {
  if (!allowed) throw IllegalStateTransitionException(FILE_NAME, line, L"NoMoreBreaks", wanted);
}

}  // namespace

bool TournamentBreakModel::hasMoreBreaks() const {
  requireAccess(hasValidInfo(), L"hasMoreBreaks", 79);
  return state_ != State::NO_MORE_BREAKS;
}

TesselTime TournamentBreakModel::getBreakEndTime() const {
  requireAccess(isOnBreak(), L"getBreakEndTime", 88);
  return breakEndTime_;
}

TesselTime TournamentBreakModel::getNextBreakTime() const {
  requireAccess(state_ == State::BETWEEN_BREAKS, L"getNextBreakTime", 97);
  return nextBreakTime_;
}

TesselTimeSpan TournamentBreakModel::getNextBreakDuration() const {
  requireAccess(state_ == State::BETWEEN_BREAKS, L"getNextBreakDuration", 106);
  return breakEndTime_ - nextBreakTime_;
}

void TournamentBreakModel::setNoInfo() { state_ = State::NO_INFORMATION; }

void TournamentBreakModel::setNoMoreBreaks() { state_ = State::NO_MORE_BREAKS; }

void TournamentBreakModel::setOnBreakStatus(TesselTime breakEnd) {
  requireTransition(state_ != State::NO_MORE_BREAKS, L"OnBreak", 35);
  state_ = State::ON_BREAK;
  breakEndTime_ = breakEnd;
}

void TournamentBreakModel::setNotOnBreakStatus(TesselTime nextBreak, TesselTimeSpan duration) {
  requireTransition(state_ != State::NO_MORE_BREAKS, L"BetweenBreaks", 41);
  state_ = State::BETWEEN_BREAKS;
  nextBreakTime_ = nextBreak;
  breakEndTime_ = nextBreak + duration;
}

void TournamentBreakModel::setEndBreakStatus() {
  if (isOnBreak()) setNoInfo();
}

}  // namespace Tessel
