#include "Decode.h"

#include <herald/inspect/Json.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/StringUtils.h>
#include <herald/platform/keystone/UTFEncoder.h>

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

std::string orDash(std::string_view text) { return std::string(text.empty() ? "-" : text); }

DecodedMessage decodeMessage(const Packet& packet) {
  ByteStream body(packet.body);
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

std::string messageColumns(const Packet& packet, Diagnostics& diagnostics) {
  const DecodedMessage decoded = decodeMessage(packet);
  complainOfFailedRead(packet, decoded, diagnostics);
  std::string columns = std::to_string(decoded.bytesRead) + '\t' + std::to_string(packet.body.size()) + '\t';
  if (decoded.message == nullptr) return columns + '-';
  return columns + UTFEncoder::toUTF8(StringUtils::escapeLine(decoded.message->toDebugString()));
}

std::string lineOf(const Packet& packet, Diagnostics& diagnostics) {
  return std::to_string(packet.number) + '\t' + std::to_string(packet.id) + '\t' + orDash(classOf(packet)) + '\t'
         + (packet.direction == Direction::FROM_SERVER ? messageColumns(packet, diagnostics) : "-\t-\t-") + '\n';
}

std::string messageMembers(const Packet& packet) {
  const DecodedMessage decoded = decodeMessage(packet);
  std::string members = ",\"outcome\":" + toJsonString(nameOf(decoded.outcome)) + ",\"bytesRead\":"
                        + std::to_string(decoded.bytesRead) + ",\"bytes\":" + std::to_string(packet.body.size());
  if (!decoded.reason.empty()) members += ",\"reason\":" + toJsonString(UTFEncoder::toUTF8(decoded.reason));
  return members + ",\"message\":" + (decoded.message != nullptr ? toJson(*decoded.message) : "null");
}

std::string requestMembers(const Packet& packet) {
  return ",\"bytes\":" + std::to_string(packet.body.size()) + ",\"message\":null";
}

std::string jsonOf(const Packet& packet) {
  const bool isMessage = packet.direction == Direction::FROM_SERVER;
  const std::string_view name = classOf(packet);
  return "{\"packet\":" + std::to_string(packet.number)
         + ",\"direction\":" + (isMessage ? "\"fromServer\"" : "\"toServer\"") + ",\"id\":" + std::to_string(packet.id)
         + ",\"class\":" + (name.empty() ? "null" : toJsonString(name))
         + (isMessage ? messageMembers(packet) : requestMembers(packet)) + "}\n";
}

// Writes packets, and the library's reports about them.
class PacketPrinter {
 public:
  PacketPrinter(OutputFormat format, Output& output, Diagnostics& diagnostics)
      : format_(format), output_(output), diagnostics_(diagnostics),
        sink_(std::make_shared<PacketReportSink>(diagnostics)), installed_(sink_) {}

  void print(const Packet& packet) {
    sink_->setPacket(packet.number);
    output_.write(format_ == OutputFormat::JSON ? jsonOf(packet) : lineOf(packet, diagnostics_));
  }

 private:
  OutputFormat format_;
  Output& output_;
  Diagnostics& diagnostics_;
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
