#include <herald/HeraldUtils/ResourceTexts.h>
#include <herald/HeraldUtils/TournamentBuyIn.h>

#include <atomic>

namespace Tessel {

namespace {
constexpr const wchar_t* FILE_NAME = L"HeraldUtils/TournamentBuyIn";
constexpr const wchar_t* SECTION = L"BuyInTexts";
}  // namespace

std::wstring TournamentBuyIn::getStringRepresentation() const {
  return buyIn_.hasValidMonetaryUnit() ? getBuyInString(buyIn_, fee_) : getInvalidBuyInString();
}

std::wstring TournamentBuyIn::getBuyInString(const Money& buyIn, const Money& fee) {
  constexpr const wchar_t* KEY = L"BuyInFormatString";
  const auto resource = findTextResource(FILE_NAME, SECTION);
  std::wstring text;
  if (resource && !resource->getStringSubstAttribute(KEY, L"BUYIN", buyIn.toString(), L"FEE", fee.toString(), text))
    reportMissingText(FILE_NAME, KEY);
  return text;
}

std::wstring TournamentBuyIn::getInvalidBuyInString() {
  // Also a text that could not be found is not looked up again. The language makes the first call safe from any thread;
  // the report comes after it, since a sink may throw, or ask for this text itself.
  static const LookedUpText cInvalidBuyInString = lookUpText(FILE_NAME, SECTION, L"InvalidBuyInString");
  static std::atomic_flag reported;
  if (cInvalidBuyInString.failure && !reported.test_and_set()) cInvalidBuyInString.failure->report();
  return cInvalidBuyInString.text;
}

}  // namespace Tessel
