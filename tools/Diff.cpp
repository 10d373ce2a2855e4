#include "Diff.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <vector>

#include "Alignment.h"
#include "Capture.h"
#include "Diagnostics.h"
#include "Output.h"

namespace Tessel {

namespace {

// A packet whose bytes live on.
struct KeptPacket {
  explicit KeptPacket(const Packet& packet) : head(packet), body(packet.body.begin(), packet.body.end()) {
    head.body = body;
  }
  KeptPacket(KeptPacket&&) = default;
  KeptPacket& operator=(KeptPacket&&) = default;

  Packet head;
  std::vector<std::uint8_t> body;
};

using Packets = std::vector<KeptPacket>;
using Keys = std::vector<std::uint32_t>;

// The same number for each packet of the same text.
class Numbering {
 public:
  Keys keysOf(std::span<const KeptPacket> packets, std::string (*textOf)(const Packet& packet)) {
    Keys keys;
    for (const KeptPacket& packet : packets)
      keys.push_back(
          numbers_.try_emplace(textOf(packet.head), static_cast<std::uint32_t>(numbers_.size())).first->second);
    return keys;
  }

 private:
  std::unordered_map<std::string, std::uint32_t> numbers_;
};

std::string kindOf(const Packet& packet) {
  return std::string(nameOf(packet.direction)) + ' ' + std::to_string(packet.id);
}

std::string contentOf(const Packet& packet) {
  std::string content = kindOf(packet) + ' ';
  content.append(packet.body.begin(), packet.body.end());
  return content;
}

// The values of all fields by their paths, in wire order.
class Values {
 public:
  explicit Values(const DecodedPacket& decoded, Secrets secrets) {
    const auto object = decoded.object();
    if (!object) return;
    const FieldList fields(*object, Secrets::SHOWN);
    const FieldList shown(*object, secrets);
    for (std::size_t i = 0; i < fields.size(); ++i) {
      if (fields[i].kind == FieldKind::RECORD) continue;
      paths_.push_back(fields.pathOf(i));
      values_[paths_.back()] = {fields[i].value, escaped(shown[i].value)};
    }
  }

  struct Value {
    std::string compared;
    std::string shown;
  };

  const std::vector<std::string>& paths() const { return paths_; }
  // Null for a field that did not travel.
  const Value* find(const std::string& path) const {
    const auto value = values_.find(path);
    return value != values_.end() ? &value->second : nullptr;
  }

 private:
  std::vector<std::string> paths_;
  std::map<std::string, Value> values_;
};

class DiffPrinter {
 public:
  DiffPrinter(const DiffOptions& options, Output& output)
      : options_(options), colors_(options.color), output_(output) {}

  // Those of the same class in the same order are taken as changed.
  void printRun(std::span<const KeptPacket> first, std::span<const KeptPacket> second) {
    Numbering kinds;
    const Keys firstKinds = kinds.keysOf(first, kindOf);
    const Keys secondKinds = kinds.keysOf(second, kindOf);
    for (const AlignedRun& run : align(firstKinds, secondKinds)) {
      const auto left = first.subspan(run.firstStart, run.firstCount);
      const auto right = second.subspan(run.secondStart, run.secondCount);
      if (run.isEqual) {
        for (std::size_t i = 0; i < left.size(); ++i) printChange(left[i].head, right[i].head);
      } else {
        for (const KeptPacket& packet : left) printOne("- ", colors_.removed(), packet.head);
        for (const KeptPacket& packet : right) printOne("+ ", colors_.added(), packet.head);
      }
    }
  }

 private:
  static std::string nameOfClass(const Packet& packet) {
    const std::string_view name = classOf(packet);
    return name.empty() ? "id " + std::to_string(packet.id) : std::string(name);
  }

  void printOne(std::string_view sign, std::string_view color, const Packet& packet) {
    const DecodedPacket decoded(packet);
    std::string line(color);
    line.append(sign).append(std::to_string(packet.number)).append(" ").append(nameOfClass(packet));
    line.append(colors_.plain()).append(" ").append(decoded.debugText(options_.secrets)).append("\n");
    output_.write(line);
  }

  void printChange(const Packet& first, const Packet& second) {
    std::string lines(colors_.heading());
    lines.append("! ").append(std::to_string(first.number)).append(" -> ").append(std::to_string(second.number));
    lines.append(" ").append(nameOfClass(first)).append(colors_.plain()).append("\n");
    const std::size_t heading = lines.size();
    appendFields(Values(DecodedPacket(first), options_.secrets), Values(DecodedPacket(second), options_.secrets),
                 lines);
    if (lines.size() == heading) {
      lines.append("    in bytes that no field tells: ").append(std::to_string(first.body.size())).append(" -> ");
      lines.append(std::to_string(second.body.size())).append(" bytes\n");
    }
    output_.write(lines);
  }

  void appendFields(const Values& first, const Values& second, std::string& lines) const {
    for (const std::string& path : first.paths()) appendField(path, first.find(path), second.find(path), lines);
    for (const std::string& path : second.paths())
      if (first.find(path) == nullptr) appendField(path, nullptr, second.find(path), lines);
  }

  void appendField(const std::string& path, const Values::Value* first, const Values::Value* second,
                   std::string& lines) const {
    if (first != nullptr && second != nullptr && first->compared == second->compared) return;
    lines.append("    ").append(path).append(": ");
    lines.append(colors_.removed()).append(first != nullptr ? first->shown : "(none)").append(colors_.plain());
    lines.append(" -> ");
    lines.append(colors_.added()).append(second != nullptr ? second->shown : "(none)").append(colors_.plain());
    lines += '\n';
  }

  const DiffOptions& options_;
  Colors colors_;
  Output& output_;
};

}  // namespace

DiffResult diffCaptures(const std::string& first, const std::string& second, const DiffOptions& options, Output& output,
                        Diagnostics& diagnostics) {
  const WithReportSink quiet(std::make_shared<SilentReportSink>());
  const auto readAll = [&](const std::string& file, Packets& packets) {
    return visitPackets({.files = {file}}, output, diagnostics, [&](const std::string&, const Packet& packet) {
      if (options.filter.wants(packet) && (!options.filter.where || options.filter.wants(DecodedPacket(packet))))
        packets.emplace_back(packet);
    });
  };
  Packets left, right;
  const bool isLeftSound = readAll(first, left);
  if (!readAll(second, right) || !isLeftSound) return DiffResult::UNSOUND;

  Numbering contents;
  const Keys leftKeys = contents.keysOf(left, contentOf);
  const Keys rightKeys = contents.keysOf(right, contentOf);
  DiffPrinter printer(options, output);
  DiffResult result = DiffResult::SAME;
  for (const AlignedRun& run : align(leftKeys, rightKeys)) {
    if (run.isEqual) continue;
    result = DiffResult::DIFFERENT;
    printer.printRun(std::span(left).subspan(run.firstStart, run.firstCount),
                     std::span(right).subspan(run.secondStart, run.secondCount));
  }
  return result;
}

}  // namespace Tessel
