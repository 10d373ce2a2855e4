#include "Decode.h"

#include <herald/inspect/Json.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/StringUtils.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <charconv>
#include <concepts>
#include <iterator>

#include "Capture.h"
#include "Diagnostics.h"
#include "Output.h"

namespace Tessel {

namespace {

// Empty for an id without a class.
std::string_view classOf(const Packet& packet) {
  if (packet.direction == Direction::TO_SERVER) {
    const ServerMessageRow* row = findServerMessageRow(packet.id);
    return row != nullptr ? row->name : "";
  }
  const ClientMessageRow* row = findClientMessageRow(packet.id);
  return row != nullptr ? row->name : "";
}

std::string_view nameOf(DecodeOutcome outcome) {
  switch (outcome) {
    case DecodeOutcome::DECODED:
      return "decoded";
    case DecodeOutcome::READ_ANSWERED_FALSE:
      return "readAnsweredFalse";
    case DecodeOutcome::NO_MESSAGE:
      return "noMessage";
    case DecodeOutcome::UNKNOWN_ID:
      return "unknownId";
    case DecodeOutcome::READ_THREW:
      return "readThrew";
  }
  return "";
}

std::string_view orDash(std::string_view text) { return text.empty() ? "-" : text; }

void appendNumber(std::integral auto number, std::string& line) {
  char digits[24];
  line.append(digits, std::to_chars(digits, std::end(digits), number).ptr);
}

DecodedMessage decodeMessage(const Packet& packet) {
  ByteStream body = ByteStream::view(packet.body);
  return ClientMessageFactory::decode(packet.id, body);
}

// What the library's own reports leave out: where the read ended, and why.
void complainOfFailedRead(const Packet& packet, const DecodedMessage& decoded, Diagnostics& diagnostics) {
  const bool threw = decoded.outcome == DecodeOutcome::READ_THREW;
  if (!threw && decoded.outcome != DecodeOutcome::READ_ANSWERED_FALSE) return;
  diagnostics.complain("packet " + std::to_string(packet.number) + ": the read failed at byte "
                       + std::to_string(decoded.bytesRead) + " of " + std::to_string(packet.body.size())
                       + (threw ? ": " + UTFEncoder::toUTF8(StringUtils::escapeLine(decoded.reason)) : ""));
}

void appendMessageColumns(const Packet& packet, Diagnostics& diagnostics, std::string& line) {
  const DecodedMessage decoded = decodeMessage(packet);
  complainOfFailedRead(packet, decoded, diagnostics);
  appendNumber(decoded.bytesRead, line);
  line += '\t';
  appendNumber(packet.body.size(), line);
  line += '\t';
  if (decoded.message == nullptr)
    line += '-';
  else
    line += UTFEncoder::toUTF8(StringUtils::escapeLine(decoded.message->toDebugString()));
}

void appendLine(const Packet& packet, Diagnostics& diagnostics, std::string& line) {
  appendNumber(packet.number, line);
  line += '\t';
  appendNumber(packet.id, line);
  line += '\t';
  line += orDash(classOf(packet));
  line += '\t';
  if (packet.direction == Direction::FROM_SERVER)
    appendMessageColumns(packet, diagnostics, line);
  else
    line += "-\t-\t-";
  line += '\n';
}

void appendMessageMembers(const Packet& packet, std::string& line) {
  const DecodedMessage decoded = decodeMessage(packet);
  line += ",\"outcome\":";
  appendJsonString(nameOf(decoded.outcome), line);
  line += ",\"bytesRead\":";
  appendNumber(decoded.bytesRead, line);
  line += ",\"bytes\":";
  appendNumber(packet.body.size(), line);
  if (!decoded.reason.empty()) {
    line += ",\"reason\":";
    appendJsonString(UTFEncoder::toUTF8(decoded.reason), line);
  }
  line += ",\"message\":";
  if (decoded.message != nullptr)
    appendJson(*decoded.message, line);
  else
    line += "null";
}

void appendRequestMembers(const Packet& packet, std::string& line) {
  line += ",\"bytes\":";
  appendNumber(packet.body.size(), line);
  line += ",\"message\":null";
}

void appendJsonLine(const Packet& packet, std::string& line) {
  const bool isMessage = packet.direction == Direction::FROM_SERVER;
  line += "{\"packet\":";
  appendNumber(packet.number, line);
  line += isMessage ? R"(,"direction":"fromServer","id":)" : R"(,"direction":"toServer","id":)";
  appendNumber(packet.id, line);
  line += ",\"class\":";
  if (const std::string_view name = classOf(packet); !name.empty())
    appendJsonString(name, line);
  else
    line += "null";
  if (isMessage)
    appendMessageMembers(packet, line);
  else
    appendRequestMembers(packet, line);
  line += "}\n";
}

// Writes packets, and the library's reports about them.
class PacketPrinter {
 public:
  PacketPrinter(OutputFormat format, Output& output, Diagnostics& diagnostics)
      : format_(format), output_(output), diagnostics_(diagnostics),
        sink_(std::make_shared<PacketReportSink>(diagnostics)), installed_(sink_) {}

  void print(const Packet& packet) {
    sink_->setPacket(packet.number);
    line_.clear();
    if (format_ == OutputFormat::JSON)
      appendJsonLine(packet, line_);
    else
      appendLine(packet, diagnostics_, line_);
    output_.write(line_);
  }

 private:
  OutputFormat format_;
  Output& output_;
  Diagnostics& diagnostics_;
  std::string line_;
  std::shared_ptr<PacketReportSink> sink_;
  WithReportSink installed_;
};

}  // namespace

bool decodeCapture(const std::string& file, OutputFormat format, Output& output, Diagnostics& diagnostics) {
  PacketPrinter printer(format, output, diagnostics);
  return visitPackets(file, diagnostics, [&](const Packet& packet) { printer.print(packet); });
}

void decodeBody(int id, std::span<const std::uint8_t> body, OutputFormat format, Output& output,
                Diagnostics& diagnostics) {
  PacketPrinter(format, output, diagnostics).print({1, Direction::FROM_SERVER, id, body});
}

}  // namespace Tessel
