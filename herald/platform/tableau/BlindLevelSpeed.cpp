#include <herald/platform/tableau/BlindLevelSpeed.h>
#include <herald/platform/tableau/Constants.h>

namespace Tessel {

namespace {

using enum AllowedBlindLevelSpeed;

constexpr BlindLevelSpeed BLIND_LEVEL_SPEEDS[] = {
    {UNKNOWN, L"Unknown speed"}, {SLOW, L"Slow"}, {NORMAL, L"Normal"}, {TURBO, L"Turbo"}, {HYPER_TURBO, L"Hyper-turbo"},
};

}  // namespace

const BlindLevelSpeed& BlindLevelSpeedFactory::createBlindLevelSpeed(AllowedBlindLevelSpeed value) {
  return Constants::get<BLIND_LEVEL_SPEEDS>(value);
}

}  // namespace Tessel
