#include <herald/messages/info_objects/PGSettings.h>
#include <herald/messages/info_objects/RecordOperations.h>

#include <utility>

namespace Tessel {

PGSettings::PGSettings(int settingId, int maxNumPlayers, JoinType joinType, TsString description,
                       PokerGameInfo::GameSpeed speed)
    : settingId_(settingId), maxNumPlayers_(static_cast<std::int8_t>(maxNumPlayers)),
      joinType_(static_cast<std::int8_t>(joinType)), description_(std::move(description)),
      speed_(static_cast<std::int8_t>(speed)) {}

std::wstring PGSettings::toDebugString() const {
  return formatText(L"[PGSettingsInfo: settingId=%d, maxNumPlayers=%d, joinType=%d, description=%s, speed=%d]",
                    settingId_, maxNumPlayers_, joinType_, description_, speed_);
}

}  // namespace Tessel
