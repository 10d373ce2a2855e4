#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// Who wants what of which tournament. The server's replies echo it with their status. Its debug text shows the
/// password: keep it out of logs.
class HERALD_API TournamentJoinRequest : public ReadableWritableRecord<TournamentJoinRequest> {
 public:
  TournamentJoinRequest() = default;
  TournamentJoinRequest(int playerId, int tournamentId, int tableId);
  /// Names no table. The password is empty for a tournament that requires none.
  TournamentJoinRequest(int playerId, int tournamentId, std::wstring_view password);

  int getPlayerId() const { return playerId_; }
  int getTournamentId() const { return tournamentId_; }
  /// -1 when no table is meant.
  int getTableId() const { return tableId_; }
  /// Its values are the server's; 0 in a request.
  int getReplyStatus() const { return replyStatus_; }
  std::wstring getPassword() const { return password_.getString(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("tournamentId", self.tournamentId_);
    fields("tableId", self.tableId_);
    fields("replyStatus", self.replyStatus_);
    fields.secret("password", self.password_);
  }

 private:
  std::int32_t playerId_ = 0;
  std::int32_t tournamentId_ = 0;
  std::int32_t tableId_ = 0;
  std::int8_t replyStatus_ = 0;
  Text password_;
};

}  // namespace Tessel
