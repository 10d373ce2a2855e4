#pragma once
#include <herald/messages/info_objects/AmountInfo.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A player of a tournament, as an element of an `InfoVector`.
class HERALD_API TournamentLobbyPlayerInfo : public ReadableRecord<TournamentLobbyPlayerInfo> {
 public:
  // The values of the status.
  static constexpr char ACTIVE = 0;
  static constexpr char DISCONNECTED = 1;
  static constexpr char BROKE = 2;
  static constexpr char RELOCATING = 3;
  static constexpr char SIGNED_IN = 4;
  static constexpr char SIGNED_OFF = 5;
  static constexpr char REMOVED = 6;

  int getPlayerId() const { return playerId_; }
  std::wstring getNick() const { return nick_.getString(); }
  int getRanking() const { return ranking_; }
  /// In chips of the tournament.
  std::int64_t getCredits() const { return credits_.getAmount(); }
  int getStatus() const { return status_; }
  int getTableId() const { return tableId_; }
  /// In milliseconds.
  int getPing() const { return ping_; }

  /// Empty.
  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("nick", self.nick_);
    fields("ranking", self.ranking_);
    fields("credits", self.credits_);
    fields("status", self.status_);
    fields("tableId", self.tableId_);
    fields("ping", self.ping_);
  }

 private:
  std::int32_t playerId_ = -1;
  Text nick_;
  std::int32_t ranking_ = -1;
  Amount credits_;
  std::int8_t status_ = -1;
  std::int32_t tableId_ = -1;
  std::int32_t ping_ = -1;
};

}  // namespace Tessel
