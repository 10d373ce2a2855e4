#include <herald/platform/tableau/Constants.h>
#include <herald/platform/tableau/GameType.h>

namespace Tessel {

namespace {

using enum GameTypes::AllowedGameType;

constexpr GameType GAME_TYPES[] = {
    {UNKNOWN, L"Unknown game"},
    {TEXAS_HOLDEM, L"Texas Hold'em"},
    {OMAHA, L"Omaha"},
    {OMAHA_HI_LO, L"Omaha Hi/Lo"},
    {SEVEN_CARD_STUD, L"Seven Card Stud"},
    {SEVEN_CARD_STUD_HI_LO, L"Seven Card Stud Hi/Lo"},
    {FIVE_CARD_STUD, L"Five Card Stud"},
    {FIVE_CARD_DRAW, L"Five Card Draw"},
    {RAZZ, L"Razz"},
};

}  // namespace

const GameType* GameTypeFactory::createGameType(GameTypes::AllowedGameType value) {
  return &Constants::get<GAME_TYPES>(value);
}

}  // namespace Tessel
