#include "Examples.h"

#include <herald/inspect/Requests.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <algorithm>

#include "../Capture.h"
#include "../Diagnostics.h"

namespace Tessel {

namespace {

constexpr std::size_t MODERATE_SIZE = 120;

// Empty when the body cannot be read.
std::string debugTextOf(const Packet& packet) {
  ByteStream body{packet.body};
  if (packet.direction == Direction::TO_SERVER) {
    const DecodedRequest decoded = decodeRequest(packet.id, body);
    return decoded.request != nullptr ? UTFEncoder::toUTF8(decoded.request->toDebugString()) : "";
  }
  const DecodedMessage decoded = ClientMessageFactory::decode(packet.id, body);
  return decoded.message != nullptr ? UTFEncoder::toUTF8(decoded.message->toDebugString()) : "";
}

const RecordSchema* schemaOf(const Packet& packet) {
  const Schema& schema = Schema::ofProtocol();
  const auto messages = packet.direction == Direction::TO_SERVER ? schema.requests() : schema.messages();
  const auto message = std::ranges::find(messages, packet.id, &MessageSchema::id);
  return message != messages.end() ? message->body : nullptr;
}

// The largest of moderate size, else the smallest.
bool isBetter(std::size_t size, std::size_t than) {
  return size <= MODERATE_SIZE ? size > than || than > MODERATE_SIZE : size < than;
}

void addExample(const std::string& capture, const Packet& packet, Examples& examples) {
  const RecordSchema* schema = schemaOf(packet);
  if (schema == nullptr) return;
  const auto known = examples.find(schema->name);
  if (known != examples.end() && !isBetter(packet.body.size(), known->second.body.size())) return;
  auto places = placesOfFields(*schema, packet.body);
  const std::string debugText = debugTextOf(packet);
  if (!places || debugText.empty()) return;
  examples[schema->name] = {capture.substr(capture.rfind('/') + 1),
                            packet.number,
                            {packet.body.begin(), packet.body.end()},
                            *std::move(places),
                            debugText};
}

}  // namespace

Examples findExamples(const std::vector<std::string>& captures) {
  const WithReportSink quiet(std::make_shared<SilentReportSink>());
  Examples examples;
  for (const std::string& file : captures) {
    Capture capture(file);
    while (const auto packet = capture.next()) addExample(file, *packet, examples);
  }
  return examples;
}

}  // namespace Tessel
