#pragma once
#include <herald/inspect/Schema.h>
#include <herald/platform/keystone/ByteStream.h>

#include <cstdint>
#include <map>
#include <span>
#include <vector>

#include "../DecodedPacket.h"
#include "Deflater.h"

namespace Tessel {

/// The layout of the body that the packet's id has; null when there is none.
const RecordSchema* layoutOf(const Packet& packet);

/// Packets as the script of a report reads them: numbers of seven bits a byte, the lowest first, and the bodies as they
/// are, all compressed together.
///
/// A packet is: a byte of flags, its number and its time less those of the packet before (the time in nanoseconds), its
/// id, how many bytes of its body were not read, the bytes in its body, the reason why nothing came of it as a count
/// and UTF-8, and the body. What may be below zero is doubled, and counted down from -1 where it is odd.
class PackedPackets {
 public:
  static constexpr std::uint8_t TO_SERVER = 1;
  static constexpr std::uint8_t WITHHELD = 2;
  static constexpr std::uint8_t FAILED = 4;
  static constexpr int OUTCOME_SHIFT = 3;

  explicit PackedPackets(Secrets secrets) : secrets_(secrets) {}

  void add(const DecodedPacket& decoded);
  std::uint64_t count() const { return count_; }
  std::vector<std::uint8_t> finish() { return deflater_.finish(); }

 private:
  /// What is shown of a body. Where a secret may be, that is what its fields tell, with the mask in its place, or, when
  /// they do not tell all of it, nothing.
  struct Body {
    std::span<const std::uint8_t> bytes;
    bool isWithheld;
  };

  Body bodyOf(const DecodedPacket& decoded);
  bool mayHoldSecret(const Packet& packet);
  void appendNumber(std::uint64_t number);
  void appendSigned(std::int64_t number);

  Secrets secrets_;
  Deflater deflater_;
  std::uint64_t count_ = 0;
  std::uint64_t lastNumber_ = 0;
  std::int64_t lastTime_ = 0;
  std::map<const RecordSchema*, bool> reachSecrets_;
  std::vector<std::uint8_t> head_;
  ByteStream shownBody_;
};

}  // namespace Tessel
