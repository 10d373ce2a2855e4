#pragma once
#include <herald/inspect/Schema.h>

#include <map>
#include <nlohmann/json.hpp>

#include "../Packet.h"

namespace Tessel {

/// The classes that a session has, and the layouts that its bodies have, as the script of a report reads them.
class LayoutsOfSession {
 public:
  void add(const Packet& packet);
  /// Classes as [direction, id, name, the index of its layout or null], and the layouts.
  nlohmann::json toJson() const;

 private:
  std::size_t indexOf(const RecordSchema& record);
  nlohmann::json toJson(const FieldSchema& field);

  std::map<std::pair<Direction, int>, nlohmann::json> classes_;
  std::map<const RecordSchema*, std::size_t> indexes_;
  std::vector<nlohmann::json> layouts_;
};

}  // namespace Tessel
