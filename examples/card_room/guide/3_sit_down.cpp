// Step 3 of docs/guide.md: connects to the card room, goes to the first table that has a seat, and sits down.

#include <herald/dispatch/DefaultClientMessageHandler.h>
#include <herald/messages/JoinEvents.h>
#include <herald/messages/LobbyEvents.h>
#include <herald/messages/LobbyRequests.h>
#include <herald/messages/SeatEvents.h>
#include <herald/messages/TableRequests.h>
#include <herald/messages/TableStateEvents.h>
#include <herald/platform/keystone/BugReporter.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <exception>
#include <iostream>
#include <memory>
#include <utility>

#include "../client/Connection.h"
#include "../client/NetworkThread.h"
#include "../client/TableModel.h"
#include "../common/QuietSink.h"

using namespace Tessel;
using CardRoom::Connection;

class Guest : public DefaultClientMessageHandler {
 public:
  explicit Guest(Connection& connection) : connection_(connection) {}

  using DefaultClientMessageHandler::handle;
  void handle(const AbusiveChatWarning&) override {}

  void handle(const ConnectOk& message) override {
    constexpr int HOLDEM = 11;
    constexpr int GAMES_AND_SEATS = 1;
    id_ = message.getSelfPlayerInfo().getId();
    connection_.send(SubscribeNodeReq(SubscriptionInfo(HOLDEM, GAMES_AND_SEATS)));
  }

  void handle(const GameList& message) override {
    for (int i = 0; i < message.getNumberOfGameInfos(); ++i) {
      const PokerGameInfo& game = message.getPokerGameInfo(i);
      if (game.getNrPlayers() < game.getMaxNrPlayers()) return connection_.send(JoinGameRequest(game.getId(), id_));
    }
  }

  void handle(const GameStateInfoMsg& message) override {
    CardRoom::TableModel table;
    table.show(message.getGameStateInfo());
    connection_.send(SitDownRequest(table.freeSeat()));
  }

  void handle(const PlayerSatDown& message) override {
    if (message.getInfo().getPlayerInGameInfo().getId() != id_) return;
    std::cout << "sitting in seat " << message.getInfo().getSeat() << '\n';
    isSeated = true;
  }

  bool isSeated = false;

 private:
  Connection& connection_;
  int id_ = -1;
};

/// Tells what becomes of the connection.
class Events : public ServerViewMessageHandler, public ConnectionStatusMessageHandler {
 public:
  void handle(const ConnectionStatusMessage& message) override {
    message.getConnectionStatus()->handle(static_cast<ConnectionStatusMessageHandler&>(*this));
  }
  void handle(const ClientDataMessage&) override {}

  void handle(const ConnectionUpdate& event) override { tell(event); }
  void handle(const ConnectionFailed& event) override { tell(event), hasFailed = true; }
  void handle(const ConnectionOK&) override {}
  void handle(const ConnectionRegistration&) override {}
  void handle(const ConnectionUnregistration&) override {}

  bool hasFailed = false;

 private:
  static void tell(const ConnectionFailed& event) { std::cout << UTFEncoder::toUTF8(event.getMessage()) << '\n'; }
};

int main(int argc, char** argv) try {
  BugReporter::getInstance().setSink(std::make_shared<CardRoom::QuietSink>());
  asio::io_context io;
  PostOffice office;
  ClientMessageMailBox messages(&office);
  ServerViewMailbox events(&office);

  Connection::Settings settings;
  settings.login = CardRoom::LoginRequest(L"Guest", L"Utrecht");
  if (argc > 1) settings.port = argv[1];
  Connection connection(io, settings, messages, events);
  connection.open();

  const CardRoom::NetworkThread network(io);

  Guest guest(connection);
  Events eventTeller;
  while (!guest.isSeated && !eventTeller.hasFailed) {
    office.waitForMail(1000);
    for (const auto& event : events.pickupAll()) event->handle(eventTeller);
    for (auto& message : messages.pickupAll()) AbstractClientMessageHandler::handle(guest, std::move(message));
  }
  return guest.isSeated ? 0 : 1;
} catch (const std::exception& failure) {
  std::cerr << failure.what() << '\n';
  return 1;
}
