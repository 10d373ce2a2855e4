#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/RebuyStructure.h>

namespace Tessel {

namespace {

using enum AllowedRebuyStructure;

constexpr RebuyStructure REBUY_STRUCTURES[] = {
    {UNKNOWN, L"Unknown rebuy structure"},    {FREEZEOUT, L"Freezeout"}, {REBUYS, L"Rebuys"}, {ADDON, L"Add-on"},
    {REBUYS_AND_ADDON, L"Rebuys and add-on"},
};

}  // namespace

const RebuyStructure& RebuyStructureFactory::createRebuyStructure(AllowedRebuyStructure value) {
  return Constants::get<REBUY_STRUCTURES>(value);
}

}  // namespace Tessel
