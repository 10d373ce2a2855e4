#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/HandValue.h>

namespace Tessel {

namespace {

using enum AllowedHandValue;

constexpr HandValue HAND_VALUES[] = {
    {UNKNOWN, L"Unknown hand"},
    {HIGH_CARD, L"High card"},
    {ONE_PAIR, L"One pair"},
    {TWO_PAIR, L"Two pair"},
    {THREE_OF_A_KIND, L"Three of a kind"},
    {STRAIGHT, L"Straight"},
    {FLUSH, L"Flush"},
    {FULL_HOUSE, L"Full house"},
    {FOUR_OF_A_KIND, L"Four of a kind"},
    {STRAIGHT_FLUSH, L"Straight flush"},
    {ROYAL_FLUSH, L"Royal flush"},
};

}  // namespace

const HandValue& HandValue::getHandValue(AllowedHandValue value) { return Constants::get<HAND_VALUES>(value); }

}  // namespace Tessel
