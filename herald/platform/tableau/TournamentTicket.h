#pragma once
#include <herald/platform/keystone/Export.h>
#include <herald/platform/keystone/Money.h>

#include <string>

namespace Tessel {

/// What it takes to enter a tournament, or a prize that is such an entry.
class HERALD_API TournamentTicket {
 public:
  TournamentTicket() = default;
  /// A ticket of which only the description is known.
  explicit TournamentTicket(std::wstring description);
  TournamentTicket(Money buyIn, Money fee, bool isRestricted, std::wstring description);

  const Money& getBuyIn() const { return buyIn_; }
  const Money& getFee() const { return fee_; }
  bool isRestricted() const { return isRestricted_; }
  const std::wstring& getDescription() const { return description_; }

  bool operator==(const TournamentTicket&) const = default;

 private:
  Money buyIn_;
  Money fee_;
  bool isRestricted_ = false;
  std::wstring description_;
};

}  // namespace Tessel
