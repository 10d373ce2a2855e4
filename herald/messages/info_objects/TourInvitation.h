#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// Where the player's table in a tournament is.
class HERALD_API TourInvitation : public ReadableRecord<TourInvitation> {
 public:
  TourInvitation() = default;
  /// Reads the record at once; throws `KeystoneException` when the stream is too short.
  explicit TourInvitation(ByteStream& in);

  int getTournamentId() const { return tournamentId_; }
  int getTableId() const { return tableId_; }
  int getNodeId() const { return nodeId_; }
  int getServerPort() const { return serverPort_; }
  short getMonetaryUnitId() const { return monetaryUnitId_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tournamentId", self.tournamentId_);
    fields("tableId", self.tableId_);
    fields("nodeId", self.nodeId_);
    fields("serverPort", self.serverPort_);
    fields("monetaryUnitId", self.monetaryUnitId_);
  }

 private:
  std::int32_t tournamentId_ = -1;
  std::int32_t tableId_ = -1;
  std::int16_t nodeId_ = -1;
  std::int32_t serverPort_ = -1;
  std::int16_t monetaryUnitId_ = -1;
};

}  // namespace Tessel
