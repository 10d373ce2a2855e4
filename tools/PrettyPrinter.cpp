#include "PrettyPrinter.h"

#include <herald/inspect/Json.h>

#include <algorithm>
#include <vector>

namespace Tessel {

namespace {

// Deep data would otherwise cost the square of its depth.
constexpr std::size_t DEEPEST_INDENT = 32;

class PrettyPrinter {
 public:
  PrettyPrinter(const Colors& colors, std::string& out) : colors_(colors), out_(out) {}

  void printHeading(const DecodedPacket& decoded, std::string_view file) {
    const Packet& packet = decoded.packet();
    out_.append(colors_.heading());
    if (!file.empty()) out_.append(escaped(file)).append(" ");
    out_.append("#").append(std::to_string(packet.number)).append(" ");
    appendIsoTime(packet.time, packet.precision, out_);
    out_.append(packet.direction == Direction::FROM_SERVER ? " <- " : " -> ");
    out_.append(decoded.className().empty() ? "unknown" : decoded.className()).append(colors_.plain());
    out_.append(" (id ").append(std::to_string(packet.id)).append(", ");
    out_.append(std::to_string(packet.body.size())).append(packet.body.size() == 1 ? " byte)" : " bytes)");
    printOutcome(decoded);
    out_ += '\n';
  }

  void printFields(const FieldList& fields) {
    std::vector<std::size_t> depths;
    for (const Field& field : fields) {
      const std::size_t depth = field.parent == Field::NO_PARENT ? 1 : depths[field.parent] + 1;
      depths.push_back(depth);
      out_.append(2 * std::min(depth, DEEPEST_INDENT), ' ');
      out_.append(colors_.name()).append(field.name).append(colors_.plain());
      printValue(field);
      out_ += '\n';
    }
  }

 private:
  void printOutcome(const DecodedPacket& decoded) {
    const bool isWhole = decoded.bytesRead() == decoded.packet().body.size();
    if (decoded.outcome() == DecodeOutcome::DECODED && isWhole) return;
    out_.append(colors_.failure()).append(" ").append(nameOf(decoded.outcome()));
    if (!isWhole) out_.append(", read to byte ").append(std::to_string(decoded.bytesRead()));
    if (!decoded.reason().empty()) out_.append(": ").append(escaped(decoded.reason()));
    out_.append(colors_.plain());
  }

  void printValue(const Field& field) {
    switch (field.kind) {
      case FieldKind::NUMBER:
        out_.append(": ").append(field.value);
        if (!field.valueName.empty()) out_.append(" (").append(field.valueName).append(")");
        break;
      case FieldKind::TEXT:
        out_.append(": ");
        appendJsonString(field.value, out_);
        break;
      case FieldKind::LIST:
        out_.append(": ").append(field.value).append(field.value == "1" ? " item" : " items");
        break;
      case FieldKind::RECORD:
        break;
    }
  }

  const Colors& colors_;
  std::string& out_;
};

}  // namespace

void appendPretty(const DecodedPacket& decoded, std::string_view file, Secrets secrets, const Colors& colors,
                  std::string& out) {
  PrettyPrinter printer(colors, out);
  printer.printHeading(decoded, file);
  if (const auto object = decoded.object()) printer.printFields(FieldList(*object, secrets));
}

}  // namespace Tessel
