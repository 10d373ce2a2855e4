#include <herald/messages/info_objects/GameInfo.h>
#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/TsString.h>

namespace Tessel {

bool GameInfo::write(ByteStream& out) const {
  out << id_;
  if (!TsString(getName()).write(out)) return false;
  out << nrPlayers_ << maxNrPlayers_ << nrPlayersWatching_ << std::int32_t{monetaryUnitId_} << port_ << type_;
  return true;
}

std::wstring GameInfo::toDebugString() const {
  return formatText(
      L"[GameInfo: name=%s, nr players=%d, max players=%d, game id=%d, monetary unit id=%d, players watching=%d, "
      L"port=%d, type=%d]",
      name_, nrPlayers_, maxNrPlayers_, id_, monetaryUnitId_, nrPlayersWatching_, port_, type_);
}

template class InfoList<GameInfo>;

}  // namespace Tessel
