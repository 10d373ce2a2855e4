#pragma once
#include <herald/HeraldUtils/Subscription.h>
#include <herald/SpecificTournamentModel/SpecificTournamentModel.h>
#include <herald/SpecificTournamentModel/TournamentUpdateVisitor.h>
#include <herald/mailboxes/MailBox.h>

#include <array>
#include <initializer_list>
#include <ostream>
#include <set>
#include <string>

/// Shows a tournament, one line per part, and redraws the parts that notifications name: in place on a terminal, else
/// by printing the part again when its text has changed.
///
/// A notification comes on the thread that changed the model, with the model's lock held. So it is only posted; what it
/// names is read and drawn by `drawChanges`, where no lock is held and any model may be asked.
class TournamentScreen : public Tessel::MVCObserver, private Tessel::TournamentUpdateVisitor {
 public:
  TournamentScreen(Tessel::SpecificTournamentModel& model, std::ostream& out, bool inPlace);

  void update(const Tessel::NotificationUpdateObject& update) override;
  /// Draws what has changed since the last call.
  void drawChanges();

 private:
  enum Part { NAME, STATE, LEVEL, BREAK, ENTRANTS, PRIZES, RANKING, PLAYERS, TABLES, USER, REBUY, PART_COUNT };

  std::wstring textOf(Part part) const;
  void draw(Part part);

  void visit(const Tessel::TournamentGlobalInformationUpdateObject&) override { changed({NAME, STATE, PRIZES}); }
  void visit(const Tessel::TournamentLevelInformationUpdateObject&) override { changed({LEVEL}); }
  void visit(const Tessel::TournamentBreakUpdateObject&) override { changed({BREAK}); }
  void visit(const Tessel::TournamentBaseUpdateObject&) override { changed({ENTRANTS}); }
  void visit(const Tessel::TournamentPlayerRankingUpdateObject&) override { changed({RANKING, USER}); }
  void visit(const Tessel::TournamentPlayerInformationUpdateObject&) override { changed({USER}); }
  void visit(const Tessel::TournamentRegisteredPlayersUpdateObject&) override { changed({PLAYERS}); }
  void visit(const Tessel::TournamentTablesUpdateObject&) override { changed({TABLES}); }
  void visit(const Tessel::TournamentTableRankedPlayersUpdateObject&) override { changed({TABLES}); }
  void visit(const Tessel::TournamentRebuyUpdateObject&) override { changed({REBUY}); }
  void changed(std::initializer_list<Part> parts) { changed_.insert(parts); }

  Tessel::SpecificTournamentModel& model_;
  std::ostream& out_;
  bool inPlace_;
  Tessel::MailBox<Tessel::NotificationUpdateObject, 1> changes_;
  std::set<Part> changed_;
  std::array<std::wstring, PART_COUNT> shown_;
  Tessel::Subscription subscription_;
};
