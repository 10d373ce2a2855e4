#pragma once
#include <herald/messages/info_objects/WireRecord.h>

#include <cstdint>

namespace Tessel {

/// A lobby node and the kind of news about it that the client wants; the kinds are the server's.
class HERALD_API SubscriptionInfo : public PlainRecord<SubscriptionInfo> {
 public:
  SubscriptionInfo() = default;
  SubscriptionInfo(int nodeId, int type)
      : nodeId_(static_cast<std::int16_t>(nodeId)), type_(static_cast<std::int8_t>(type)) {}

  int getNodeId() const { return nodeId_; }
  int getType() const { return type_; }

  std::wstring toDebugString() const;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("nodeId", self.nodeId_);
    fields("type", self.type_);
  }

 private:
  std::int16_t nodeId_ = -1;
  std::int8_t type_ = -1;
};

}  // namespace Tessel
