#include <bench/codecs/Operations.h>
#include <codecs/peer.pb.h>
#include <google/protobuf/util/json_util.h>

#include <stdexcept>

namespace Bench {

namespace {

using google::protobuf::FieldDescriptor;
using google::protobuf::Message;

void append(Values& values, const Message& message);

// One value of a field, the item `index` of a list or, below zero, the field itself.
void append(Values& values, const Message& message, const FieldDescriptor& field, int index) {
  const auto& get = *message.GetReflection();
  const bool isItem = index >= 0;
  switch (field.cpp_type()) {
    case FieldDescriptor::CPPTYPE_INT32:
      values.push_back(
          std::to_string(isItem ? get.GetRepeatedInt32(message, &field, index) : get.GetInt32(message, &field)));
      break;
    case FieldDescriptor::CPPTYPE_INT64:
      values.push_back(
          std::to_string(isItem ? get.GetRepeatedInt64(message, &field, index) : get.GetInt64(message, &field)));
      break;
    case FieldDescriptor::CPPTYPE_BOOL:
      values.push_back(
          std::to_string(isItem ? get.GetRepeatedBool(message, &field, index) : get.GetBool(message, &field)));
      break;
    case FieldDescriptor::CPPTYPE_STRING:
      values.push_back(isItem ? get.GetRepeatedString(message, &field, index) : get.GetString(message, &field));
      break;
    case FieldDescriptor::CPPTYPE_MESSAGE:
      append(values, isItem ? get.GetRepeatedMessage(message, &field, index) : get.GetMessage(message, &field));
      break;
    default:
      throw std::runtime_error(field.full_name() + " has a type that this schema does not use");
  }
}

void append(Values& values, const Message& message) {
  const auto& get = *message.GetReflection();
  for (int i = 0; i < message.GetDescriptor()->field_count(); ++i) {
    const FieldDescriptor& field = *message.GetDescriptor()->field(i);
    if (field.is_repeated()) {
      const int count = get.FieldSize(message, &field);
      values.push_back(std::to_string(count));
      for (int item = 0; item < count; ++item) append(values, message, field, item);
    } else if (!field.has_presence() || get.HasField(message, &field)) {
      append(values, message, field, -1);
    }
  }
}

template <class PeerMessage>
PeerMessage fromJson(const std::string& json) {
  google::protobuf::util::JsonParseOptions options;
  options.ignore_unknown_fields = true;  // the names of classes
  PeerMessage message;
  const auto status = google::protobuf::util::JsonStringToMessage(json, &message, options);
  if (!status.ok()) throw std::runtime_error("JSON as protobuf: " + status.ToString());
  return message;
}

template <class PeerMessage>
void addPeer(Operations& operations, const References& references, const std::string& name) {
  const Reference& reference = references.at(name);
  const auto message = fromJson<PeerMessage>(reference.json);
  const std::string bytes = message.SerializeAsString();
  PeerMessage decoded;
  if (!decoded.ParseFromString(bytes)) throw std::runtime_error(name + ": protobuf does not read what it wrote");
  Values values;
  append(values, decoded);
  requireEqual(name + ", Herald and protobuf,", reference.values, values);

  add(operations, "decode", name, "protobuf", [bytes] {
    PeerMessage in;
    benchmark::DoNotOptimize(in.ParseFromString(bytes));
    benchmark::DoNotOptimize(in);
  });
  add(operations, "encode", name, "protobuf", [message, out = std::string()]() mutable {
    message.SerializeToString(&out);
    benchmark::ClobberMemory();
  });
  add(operations, "json", name, "protobuf", [message, out = std::string()]() mutable {
    out.clear();
    if (!google::protobuf::util::MessageToJsonString(message, &out).ok()) std::abort();
    benchmark::ClobberMemory();
  });
}

}  // namespace

void addProtobuf(Operations& operations, const References& references) {
  addPeer<peer::CreditInfo>(operations, references, "BetDone");
  addPeer<peer::BetRequestInfo>(operations, references, "BetReq");
  addPeer<peer::PokerGameStateInfo>(operations, references, "GameState");
  addPeer<peer::GameList>(operations, references, "GameList100");
  addPeer<peer::TourSummaryChangeList>(operations, references, "TourChanges");
  addPeer<peer::TreeNodeInfo>(operations, references, "Tree200");
  addPeer<peer::LobbyPlayerList>(operations, references, "PlayerList500");
  addPeer<peer::InTurnAction>(operations, references, "InTurnAction");
  addPeer<peer::TournamentJoinRequest>(operations, references, "JoinTournament");
  addPeer<peer::ChatMessage>(operations, references, "ChatMsg");
}

}  // namespace Bench
