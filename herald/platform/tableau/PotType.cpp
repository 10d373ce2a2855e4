#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/PotType.h>

namespace Tessel {

namespace {

using enum AllowedPotType;

constexpr PotType POT_TYPES[] = {
    {UNKNOWN, L"Unknown pot"},           {MAIN_POT, L"Main pot"},           {SIDE_POT, L"Side pot"},
    {HIGH_POT, L"High half of the pot"}, {LOW_POT, L"Low half of the pot"}, {UNCALLED_BET, L"Uncalled bet"},
};

}  // namespace

const PotType& PotType::getPotType(AllowedPotType value) { return Constants::get<POT_TYPES>(value); }

}  // namespace Tessel
