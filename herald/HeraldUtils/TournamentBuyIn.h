#pragma once
#include <herald/platform/keystone/Money.h>

#include <string>

namespace Tessel {

/// What it costs to enter a tournament, in the user's language.
class HERALD_API TournamentBuyIn {
 public:
  static constexpr int INVALID_BUYIN = -1;

  TournamentBuyIn() = default;
  TournamentBuyIn(const Money& buyIn, const Money& fee) : buyIn_(buyIn), fee_(fee) {}

  const Money& getBuyIn() const { return buyIn_; }
  const Money& getFee() const { return fee_; }

  /// The buy-in and the fee, or the text for an invalid buy-in when the buy-in has no valid monetary unit. A text that
  /// the resources do not have is reported, and the answer is empty. The text for an invalid buy-in is looked up once
  /// in the life of the process.
  std::wstring getStringRepresentation() const;

 private:
  static std::wstring getBuyInString(const Money& buyIn, const Money& fee);
  static std::wstring getInvalidBuyInString();

  Money buyIn_;
  Money fee_;
};

}  // namespace Tessel
