#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A table of a tournament, as an element of an `InfoVector`.
class HERALD_API TournamentLobbyTableInfo : public ReadableRecord<TournamentLobbyTableInfo> {
 public:
  int getTableId() const { return tableId_; }
  int getTournamentId() const { return tournamentId_; }
  std::wstring getName() const { return name_.getString(); }
  std::wstring getStatus() const { return status_.getString(); }
  int getNumPlayers() const { return numPlayers_; }

  /// Empty.
  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tableId", self.tableId_);
    fields("tournamentId", self.tournamentId_);
    fields("name", self.name_);
    fields("status", self.status_);
    fields("numPlayers", self.numPlayers_);
  }

 private:
  std::int32_t tableId_ = -1;
  std::int32_t tournamentId_ = -1;
  Text name_;
  Text status_;
  std::int32_t numPlayers_ = -1;
};

}  // namespace Tessel
