#include <herald/SpecificTournamentModel/SpecificTournamentsHandler.h>

namespace Tessel {

std::unique_ptr<SpecificTournamentsHandler> SpecificTournamentsHandler::cInstance;

SpecificTournamentsHandler::SpecificTournamentsHandler() = default;

SpecificTournamentsHandler::~SpecificTournamentsHandler() { clearMap(); }

SpecificTournamentsHandler& SpecificTournamentsHandler::getInstance() {
  if (!cInstance) cInstance.reset(new SpecificTournamentsHandler);
  return *cInstance;
}

void SpecificTournamentsHandler::destroyInstance() { cInstance.reset(); }

SpecificTournamentModel& SpecificTournamentsHandler::getTournamentModel(int tournamentId) {
  return getModel(tournamentId);
}

SpecificTournamentModel& SpecificTournamentsHandler::getModel(int tournamentId) {
  const std::lock_guard guard(lock_);
  std::unique_ptr<SpecificTournamentModel>& model = models_[tournamentId];
  if (!model) model = std::make_unique<SpecificTournamentModel>(tournamentId);
  return *model;
}

void SpecificTournamentsHandler::clearMap() {
  const std::lock_guard guard(lock_);
  models_.clear();
}

}  // namespace Tessel
