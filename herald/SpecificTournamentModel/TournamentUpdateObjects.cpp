#include <herald/SpecificTournamentModel/TournamentUpdateObjects.h>

namespace Tessel {

NotificationUpdateObject* TournamentBaseUpdateObject::clone() const { return new TournamentBaseUpdateObject(*this); }

NotificationUpdateObject* TournamentBreakUpdateObject::clone() const { return new TournamentBreakUpdateObject(*this); }

NotificationUpdateObject* TournamentPlayerRankingUpdateObject::clone() const {
  return new TournamentPlayerRankingUpdateObject(*this);
}

NotificationUpdateObject* TournamentLevelInformationUpdateObject::clone() const {
  return new TournamentLevelInformationUpdateObject(*this);
}

NotificationUpdateObject* TournamentGlobalInformationUpdateObject::clone() const {
  return new TournamentGlobalInformationUpdateObject(*this);
}

NotificationUpdateObject* TournamentPlayerInformationUpdateObject::clone() const {
  return new TournamentPlayerInformationUpdateObject(*this);
}

NotificationUpdateObject* TournamentRebuyUpdateObject::clone() const { return new TournamentRebuyUpdateObject(*this); }

NotificationUpdateObject* TournamentRegisteredPlayersUpdateObject::clone() const {
  return new TournamentRegisteredPlayersUpdateObject(*this);
}

NotificationUpdateObject* TournamentTablesUpdateObject::clone() const {
  return new TournamentTablesUpdateObject(*this);
}

NotificationUpdateObject* TournamentTableRankedPlayersUpdateObject::clone() const {
  return new TournamentTableRankedPlayersUpdateObject(*this);
}

}  // namespace Tessel
