#include <herald/messages/info_objects/CreateTourRequestType.h>
#include <herald/messages/info_objects/PrivateTourLimitTypes.h>
#include <herald/messages/info_objects/PrivateTourType.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

CreateTourRequestType::CreateTourRequestType(Tourney::TournamentType tournamentType,
                                             GameTypes::AllowedGameType gameType,
                                             LimitTypes::AllowedLimitType limitType, int value4, int value5, int value6,
                                             int value7, int value8, int value9, std::int64_t value10, int value11,
                                             int value12, std::wstring_view text13, std::wstring_view text14)
    : tournamentType_(static_cast<std::int8_t>(PrivateTourType::convertFromInternalTourType(tournamentType))),
      gameType_(static_cast<std::int8_t>(gameType)),
      limitType_(static_cast<std::int8_t>(PrivateTourLimitTypes::convertFromInternalTourType(limitType))),
      value4_(static_cast<std::int8_t>(value4)), value5_(static_cast<std::int16_t>(value5)),
      value6_(static_cast<std::int8_t>(value6)), value7_(static_cast<std::int16_t>(value7)),
      value8_(static_cast<std::int8_t>(value8)), value9_(static_cast<std::int8_t>(value9)), value10_(value10),
      value11_(static_cast<std::int16_t>(value11)), value12_(value12), text13_(text13), text14_(text14) {}

std::wstring CreateTourRequestType::toDebugString() const { return L"to do"; }

}  // namespace Tessel
