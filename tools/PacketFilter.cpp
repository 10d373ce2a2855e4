#include "PacketFilter.h"

#include <fnmatch.h>

#include <algorithm>
#include <charconv>
#include <compare>
#include <limits>

#include "Hex.h"

namespace Tessel {

namespace {

struct Operator {
  std::string_view sign;
  bool (*holds)(int order);
};

// Those of two characters first, so that none is taken for its first character.
constexpr Operator OPERATORS[] = {
    {"==", [](int order) { return order == 0; }}, {"!=", [](int order) { return order != 0; }},
    {"<=", [](int order) { return order <= 0; }}, {">=", [](int order) { return order >= 0; }},
    {"<", [](int order) { return order < 0; }},   {">", [](int order) { return order > 0; }},
};

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view withoutQuotes(std::string_view text) {
  const bool isQuoted =
      text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.back() == text.front();
  return isQuoted ? text.substr(1, text.size() - 2) : text;
}

std::optional<std::int64_t> toNumber(std::string_view text) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

int sign(std::strong_ordering order) { return order < 0 ? -1 : order > 0 ? 1 : 0; }

std::string withoutItems(const std::string& path) {
  std::string bare;
  for (std::size_t at = 0; at < path.size();) {
    const std::size_t bracket = std::min(path.find('[', at), path.size());
    bare += path.substr(at, bracket - at);
    at = bracket < path.size() ? path.find(']', bracket) + 1 : path.size();
  }
  return bare;
}

}  // namespace

FieldComparison::FieldComparison(std::string_view text) {
  for (std::size_t at = 0; at < text.size() && !holds_; ++at) {
    for (const auto& [sign, holds] : OPERATORS) {
      if (!text.substr(at).starts_with(sign)) continue;
      path_ = trimmed(text.substr(0, at));
      value_ = withoutQuotes(trimmed(text.substr(at + sign.size())));
      holds_ = holds;
      break;
    }
  }
  namesItems_ = path_.find('[') != std::string::npos;
  if (!holds_ || path_.empty())
    throw UsageError("--where: \"" + std::string(text) + "\" is no comparison such as body.seat == 3");
}

bool FieldComparison::holdsFor(Inspectable object) const {
  const FieldList fields(object, Secrets::SHOWN);
  // Most fields differ in the last name already, which costs less to look at than a path.
  const std::string_view lastName = std::string_view(path_).substr(path_.find_last_of(".[") + 1);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const bool isItem = fields[i].name.starts_with('[');
    if (!isItem && !namesItems_ && fields[i].name != lastName) continue;
    const std::string path = fields.pathOf(i);
    if ((namesItems_ ? path : withoutItems(path)) == path_ && compares(fields[i])) return true;
  }
  return false;
}

bool FieldComparison::compares(const Field& field) const {
  const std::optional<std::int64_t> number = toNumber(value_);
  const std::optional<std::int64_t> fieldNumber = field.kind == FieldKind::TEXT ? std::nullopt : toNumber(field.value);
  if (number && fieldNumber) return holds_(sign(*fieldNumber <=> *number));
  return holds_(sign(std::string_view(field.value) <=> std::string_view(value_)));
}

bool PacketFilter::wants(const Packet& packet) const {
  if (packets && (packet.number < packets->first || packet.number > packets->second)) return false;
  if (direction && packet.direction != *direction) return false;
  if (id && packet.id != *id) return false;
  if (classes.empty()) return true;
  const std::string name(classOf(packet));
  return std::ranges::any_of(
      classes, [&](const std::string& pattern) { return fnmatch(pattern.c_str(), name.c_str(), 0) == 0; });
}

bool PacketFilter::wants(const DecodedPacket& packet) const {
  if (!where) return true;
  const std::optional<Inspectable> object = packet.object();
  return object && where->holdsFor(*object);
}

std::pair<std::uint64_t, std::uint64_t> parsePacketRange(std::string_view text) {
  const std::size_t dash = std::min(text.find('-'), text.size());
  const std::string_view first = text.substr(0, dash);
  const std::string_view last = dash < text.size() ? text.substr(dash + 1) : first;
  const auto from = first.empty() ? std::optional<std::int64_t>(1) : toNumber(first);
  const auto to = last.empty() ? std::optional(std::numeric_limits<std::int64_t>::max()) : toNumber(last);
  if (text == "-" || text.empty() || !from || !to || *from < 1 || *to < *from)
    throw UsageError("--packets: \"" + std::string(text) + "\" is no range such as 10-20");
  return {static_cast<std::uint64_t>(*from), static_cast<std::uint64_t>(*to)};
}

}  // namespace Tessel
