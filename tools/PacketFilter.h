#pragma once
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "DecodedPacket.h"

namespace Tessel {

/// A field compared with a value: "body.seat == 3", "pots[0].credit.amount >= 100", "nickName != \"Ada\"". A path
/// without the numbers of items means any item: "pots.credit.seat == 3".
class FieldComparison {
 public:
  /// Throws `UsageError` for a text that is no comparison.
  explicit FieldComparison(std::string_view text);

  /// Whether a field of that path compares so. Numbers compare as numbers, texts and flags as texts.
  bool holdsFor(Inspectable object) const;

 private:
  bool compares(const Field& field) const;

  std::string path_;
  std::string value_;
  bool namesItems_ = false;
  std::function<bool(int order)> holds_;
};

/// Which packets a call is about. What is not set leaves no packet out.
struct PacketFilter {
  /// Names with the wildcards of a shell, one of which must fit.
  std::vector<std::string> classes{};
  std::optional<int> id{};
  std::optional<Direction> direction{};
  /// First and last number.
  std::optional<std::pair<std::uint64_t, std::uint64_t>> packets{};
  std::optional<FieldComparison> where{};

  /// What can be told without decoding the packet.
  bool wants(const Packet& packet) const;
  bool wants(const DecodedPacket& packet) const;
};

/// "10", "10-20", "10-" or "-20". Throws `UsageError`.
std::pair<std::uint64_t, std::uint64_t> parsePacketRange(std::string_view text);

}  // namespace Tessel
