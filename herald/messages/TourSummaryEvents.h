#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/SpecificLobbyPlayerInfo.h>
#include <herald/messages/info_objects/TourSummaryLists.h>

#include <cstdint>

// Which tournaments there are, and how they change.

namespace Tessel {

/// The tournaments under a lobby node that are new, changed or gone. An index outside a list fails with
/// `std::invalid_argument`.
class HERALD_API TourSummaryChangeList : public WireMessage<TourSummaryChangeList> {
 public:
  /// The lobby node that the change list belongs to, as the server sent it; it hides the base class's tag.
  int getNodeId() const { return nodeId_; }

  int getNumberNewTournaments() const { return newTournaments_.getItems().size(); }
  const TourSummary& getNewTournament(int i) const { return newTournaments_.getItems()[i]; }
  int getNumberUpdatedTournaments() const { return updatedTournaments_.getItems().size(); }
  const TourSummaryUpdate& getUpdatedTournament(int i) const { return updatedTournaments_.getItems()[i]; }
  int getNumberDeletedTournaments() const { return deletedTournaments_.getItems().size(); }
  const int& getDeletedTournamentId(int i) const { return deletedTournaments_.getItems()[i]; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("nodeId", self.nodeId_);
    fields("newTournaments", self.newTournaments_);
    fields("updatedTournaments", self.updatedTournaments_);
    fields("deletedTournaments", self.deletedTournaments_);
  }

 private:
  std::int16_t nodeId_ = -1;
  TourSummaryList newTournaments_;
  TourSummaryUpdateList updatedTournaments_;
  TourSummaryDeleteList deletedTournaments_;
};

/// One tournament, and how the user stands in it.
class HERALD_API SpecificTourSummary : public WireMessage<SpecificTourSummary> {
 public:
  const TourSummary& getTourSummary() const { return tourSummary_; }
  const SpecificLobbyPlayerInfo& getPlayerInfo() const { return playerInfo_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tourSummary", self.tourSummary_);
    fields("playerInfo", self.playerInfo_);
  }

 private:
  TourSummary tourSummary_;
  SpecificLobbyPlayerInfo playerInfo_;
};

/// What changed in one tournament, and how the user stands in it now.
class HERALD_API SpecificTourSummaryUpdate : public WireMessage<SpecificTourSummaryUpdate> {
 public:
  const TourSummaryUpdate& getTourSummaryUpdate() const { return tourSummaryUpdate_; }
  const SpecificLobbyPlayerInfo& getPlayerInfo() const { return playerInfo_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tourSummaryUpdate", self.tourSummaryUpdate_);
    fields("playerInfo", self.playerInfo_);
  }

 private:
  TourSummaryUpdate tourSummaryUpdate_;
  SpecificLobbyPlayerInfo playerInfo_;
};

}  // namespace Tessel
