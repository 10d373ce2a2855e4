#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/keystone/Money.h>

#include <cstdint>
#include <optional>

namespace Tessel {

class HERALD_API TournamentBlind {
 public:
  TournamentBlind() = default;
  TournamentBlind(Money smallBlind, Money bigBlind) : smallBlind_(smallBlind), bigBlind_(bigBlind) {}

  const Money& getSmallBlind() const { return smallBlind_; }
  const Money& getBigBlind() const { return bigBlind_; }

  bool operator==(const TournamentBlind&) const = default;

 private:
  Money smallBlind_;
  Money bigBlind_;
};

class HERALD_API TournamentAnte {
 public:
  TournamentAnte() = default;
  explicit TournamentAnte(Money ante) : ante_(ante) {}

  const Money& getAnte() const { return ante_; }

  bool operator==(const TournamentAnte&) const = default;

 private:
  Money ante_;
};

/// A blind level of a tournament, and whether it has been interrupted by a break. It starts without blinds, without
/// ante, with an unknown duration, and with no break.
class HERALD_API TournamentLevelInformation {
 public:
  enum class DurationKind : int { UNKNOWN = -1, HANDS, MILLISECONDS, UNLIMITED };
  enum class BreakState : int { NO_BREAK, STARTED, ENDED };

  TournamentLevelInformation() = default;
  explicit TournamentLevelInformation(int levelNumber);

  int getLevelNumber() const { return level_.number; }

  void setBlinds(TournamentBlind blinds) { level_.blinds = blinds; }
  bool hasBlinds() const { return level_.blinds.has_value(); }
  /// Default blinds when there are none.
  TournamentBlind getBlinds() const { return level_.blinds.value_or(TournamentBlind()); }

  void setAnte(TournamentAnte ante) { level_.ante = ante; }
  bool hasAnte() const { return level_.ante.has_value(); }
  /// A default ante when there is none.
  TournamentAnte getAnte() const { return level_.ante.value_or(TournamentAnte()); }

  /// The duration set last replaces the one before.
  void setDurationInHands(int hands);
  void setDurationInMs(std::int64_t milliseconds);
  void setInfiniteDuration();

  DurationKind getDurationKind() const { return level_.durationKind; }
  bool isDurationInfinite() const { return level_.durationKind == DurationKind::UNLIMITED; }
  /// -1 unless the level is measured in hands.
  int getDurationInHands() const;
  /// -1 unless the level is measured in milliseconds.
  std::int64_t getDurationInMs() const;

  void breakStartingNow() { breakState_ = BreakState::STARTED; }
  void breakEnded() { breakState_ = BreakState::ENDED; }
  BreakState getBreakState() const { return breakState_; }

  /// Takes every value of the other level but its break state.
  void replaceLevel(const TournamentLevelInformation& other) { level_ = other.level_; }

  bool operator==(const TournamentLevelInformation&) const = default;

 private:
  struct Level {
    int number = -1;
    std::optional<TournamentBlind> blinds;
    std::optional<TournamentAnte> ante;
    DurationKind durationKind = DurationKind::UNKNOWN;
    std::int64_t duration = -1;

    bool operator==(const Level&) const = default;
  };

  Level level_;
  BreakState breakState_ = BreakState::NO_BREAK;
};

}  // namespace Tessel
