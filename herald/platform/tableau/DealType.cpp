#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/DealType.h>

namespace Tessel {

namespace {

using enum AllowedDealType;

constexpr DealType DEAL_TYPES[] = {
    {UNKNOWN, L"Unknown deal"},
    {HOLE_CARDS, L"Hole cards"},
    {FLOP, L"Flop"},
    {TURN, L"Turn"},
    {RIVER, L"River"},
    {THIRD_STREET, L"Third street"},
    {FOURTH_STREET, L"Fourth street"},
    {FIFTH_STREET, L"Fifth street"},
    {SIXTH_STREET, L"Sixth street"},
    {SEVENTH_STREET, L"Seventh street"},
    {DRAW, L"Draw"},
};

}  // namespace

const DealType& DealType::getDealType(AllowedDealType value) { return Constants::get<DEAL_TYPES>(value); }

}  // namespace Tessel
