#include "PackedPackets.h"

#include <herald/inspect/Encoding.h>
#include <herald/inspect/Schema.h>

#include <algorithm>
#include <set>

namespace Tessel {

namespace {

bool reachesSecret(const RecordSchema& record, std::set<const RecordSchema*>& seen) {
  if (!seen.insert(&record).second) return false;
  const auto hasSecret = [&](const FieldSchema& field) {
    return field.isSecret || (field.record != nullptr && reachesSecret(*field.record, seen));
  };
  return std::ranges::any_of(record.fields, [&](const FieldSchema& field) {
    return hasSecret(field) || std::ranges::any_of(field.items, hasSecret);
  });
}

bool isFault(const DecodedPacket& decoded) {
  const bool hasUnread = decoded.bytesRead() != decoded.packet().body.size();
  return isFailure(decoded.outcome()) || (decoded.packet().direction == Direction::TO_SERVER && hasUnread);
}

}  // namespace

const RecordSchema* layoutOf(const Packet& packet) {
  const Schema& schema = Schema::ofProtocol();
  const auto rows = packet.direction == Direction::TO_SERVER ? schema.requests() : schema.messages();
  const auto row = std::ranges::lower_bound(rows, packet.id, {}, &MessageSchema::id);
  return row != rows.end() && row->id == packet.id ? row->body : nullptr;
}

void PackedPackets::add(const DecodedPacket& decoded) {
  const Packet& packet = decoded.packet();
  const Body body = bodyOf(decoded);
  int flags = static_cast<int>(decoded.outcome()) << OUTCOME_SHIFT;
  if (packet.direction == Direction::TO_SERVER) flags |= TO_SERVER;
  if (body.isWithheld) flags |= WITHHELD;
  if (isFault(decoded)) flags |= FAILED;

  head_.assign(1, static_cast<std::uint8_t>(flags));
  appendNumber(packet.number - lastNumber_);
  appendSigned(packet.time - lastTime_);
  appendSigned(packet.id);
  appendNumber(packet.body.size() - decoded.bytesRead());
  appendNumber(body.isWithheld ? packet.body.size() : body.bytes.size());
  appendNumber(decoded.reason().size());
  head_.insert(head_.end(), decoded.reason().begin(), decoded.reason().end());
  deflater_.append(head_);
  deflater_.append(body.bytes);

  ++count_;
  lastNumber_ = packet.number;
  lastTime_ = packet.time;
}

PackedPackets::Body PackedPackets::bodyOf(const DecodedPacket& decoded) {
  const std::span<const std::uint8_t> body = decoded.packet().body;
  if (secrets_ == Secrets::SHOWN || body.empty() || !mayHoldSecret(decoded.packet())) return {body, false};
  const std::optional<Inspectable> object = decoded.object();
  if (!object || !decoded.isToldByItsFields(shownBody_)) return {{}, true};
  shownBody_.truncate(0);
  const bool isMasked = encode(*object, shownBody_, Secrets::MASKED);
  return {isMasked ? shownBody_.bytes() : std::span<const std::uint8_t>(), !isMasked};
}

// A request whose bytes are damaged may be another one than its id says.
bool PackedPackets::mayHoldSecret(const Packet& packet) {
  if (packet.direction == Direction::TO_SERVER) return true;
  const RecordSchema* layout = layoutOf(packet);
  if (layout == nullptr) return false;
  const auto [known, isNew] = reachSecrets_.try_emplace(layout);
  std::set<const RecordSchema*> seen;
  if (isNew) known->second = reachesSecret(*layout, seen);
  return known->second;
}

void PackedPackets::appendNumber(std::uint64_t number) {
  for (; number >= 0x80; number >>= 7) head_.push_back(static_cast<std::uint8_t>(number | 0x80));
  head_.push_back(static_cast<std::uint8_t>(number));
}

void PackedPackets::appendSigned(std::int64_t number) {
  const auto bits = static_cast<std::uint64_t>(number);
  appendNumber(number < 0 ? ~(bits << 1) : bits << 1);
}

}  // namespace Tessel
