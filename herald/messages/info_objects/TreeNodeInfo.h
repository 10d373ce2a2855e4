#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/List.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A node of the lobby tree with all that is below it. A tree may be as deep as its data: no operation needs stack for
/// its depth, and each takes time in proportion to the number of nodes.
class HERALD_API TreeNodeInfo : public ReadableInfo {
 public:
  static constexpr int DUMMY_NAME_ID = -1;

  TreeNodeInfo();
  /// A node without a name of its own, without sub-nodes, and in no kind of lobby.
  TreeNodeInfo(int id, int nameId, bool isSubscribable, int port);
  ~TreeNodeInfo() override;
  TreeNodeInfo(const TreeNodeInfo& other);
  TreeNodeInfo(TreeNodeInfo&&) noexcept = default;
  TreeNodeInfo& operator=(const TreeNodeInfo& other);
  TreeNodeInfo& operator=(TreeNodeInfo&&) noexcept = default;

  int getId() const { return fields_.id; }
  /// The text resource of the name; `DUMMY_NAME_ID` when there is none.
  int getNameId() const { return fields_.nameId; }
  std::wstring getDefaultName() const { return fields_.defaultName.getString(); }
  int getPort() const { return fields_.port; }

  bool isSubscribable() const { return hasNodeType(SUBSCRIBE_BIT); }
  bool wasLastSelectedNode() const { return hasNodeType(LAST_SELECTED_NODE_BIT); }
  bool isPrivate() const { return hasNodeType(PRIVATE_BIT); }

  bool isRootNode() const { return fields_.lobbyType == LOBBY_TYPE_ROOT; }
  bool isRingGameNode() const { return fields_.lobbyType == LOBBY_TYPE_RINGAME; }
  bool isTournamentNode() const;

  int getNumSubNodes() const { return static_cast<int>(subNodes_.size()); }
  /// An index outside 0 to `getNumSubNodes()` - 1 throws `OutOfBoundsException`. The sub-node lives in this node.
  const TreeNodeInfo& getSubNode(int i) const;
  /// The first leaf with that id, depth first; null when there is none. A node with sub-nodes is never found.
  const TreeNodeInfo* getNodeInTree(int id) const;

  bool read(ByteStream& in) override;
  /// The same; a tree that is in order and not deep lies in `memory` where that is not null.
  bool readIn(ByteStream& in, MessageMemory* memory);
  [[nodiscard]] ReadableObjectInfo* clone() const override;
  std::wstring toDebugString() const override;
  int size() const override;
  void describe(FieldSink& sink) const override;

 private:
  static constexpr int SUBSCRIBE_BIT = 0;
  static constexpr int LAST_SELECTED_NODE_BIT = 1;
  static constexpr int PRIVATE_BIT = 2;

  static constexpr char LOBBY_TYPE_ROOT = 0;
  static constexpr char LOBBY_TYPE_RINGAME = 1;
  static constexpr char LOBBY_TYPE_SCHEDULED = 2;
  static constexpr char LOBBY_TYPE_SITANDGO = 3;

  // What a node holds beside its sub-nodes.
  struct OwnFields {
    Text defaultName;
    std::int16_t id = -1;
    std::int16_t nameId = DUMMY_NAME_ID;
    std::int16_t port = -1;
    std::int8_t nodeType = 0;
    std::int8_t lobbyType = -1;

    template <class Self, class Fields>
    static void wire(Self& self, Fields& fields) {
      fields("id", self.id);
      fields("nameId", self.nameId);
      fields("defaultName", self.defaultName);
      fields("port", self.port);
      fields("nodeType", self.nodeType);
      fields("lobbyType", self.lobbyType);
    }
  };

  template <class Node>
  class Walk;
  class StraightWalk;

  static std::size_t smallestNode();
  void readByTheRules(ByteStream& in);

  bool hasNodeType(int bit) const;

  OwnFields fields_;
  List<TreeNodeInfo> subNodes_;
};

}  // namespace Tessel
