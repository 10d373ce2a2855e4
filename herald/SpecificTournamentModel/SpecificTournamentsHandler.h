#pragma once
#include <herald/SpecificTournamentModel/SpecificTournamentModel.h>

#include <map>
#include <memory>
#include <mutex>

namespace Tessel {

/// The process-wide registry of tournament models, which it owns. `getTournamentModel` is safe from any thread; the
/// registry itself is created and destroyed by one thread while no other uses it.
class HERALD_API SpecificTournamentsHandler {
 public:
  /// Created by the first call.
  static SpecificTournamentsHandler& getInstance();
  /// Destroys the registry with all its models; the next `getInstance` creates a new one.
  static void destroyInstance();

  ~SpecificTournamentsHandler();
  SpecificTournamentsHandler(const SpecificTournamentsHandler&) = delete;
  SpecificTournamentsHandler& operator=(const SpecificTournamentsHandler&) = delete;

  /// The model of the tournament, made on first demand. It lives as long as the registry.
  SpecificTournamentModel& getTournamentModel(int tournamentId);

 private:
  SpecificTournamentsHandler();
  SpecificTournamentModel& getModel(int tournamentId);
  void clearMap();

  static std::unique_ptr<SpecificTournamentsHandler> cInstance;

  std::recursive_mutex lock_;
  std::map<int, std::unique_ptr<SpecificTournamentModel>> models_;
};

}  // namespace Tessel
