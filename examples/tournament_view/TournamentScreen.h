#pragma once
#include <herald/SpecificTournamentModel/SpecificTournamentModel.h>
#include <herald/mailboxes/MailBox.h>

#include <array>
#include <ostream>
#include <string>
#include <typeindex>
#include <unordered_map>
#include <vector>

/// Shows a tournament, one line per part, and redraws the parts that notifications name: in place on a terminal, else
/// by printing the part again when its text has changed.
///
/// A notification comes on the thread that changed the model, with the model's lock held. So it is only posted; what it
/// names is read and drawn by `drawChanges`, where no lock is held and any model may be asked.
class TournamentScreen : public Tessel::MVCObserver {
 public:
  TournamentScreen(Tessel::SpecificTournamentModel& model, std::ostream& out, bool inPlace);
  ~TournamentScreen() override;
  TournamentScreen(const TournamentScreen&) = delete;
  TournamentScreen& operator=(const TournamentScreen&) = delete;

  void update(const Tessel::NotificationUpdateObject& update) override;
  /// Draws what has changed since the last call.
  void drawChanges();

 private:
  enum Part { NAME, STATE, LEVEL, BREAK, ENTRANTS, PRIZES, RANKING, PLAYERS, TABLES, USER, REBUY, PART_COUNT };

  std::wstring textOf(Part part) const;
  void draw(Part part);

  static const std::unordered_map<std::type_index, std::vector<Part>>& partsOfUpdates();

  Tessel::SpecificTournamentModel& model_;
  std::ostream& out_;
  bool inPlace_;
  Tessel::MailBox<Tessel::NotificationUpdateObject, 1> changes_;
  std::array<std::wstring, PART_COUNT> shown_;
};
