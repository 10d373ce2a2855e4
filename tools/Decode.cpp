#include "Decode.h"

#include <herald/inspect/Json.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/platform/keystone/ByteStream.h>

#include <algorithm>
#include <charconv>
#include <concepts>
#include <iterator>

#include "Diagnostics.h"
#include "Hex.h"
#include "Output.h"
#include "PrettyPrinter.h"

namespace Tessel {

namespace {

// A packet as it is about to be written.
struct Shown {
  const std::string& file;
  const DecodedPacket& decoded;
  Secrets secrets;
};

void appendNumber(std::integral auto number, std::string& line) {
  char digits[24];
  line.append(digits, std::to_chars(digits, std::end(digits), number).ptr);
}

std::string_view orDash(std::string_view text) { return text.empty() ? "-" : text; }

// name=value pairs; a text stands in quotes, what a number means in parentheses.
std::string fieldsOf(const Shown& shown) {
  const std::optional<Inspectable> object = shown.decoded.object();
  if (!object) return "-";
  const FieldList fields(*object, shown.secrets);
  std::string line;
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const FieldKind kind = fields[i].kind;
    if (kind != FieldKind::NUMBER && kind != FieldKind::TEXT) continue;
    if (!line.empty()) line += ' ';
    line.append(fields.pathOf(i)).append("=");
    if (kind == FieldKind::TEXT)
      appendJsonString(fields[i].value, line);
    else
      line += fields[i].value;
    if (!fields[i].valueName.empty()) line.append("(").append(fields[i].valueName).append(")");
  }
  return line.empty() ? "-" : line;
}

struct Column {
  std::string_view name;
  void (*append)(const Shown& shown, std::string& line);
};

constexpr Column COLUMNS[] = {
    {"file", [](const Shown& shown, std::string& line) { line += escaped(shown.file); }},
    {"packet", [](const Shown& shown, std::string& line) { appendNumber(shown.decoded.packet().number, line); }},
    {"time",
     [](const Shown& shown, std::string& line) {
       appendIsoTime(shown.decoded.packet().time, shown.decoded.packet().precision, line);
     }},
    {"direction", [](const Shown& shown, std::string& line) { line += nameOf(shown.decoded.packet().direction); }},
    {"id", [](const Shown& shown, std::string& line) { appendNumber(shown.decoded.packet().id, line); }},
    {"class", [](const Shown& shown, std::string& line) { line += orDash(shown.decoded.className()); }},
    {"outcome", [](const Shown& shown, std::string& line) { line += nameOf(shown.decoded.outcome()); }},
    {"read", [](const Shown& shown, std::string& line) { appendNumber(shown.decoded.bytesRead(), line); }},
    {"bytes", [](const Shown& shown, std::string& line) { appendNumber(shown.decoded.packet().body.size(), line); }},
    {"text", [](const Shown& shown, std::string& line) { line += shown.decoded.debugText(shown.secrets); }},
    {"fields", [](const Shown& shown, std::string& line) { line += fieldsOf(shown); }},
};

std::vector<const Column*> columnsNamed(const std::vector<std::string>& names) {
  std::vector<const Column*> columns;
  for (const std::string& name : names) {
    const auto* column = std::ranges::find(COLUMNS, name, &Column::name);
    if (column == std::end(COLUMNS))
      throw UsageError("--columns: there is no column \"" + name + "\", only " + columnNames());
    columns.push_back(column);
  }
  return columns;
}

void appendLine(const Shown& shown, const std::vector<const Column*>& columns, std::string& line) {
  for (const Column* column : columns) {
    if (column != columns.front()) line += '\t';
    column->append(shown, line);
  }
  line += '\n';
}

// The bytes of what its fields alone do not tell, so that it can be encoded again.
void appendUntold(const Shown& shown, ByteStream& scratch, std::string& line) {
  if (shown.decoded.isToldByItsFields(scratch)) return;
  const bool mayHoldSecret = shown.decoded.packet().direction == Direction::TO_SERVER;
  line += ",\"hex\":";
  appendJsonString(
      mayHoldSecret && shown.secrets == Secrets::MASKED ? std::string(SECRET_MASK) : toHex(shown.decoded.packet().body),
      line);
}

void appendJsonLine(const Shown& shown, bool namesFile, ByteStream& scratch, std::string& line) {
  const DecodedPacket& decoded = shown.decoded;
  const Packet& packet = decoded.packet();
  const auto appendName = [&line](std::string_view name) { line.append(",\"").append(name).append("\":"); };
  line += '{';
  if (namesFile) {
    line += R"("file":)";
    appendJsonString(shown.file, line);
    line += ',';
  }
  line += R"("packet":)";
  appendNumber(packet.number, line);
  appendName("time");
  line += '"';
  appendIsoTime(packet.time, packet.precision, line);
  line += '"';
  appendName("direction");
  appendJsonString(nameOf(packet.direction), line);
  appendName("id");
  appendNumber(packet.id, line);
  appendName("class");
  if (const std::string_view name = decoded.className(); !name.empty())
    appendJsonString(name, line);
  else
    line += "null";
  appendName("outcome");
  appendJsonString(nameOf(decoded.outcome()), line);
  appendName("bytesRead");
  appendNumber(decoded.bytesRead(), line);
  appendName("bytes");
  appendNumber(packet.body.size(), line);
  if (!decoded.reason().empty()) {
    appendName("reason");
    appendJsonString(decoded.reason(), line);
  }
  appendName("message");
  if (const auto object = decoded.object())
    appendJson(*object, line, {.secrets = shown.secrets});
  else
    line += "null";
  appendUntold(shown, scratch, line);
  line += "}\n";
}

// Writes packets, and the library's reports about them.
class PacketPrinter {
 public:
  PacketPrinter(const DecodeOptions& options, bool namesFile, Output& output, Diagnostics& diagnostics)
      : options_(options), columns_(columnsNamed(options.columns)), namesFile_(namesFile), colors_(options.color),
        output_(output), diagnostics_(diagnostics), sink_(std::make_shared<PacketReportSink>(diagnostics)),
        installed_(sink_) {}

  void print(const std::string& file, const Packet& packet) {
    if (!options_.filter.wants(packet)) return;
    sink_->setPacket(packet.number);
    const DecodedPacket decoded(packet);
    if (!options_.filter.wants(decoded)) return;
    line_.clear();
    append({file, decoded, options_.secrets});
    output_.write(line_);
  }

 private:
  void append(const Shown& shown) {
    if (options_.format == OutputFormat::JSON) return appendJsonLine(shown, namesFile_, scratch_, line_);
    shown.decoded.complain(diagnostics_);
    if (options_.format == OutputFormat::PRETTY)
      appendPretty(shown.decoded, namesFile_ ? shown.file : "", options_.secrets, colors_, line_);
    else
      appendLine(shown, columns_, line_);
  }

  const DecodeOptions& options_;
  std::vector<const Column*> columns_;
  bool namesFile_;
  Colors colors_;
  Output& output_;
  Diagnostics& diagnostics_;
  std::string line_;
  ByteStream scratch_;
  std::shared_ptr<PacketReportSink> sink_;
  WithReportSink installed_;
};

}  // namespace

std::string columnNames() {
  std::string names;
  for (const Column& column : COLUMNS) names.append(names.empty() ? "" : ",").append(column.name);
  return names;
}

bool decodeCaptures(const CaptureCall& call, const DecodeOptions& options, Output& output, Diagnostics& diagnostics) {
  PacketPrinter printer(options, call.files.size() > 1, output, diagnostics);
  return visitPackets(call, output, diagnostics,
                      [&](const std::string& file, const Packet& packet) { printer.print(file, packet); });
}

void decodeBody(int id, std::span<const std::uint8_t> body, const DecodeOptions& options, Output& output,
                Diagnostics& diagnostics) {
  Packet packet{.number = 1,
                .time = 0,
                .precision = TimePrecision::MICROSECONDS,
                .direction = Direction::FROM_SERVER,
                .id = id,
                .body = body};
  if (findClientMessageRow(id) == nullptr) packet.direction = Direction::TO_SERVER;
  packet.direction = options.filter.direction.value_or(packet.direction);
  if (classOf(packet).empty() && !options.filter.direction) packet.direction = Direction::FROM_SERVER;
  PacketPrinter(options, false, output, diagnostics).print("", packet);
}

}  // namespace Tessel
