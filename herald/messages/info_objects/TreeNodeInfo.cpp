#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TreeNodeInfo.h>
#include <herald/platform/keystone/BitMasking.h>

#include <span>
#include <utility>

namespace Tessel {

// Goes through a tree in wire order: a node, then its sub-nodes. The sub-nodes may be added while the walk stands at
// their node.
template <class Node>
class TreeNodeInfo::Walk {
 public:
  explicit Walk(Node& root) : toVisit_{std::span<Node>(&root, 1)} {}

  /// Null at the end.
  Node* next() {
    if (node_ != nullptr) toVisit_.emplace_back(node_->subNodes_);
    while (!toVisit_.empty() && toVisit_.back().empty()) toVisit_.pop_back();
    if (toVisit_.empty()) return nullptr;
    node_ = &toVisit_.back().front();
    toVisit_.back() = toVisit_.back().subspan(1);
    return node_;
  }

  /// 1 for the root, 2 for its sub-nodes.
  std::size_t depth() const { return toVisit_.size(); }
  void skipSubNodes() { node_ = nullptr; }

 private:
  Node* node_ = nullptr;
  std::vector<std::span<Node>> toVisit_;  // of each level from the root's on
};

TreeNodeInfo::TreeNodeInfo() = default;

TreeNodeInfo::TreeNodeInfo(int id, int nameId, bool isSubscribable, int port) {
  fields_.id = static_cast<std::int16_t>(id);
  fields_.nameId = static_cast<std::int16_t>(nameId);
  fields_.port = static_cast<std::int16_t>(port);
  if (isSubscribable) BitMasking::setBit(fields_.nodeType, SUBSCRIBE_BIT);
}

// Takes the tree apart into groups of siblings before any is destroyed. The groups form a list without further memory:
// the first node of a group has lost its sub-nodes already and holds the next group in their place.
TreeNodeInfo::~TreeNodeInfo() {
  if (subNodes_.empty() || subNodes_.isSettled()) return;
  List<TreeNodeInfo> groups;
  const auto add = [&groups](List<TreeNodeInfo> group) {
    while (!group.empty()) {
      auto below = std::exchange(group.front().subNodes_, std::move(groups));
      groups = std::move(group);
      group = std::move(below);
    }
  };
  add(std::move(subNodes_));
  while (!groups.empty()) {
    auto group = std::exchange(groups, std::move(groups.front().subNodes_));
    for (TreeNodeInfo& node : group) add(std::move(node.subNodes_));
  }
}

TreeNodeInfo::TreeNodeInfo(const TreeNodeInfo& other) : ReadableInfo(other) {
  Walk<const TreeNodeInfo> from(other);
  Walk<TreeNodeInfo> to(*this);
  while (const TreeNodeInfo* source = from.next()) {
    TreeNodeInfo& copy = *to.next();
    copy.fields_ = source->fields_;
    copy.subNodes_.resize(source->subNodes_.size());
  }
}

TreeNodeInfo& TreeNodeInfo::operator=(const TreeNodeInfo& other) { return *this = TreeNodeInfo(other); }

bool TreeNodeInfo::hasNodeType(int bit) const { return BitMasking::getBit(fields_.nodeType, bit); }

bool TreeNodeInfo::isTournamentNode() const {
  return fields_.lobbyType == LOBBY_TYPE_SCHEDULED || fields_.lobbyType == LOBBY_TYPE_SITANDGO;
}

const TreeNodeInfo& TreeNodeInfo::getSubNode(int i) const {
  checkRecordIndex(L"messages/info_objects/TreeNodeInfo", i, getNumSubNodes());
  return subNodes_[static_cast<std::size_t>(i)];
}

const TreeNodeInfo* TreeNodeInfo::getNodeInTree(int id) const {
  Walk<const TreeNodeInfo> walk(*this);
  const TreeNodeInfo* node = walk.next();
  while (node != nullptr && (!node->subNodes_.empty() || node->getId() != id)) node = walk.next();
  return node;
}

// Without a name, and without sub-nodes but their count.
std::size_t TreeNodeInfo::smallestNode() { return minimumWireSize<OwnFields>() + sizeof(std::int8_t); }

// Reads a tree by calls, one for each level; throws `StraightReadEnded` for one that is deep or not in order.
class TreeNodeInfo::StraightWalk {
 public:
  StraightWalk(ByteStream& in, MessageMemory* memory)
      : in_(in), memory_(memory), at_(in.unread().data()), end_(at_ + in.unreadCount()) {}

  void readNode(TreeNodeInfo& node, int levelsLeft) {
    const auto left = static_cast<std::size_t>(end_ - at_);
    if (left < smallest_ || levelsLeft == 0) throw StraightReadEnded{0, true};
    StraightReader<> reader(in_, memory_, at_, end_, smallest_);
    OwnFields::wire(node.fields_, reader);
    std::int8_t count = 0;
    reader("", count);
    at_ = reader.at();
    --nodesToCome_;
    if (count > 0)
      readSubNodes(node.subNodes_, static_cast<std::size_t>(count), levelsLeft - 1);
    else
      node.subNodes_.clear();
  }

  void finish() { in_.skip(in_.unreadCount() - static_cast<std::size_t>(end_ - at_)); }

 private:
  void readSubNodes(List<TreeNodeInfo>& subNodes, std::size_t count, int levelsLeft) {
    nodesToCome_ += count;
    const auto left = static_cast<std::size_t>(end_ - at_);
    if (nodesToCome_ > left / smallest_) throw StraightReadEnded{0, true};
    makeRoom(subNodes, count, memory_, left);
    for (std::size_t i = 0; i < count; ++i) readNode(subNodes.append(), levelsLeft);
    subNodes.settle();
  }

  ByteStream& in_;
  MessageMemory* memory_;
  const std::uint8_t* at_;
  const std::uint8_t* end_;
  std::size_t smallest_ = smallestNode();
  std::size_t nodesToCome_ = 1;
};

bool TreeNodeInfo::read(ByteStream& in) { return readIn(in, nullptr); }

bool TreeNodeInfo::readIn(ByteStream& in, MessageMemory* memory) {
  constexpr int MOST_LEVELS = 64;
  const std::size_t start = in.position();
  try {
    StraightWalk walk(in, memory);
    walk.readNode(*this, MOST_LEVELS);
    walk.finish();
  } catch (const StraightReadEnded&) {
    in.seek(start);
    readByTheRules(in);
  }
  return true;
}

void TreeNodeInfo::readByTheRules(ByteStream& in) {
  const std::size_t smallest = smallestNode();
  std::size_t nodesToCome = 1;
  Walk<TreeNodeInfo> walk(*this);
  while (TreeNodeInfo* node = walk.next()) {
    readLayout(node->fields_, in);
    node->subNodes_.clear();
    std::int8_t count;
    in >> count;
    --nodesToCome;
    if (count <= 0) continue;
    nodesToCome += static_cast<std::size_t>(count);
    // Nodes that promise more sub-nodes than the bytes can hold, one below the other, must not cost memory.
    if (nodesToCome > in.unreadCount() / smallest)
      throwCountPastEnd(static_cast<std::int64_t>(nodesToCome), in.unreadCount());
    node->subNodes_.resize(static_cast<std::size_t>(count));
  }
}

ReadableObjectInfo* TreeNodeInfo::clone() const { return new TreeNodeInfo(*this); }

int TreeNodeInfo::size() const {
  int sum = 0;
  Walk<const TreeNodeInfo> walk(*this);
  while (const TreeNodeInfo* node = walk.next()) sum += sizeOfLayout(node->fields_) + widthOf(WireType::BYTE);
  return sum;
}

void TreeNodeInfo::describe(FieldSink& sink) const {
  constexpr auto CLASS_NAME = typeName<TreeNodeInfo>();
  Walk<const TreeNodeInfo> walk(*this);
  std::size_t openNodes = 0;
  const auto closeFrom = [&](std::size_t depth) {
    for (; openNodes >= depth; --openNodes) {
      sink.endList();
      if (openNodes > 1) sink.endRecord();
    }
  };
  while (const TreeNodeInfo* node = walk.next()) {
    closeFrom(walk.depth());
    if (openNodes > 0 && !sink.beginRecord("", CLASS_NAME)) {
      sink.endRecord();
      walk.skipSubNodes();
      continue;
    }
    describeLayout(node->fields_, sink);
    sink.beginList("subNodes", WireType::BYTE, node->getNumSubNodes());
    ++openNodes;
    if (sink.wantsLayout()) {
      sink.beginRecord("", CLASS_NAME);
      sink.endRecord();
      break;
    }
  }
  closeFrom(1);
}

std::wstring TreeNodeInfo::toDebugString() const {
  return formatText(L"[TreeNodeInfo - iId=%d, iNameId=%d, iDefaultName=%s, iPort=%d, iNodeType=%d, iLobbyType=%d",
                    fields_.id, fields_.nameId, fields_.defaultName, fields_.port, fields_.nodeType, fields_.lobbyType);
}

}  // namespace Tessel
