// Any text as the JSON of a message, request or record: it is encoded, or refused with a reason.

#include <herald/inspect/Encoding.h>
#include <herald/inspect/Json.h>
#include <herald/inspect/Requests.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>
#include <tools/JsonSource.h>

#include <algorithm>
#include <string>

#include "Fuzzing.h"

using namespace Tessel;

namespace {

using Json = nlohmann::json;

// False when it is refused.
bool encodeJson(const Json& object, ByteStream& out) {
  JsonSource source(object);
  try {
    encodeFrom(source, object.at("class").get<std::string>(), out);
    return true;
  } catch (const KeystoneException& refusal) {
    require(*refusal.what() != '\0', "a refusal says why");
    require(out.bytes().empty(), "what is refused adds no bytes");
    return false;
  }
}

// Its JSON makes the bytes from which it came.
void tellAgain(Inspectable object, std::span<const std::uint8_t> bytes) {
  ByteStream again;
  require(encodeJson(Json::parse(toJson(object, {.secrets = Secrets::SHOWN})), again), "its own JSON can be encoded");
  require(std::ranges::equal(again.bytes(), bytes), "and makes the same bytes");
}

template <class Row>
const Row* rowOf(std::span<const Row> rows, const std::string& name) {
  const auto row = std::ranges::find(rows, name, &Row::name);
  return row != rows.end() ? &*row : nullptr;
}

void readBack(const std::string& name, ByteStream& body) {
  if (const ClientMessageRow* row = rowOf(clientMessageTable(), name)) {
    const DecodedMessage decoded = ClientMessageFactory::decode(row->id, body);
    if (decoded.outcome == DecodeOutcome::DECODED) tellAgain(*decoded.message, body.bytes());
  } else if (const ServerMessageRow* request = rowOf(serverMessageTable(), name)) {
    const DecodedRequest decoded = decodeRequest(request->id, body);
    if (decoded.outcome == DecodeOutcome::DECODED) tellAgain(*decoded.request, body.bytes());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Json object = Json::parse(data, data + size, nullptr, false);
  if (!object.is_object() || !object.contains("class") || !object["class"].is_string()) return 0;
  ByteStream body;
  if (encodeJson(object, body)) readBack(object["class"], body);
  return 0;
}
