#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A tournament that the user has entered.
class HERALD_API EnteredTour : public ReadableRecord<EnteredTour> {
 public:
  int getTournamentId() const { return tournamentId_; }
  int getNodeId() const { return nodeId_; }
  std::wstring getName() const { return name_.getString(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("tournamentId", self.tournamentId_);
    fields("nodeId", self.nodeId_);
    fields("name", self.name_);
  }

 private:
  std::int32_t tournamentId_ = -1;
  std::int16_t nodeId_ = -1;
  Text name_;
};

}  // namespace Tessel
