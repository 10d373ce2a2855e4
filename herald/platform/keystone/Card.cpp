#include <herald/platform/keystone/Card.h>

#include <random>
#include <string_view>

namespace Tessel {

namespace {

constexpr std::wstring_view SUITS = L"cdhs";
constexpr std::wstring_view RANKS = L"23456789TJQKA";

template <class Half>
bool isKnown(Half half, std::wstring_view letters) {
  return static_cast<int>(half) >= 0 && static_cast<int>(half) < static_cast<int>(letters.size());
}

template <class Half>
wchar_t letter(Half half, std::wstring_view letters) {
  return isKnown(half, letters) ? letters[static_cast<std::size_t>(half)] : L'?';
}

}  // namespace

bool Card::isHidden() const { return !isKnown(color_, SUITS) || !isKnown(type_, RANKS); }

std::wstring Card::toCString() const { return {letter(type_, RANKS), letter(color_, SUITS)}; }

void Card::setRandomCard() {
  thread_local std::minstd_rand random{std::random_device{}()};
  const int card = std::uniform_int_distribution<int>(0, static_cast<int>(SUITS.size() * RANKS.size()) - 1)(random);
  color_ = static_cast<Color>(card % static_cast<int>(SUITS.size()));
  type_ = static_cast<Type>(card / static_cast<int>(SUITS.size()));
}

}  // namespace Tessel
