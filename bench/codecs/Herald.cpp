#include <bench/codecs/FloorValues.h>
#include <bench/codecs/HeraldCodec.h>
#include <herald/dispatch/DefaultClientMessageHandler.h>
#include <herald/inspect/Encoding.h>
#include <herald/inspect/FieldList.h>
#include <herald/inspect/Json.h>
#include <herald/messages/BettingEvents.h>
#include <herald/messages/LobbyRequests.h>
#include <herald/messages/TableRequests.h>
#include <herald/messages/TournamentLobbyRequests.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <nlohmann/json.hpp>

namespace Bench {

using namespace Tessel;

namespace {

Bytes readBody(const std::string& name) {
  const std::string path = std::string(HERALD_BENCH_DATA_DIR) + '/' + name + ".bin";
  std::ifstream in(path, std::ios::binary);
  if (!in) throw std::runtime_error("cannot read " + path);
  return {std::istreambuf_iterator<char>(in), {}};
}

std::string valueOf(const Field& field) {
  if (field.type != WireType::BOOL) return field.value;
  return field.value == "true" ? "1" : "0";
}

Bytes encoded(const Inspectable& object) {
  ByteStream out;
  if (!encode(object, out)) throw std::runtime_error(std::string(object.className()) + " cannot be encoded");
  return {out.bytes().begin(), out.bytes().end()};
}

std::string jsonOf(const Inspectable& object) {
  auto json = nlohmann::json::parse(toJson(object, {.secrets = Secrets::SHOWN}));
  return json.contains("body") ? json["body"].dump() : json.dump();
}

template <class FloorMessage>
class Samples {
 public:
  Samples(Operations& operations, References& references, std::string name)
      : operations_(operations), references_(references), name_(std::move(name)), body_(readBody(name_)) {}

  // A message from a server.
  void receive(int id) {
    const std::shared_ptr<const ClientMessage> message = addDecoding(id);
    add("text", "herald", [message] { benchmark::DoNotOptimize(message->toDebugString()); });
    add("json", "herald", [message] { benchmark::DoNotOptimize(toJson(*message)); });
    add("encode", "herald", [message, out = ByteStream()]() mutable {
      out.clear();
      encode(*message, out);
      benchmark::ClobberMemory();
    });
  }

  std::shared_ptr<const ClientMessage> addDecoding(int id) {
    std::shared_ptr<const ClientMessage> message = decodeChecked(id, body_);
    compare(*message);
    add("decode", "herald", [id, body = body_] { benchmark::DoNotOptimize(decode(id, body)); });
    add("decode", "floor", [body = body_] { benchmark::DoNotOptimize(Floor::read<FloorMessage>(body)); });
    return message;
  }

  // A request of the client, made from what the floor reads of it.
  template <class Make>
  void send(Make make) {
    const auto floorMessage = Floor::read<FloorMessage>(body_);
    const auto message = make(floorMessage);
    ByteStream out;
    Floor::Writer floorOut;
    if (!message.write(out)) throw std::runtime_error(name_ + " cannot be written");
    write(floorOut, floorMessage);
    if (!std::ranges::equal(out.bytes(), floorOut.bytes()))
      throw std::runtime_error(name_ + ": Herald and the floor write other frames");
    compare(message);
    add("encode", "herald", [message, out]() mutable {
      out.clear();
      benchmark::DoNotOptimize(message.write(out));
      benchmark::ClobberMemory();
    });
    add("encode", "floor", [floorMessage, floorOut]() mutable {
      floorOut.clear();
      write(floorOut, floorMessage);
      benchmark::ClobberMemory();
    });
  }

 private:
  void compare(const Inspectable& message) {
    if (encoded(message) != body_) throw std::runtime_error(name_ + ": encoded, it is not its body");
    Values values = valuesOf(message);
    requireEqual(name_ + ", Herald and the floor,", values, valuesOfFloor<FloorMessage>(body_));
    references_[name_] = {std::move(values), jsonOf(message)};
  }

  void add(const char* what, const char* who, auto work) { Bench::add(operations_, what, name_, who, std::move(work)); }

  Operations& operations_;
  References& references_;
  std::string name_;
  Bytes body_;
};

class Handler : public DefaultClientMessageHandler {
 public:
  using DefaultClientMessageHandler::handle;
  void handle(const AbusiveChatWarning&) override {}
  void handle(const ClientBetDone& message) override { chips += message.getCreditInfo().getAmount(); }

  std::int64_t chips = 0;
};

class PlainMessage;

class PlainHandler {
 public:
  virtual ~PlainHandler() = default;
  virtual void handle(const PlainMessage& message) = 0;
};

class PlainMessage {
 public:
  virtual ~PlainMessage() = default;
  virtual void handle(PlainHandler& handler) const { handler.handle(*this); }

  std::int64_t amount = 1;
};

class Counter : public PlainHandler {
 public:
  void handle(const PlainMessage& message) override { chips += message.amount; }

  std::int64_t chips = 0;
};

// The compiler is not to know which class it is.
template <class Message, class Receiver>
void deliver(Message* message, Receiver* receiver) {
  benchmark::DoNotOptimize(message);
  benchmark::DoNotOptimize(receiver);
  message->handle(*receiver);
}

void addDelivery(Operations& operations) {
  const std::shared_ptr<const ClientMessage> message = std::make_shared<ClientBetDone>();
  const std::shared_ptr<AbstractClientMessageHandler> handler = std::make_shared<Handler>();
  add(operations, "deliver", "BetDone", "herald", [message, handler] { deliver(message.get(), handler.get()); });
  const auto plainMessage = std::make_shared<const PlainMessage>();
  const std::shared_ptr<PlainHandler> counter = std::make_shared<Counter>();
  add(operations, "deliver", "BetDone", "plain",
      [plainMessage, counter] { deliver(plainMessage.get(), counter.get()); });
}

// What is left when there is no body.
void addEmpty(Operations& operations) {
  constexpr int PLAYER_SLOW_CONNECTION = -88;
  decodeChecked(PLAYER_SLOW_CONNECTION, {});
  add(operations, "decode", "Empty", "herald", [] { benchmark::DoNotOptimize(decode(PLAYER_SLOW_CONNECTION, {})); });
}

// Memory for a message of that size, and back.
void addMalloc(Operations& operations) {
  struct Free {
    void operator()(void* memory) const { std::free(memory); }
  };
  add(operations, "decode", "BetDone", "malloc", [] {
    const std::unique_ptr<void, Free> memory(std::malloc(sizeof(ClientBetDone)));
    benchmark::DoNotOptimize(memory.get());
  });
}

}  // namespace

Values valuesOf(Inspectable object) {
  Values values;
  for (const Field& field : FieldList(object, Secrets::SHOWN))
    if (field.kind != FieldKind::RECORD) values.push_back(valueOf(field));
  return values;
}

std::unique_ptr<ClientMessage> decodeChecked(int id, const Bytes& body) {
  auto message = decode(id, body);
  if (!message) throw std::runtime_error("no message of the id " + std::to_string(id));
  if (encoded(*message) != body)
    throw std::runtime_error(std::string(Inspectable(*message).className()) + ": encoded, it is not its body");
  return message;
}

References addHerald(Operations& operations) {
  References references;
  Samples<Floor::CreditInfo>(operations, references, "BetDone").receive(12);
  Samples<Floor::BetRequest>(operations, references, "BetReq").receive(7);
  Samples<Floor::GameState>(operations, references, "GameState").receive(-14);
  Samples<Floor::GameList>(operations, references, "GameList100").receive(-9);
  Samples<Floor::TourChanges>(operations, references, "TourChanges").receive(-72);
  Samples<Floor::TreeNode>(operations, references, "Tree200").receive(-64);
  Samples<Floor::PlayerList>(operations, references, "PlayerList500").receive(370);
  Samples<Floor::InTurnAction>(operations, references, "InTurnAction").send([](const Floor::InTurnAction& action) {
    return ServerInTurnAction(action.playerId, action.seat, action.betRound,
                              InTurnAction::InTurnActionType{action.actionType}, action.amount);
  });
  Samples<Floor::JoinTournament> joinTournament(operations, references, "JoinTournament");
  joinTournament.addDecoding(308);  // the server's reply has the same body
  joinTournament.send([](const Floor::JoinTournament& join) {
    return TournamentJoinRequestMsg(join.playerId, join.tournamentId, UTFEncoder::toWide(join.password));
  });
  Samples<Floor::ChatMessage> chatMsg(operations, references, "ChatMsg");
  chatMsg.addDecoding(-23);
  chatMsg.send([](const Floor::ChatMessage& chat) {
    return ServerChatMsg(ChatMessage(UTFEncoder::toWide(chat.nickname), UTFEncoder::toWide(chat.message)));
  });
  addEmpty(operations);
  addDelivery(operations);
  addMalloc(operations);
  return references;
}

}  // namespace Bench
