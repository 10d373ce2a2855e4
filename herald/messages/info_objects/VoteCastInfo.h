#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// What became of a vote; the values are the server's.
enum class VoteCastStatus : std::int8_t {};

/// A vote at the table, and how many there are now.
class HERALD_API VoteCastInfo : public ReadableRecord<VoteCastInfo> {
 public:
  int getPlayerID() const { return playerId_; }
  VoteCastStatus getStatus() const { return static_cast<VoteCastStatus>(status_); }
  int getNumberOfVotes() const { return numberOfVotes_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("status", self.status_);
    fields("numberOfVotes", self.numberOfVotes_);
  }

 private:
  std::int32_t playerId_ = -1;
  std::int8_t status_ = -1;
  std::int32_t numberOfVotes_ = -1;
};

}  // namespace Tessel
