#include <herald/SpecificTournamentModel/TournamentUpdateVisitor.h>

namespace Tessel {

namespace {

template <class Update>
bool visitAs(const NotificationUpdateObject& update, TournamentUpdateVisitor& visitor) {
  const auto* const own = dynamic_cast<const Update*>(&update);
  if (own != nullptr) visitor.visit(*own);
  return own != nullptr;
}

template <class... Updates>
bool visitAsOneOf(const NotificationUpdateObject& update, TournamentUpdateVisitor& visitor) {
  return (visitAs<Updates>(update, visitor) || ...);
}

}  // namespace

TournamentUpdateVisitor::~TournamentUpdateVisitor() = default;

bool accept(const NotificationUpdateObject& update, TournamentUpdateVisitor& visitor) {
  return visitAsOneOf<TournamentBaseUpdateObject, TournamentBreakUpdateObject, TournamentPlayerRankingUpdateObject,
                      TournamentLevelInformationUpdateObject, TournamentGlobalInformationUpdateObject,
                      TournamentPlayerInformationUpdateObject, TournamentRebuyUpdateObject,
                      TournamentRegisteredPlayersUpdateObject, TournamentTablesUpdateObject,
                      TournamentTableRankedPlayersUpdateObject>(update, visitor);
}

}  // namespace Tessel
