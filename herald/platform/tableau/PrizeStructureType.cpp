#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/PrizeStructureType.h>

namespace Tessel {

namespace {

using enum AllowedPrizeStructureType;

constexpr PrizeStructureType PRIZE_STRUCTURE_TYPES[] = {
    {UNKNOWN, L"Unknown prize structure"},
    {STANDARD, L"Standard"},
    {WINNER_TAKES_ALL, L"Winner takes all"},
    {TOP_HEAVY, L"Top-heavy"},
    {FLAT, L"Flat"},
    {DOUBLE_OR_NOTHING, L"Double or nothing"},
    {SATELLITE, L"Satellite"},
};

}  // namespace

const PrizeStructureType& PrizeStructureType::getPrizeStructureType(AllowedPrizeStructureType value) {
  return Constants::get<PRIZE_STRUCTURE_TYPES>(value);
}

}  // namespace Tessel
