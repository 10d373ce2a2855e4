#include <herald/platform/tableau/TournamentLevelInformation.h>

namespace Tessel {

TournamentLevelInformation::TournamentLevelInformation(int levelNumber) { level_.number = levelNumber; }

void TournamentLevelInformation::setDurationInHands(int hands) {
  level_.durationKind = DurationKind::HANDS;
  level_.duration = hands;
}

void TournamentLevelInformation::setDurationInMs(std::int64_t milliseconds) {
  level_.durationKind = DurationKind::MILLISECONDS;
  level_.duration = milliseconds;
}

void TournamentLevelInformation::setInfiniteDuration() {
  level_.durationKind = DurationKind::UNLIMITED;
  level_.duration = -1;
}

int TournamentLevelInformation::getDurationInHands() const {
  return level_.durationKind == DurationKind::HANDS ? static_cast<int>(level_.duration) : -1;
}

std::int64_t TournamentLevelInformation::getDurationInMs() const {
  return level_.durationKind == DurationKind::MILLISECONDS ? level_.duration : -1;
}

}  // namespace Tessel
