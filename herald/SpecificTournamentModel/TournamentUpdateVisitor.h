#pragma once
#include <herald/SpecificTournamentModel/TournamentUpdateObjects.h>

namespace Tessel {

/// Takes what a tournament's model tells its observers, one operation per part of the model. What a derived class does
/// not take is passed over.
class HERALD_API TournamentUpdateVisitor {
 public:
  virtual ~TournamentUpdateVisitor();

  virtual void visit(const TournamentBaseUpdateObject&) {}
  virtual void visit(const TournamentBreakUpdateObject&) {}
  virtual void visit(const TournamentPlayerRankingUpdateObject&) {}
  virtual void visit(const TournamentLevelInformationUpdateObject&) {}
  virtual void visit(const TournamentGlobalInformationUpdateObject&) {}
  virtual void visit(const TournamentPlayerInformationUpdateObject&) {}
  virtual void visit(const TournamentRebuyUpdateObject&) {}
  virtual void visit(const TournamentRegisteredPlayersUpdateObject&) {}
  virtual void visit(const TournamentTablesUpdateObject&) {}
  virtual void visit(const TournamentTableRankedPlayersUpdateObject&) {}
};

/// Calls the visitor's operation for the class of the update, or for the class that it is derived from. Answers false
/// for an update of another model, and calls nothing.
HERALD_API bool accept(const NotificationUpdateObject& update, TournamentUpdateVisitor& visitor);

}  // namespace Tessel
