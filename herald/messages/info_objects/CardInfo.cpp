#include <herald/messages/info_objects/CardInfo.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/Exceptions.h>

#include <algorithm>
#include <iterator>

namespace Tessel {

namespace {

constexpr const wchar_t* FILE_NAME = L"messages/info_objects/CardInfo";

// By wire color, from -1 on.
constexpr Card::Color COLORS[] = {Card::Color::HIDDEN, Card::Color::DIAMONDS, Card::Color::HEARTS, Card::Color::CLUBS,
                                  Card::Color::SPADES};

// By wire number, from -1 on; 0 is no number.
constexpr Card::Type TYPES[] = {Card::Type::HIDDEN, Card::Type::HIDDEN, Card::Type::ACE,  Card::Type::TWO,
                                Card::Type::THREE,  Card::Type::FOUR,   Card::Type::FIVE, Card::Type::SIX,
                                Card::Type::SEVEN,  Card::Type::EIGHT,  Card::Type::NINE, Card::Type::TEN,
                                Card::Type::JACK,   Card::Type::QUEEN,  Card::Type::KING};

// The wire value of an entry; -1, hidden, for one that the table does not have.
template <class Value, std::size_t N>
std::int8_t wireValue(const Value (&table)[N], Value value) {
  const auto entry = std::find(std::begin(table), std::end(table), value);
  return static_cast<std::int8_t>(entry == std::end(table) ? -1 : entry - std::begin(table) - 1);
}

}  // namespace

CardInfo::CardInfo(int playerId, int seat, const Card& card)
    : playerId_(playerId), seat_(seat), color_(wireValue(COLORS, card.getColor())),
      number_(wireValue(TYPES, card.getType())) {}

Card CardInfo::createCard(int color, int number) {
  const bool knownColor = color >= LOWEST_COLOR && color <= HIGHEST_COLOR;
  const bool knownNumber = number >= LOWEST_NUMBER && number <= HIGHEST_NUMBER;
  return {knownColor ? COLORS[color - LOWEST_COLOR] : Card::Color::HIDDEN,
          knownNumber ? TYPES[number - LOWEST_NUMBER] : Card::Type::HIDDEN};
}

void CardInfo::setHiddenCard(int seat) { *this = CardInfo(0, seat, Card()); }

void CardInfo::setRandomCommunityCard() {
  Card card;
  card.setRandomCard();
  *this = CardInfo(-1, -1, card);
}

std::wstring CardInfo::toDebugString() const {
  return formatText(L"[CardInfo: Player id=%d, seat=%d, %s]", playerId_, seat_, getCard().toCString());
}

void CardInfo::throwNoCard() const {
  if (color_ < LOWEST_COLOR || color_ > HIGHEST_COLOR)
    throw OutOfBoundsException(FILE_NAME, __LINE__, L"color", LOWEST_COLOR, HIGHEST_COLOR, color_);
  throw OutOfBoundsException(FILE_NAME, __LINE__, L"number", LOWEST_NUMBER, HIGHEST_NUMBER, number_);
}

}  // namespace Tessel
