// A client of the card room: a table in the terminal for one player, or any number of players that play by themselves.

#include <herald/platform/keystone/BugReporter.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <algorithm>
#include <asio.hpp>
#include <iostream>
#include <memory>
#include <optional>
#include <random>

#include "../common/Options.h"
#include "../common/QuietSink.h"
#include "Bot.h"
#include "Client.h"
#include "NetworkThread.h"
#include "Person.h"
#include "Terminal.h"

using namespace CardRoom;
using Tessel::PostOffice;

namespace {

/// So many bots of one process: one network thread and one user's thread serve them all.
class BotHouse {
 public:
  BotHouse(const Options& options, const Client::Settings& settings) {
    const int count = options.number("--bots", 1);
    const int first = options.number("--first", 1);
    for (int i = 0; i < count; ++i) {
      const int number = first + i;
      Client::Settings own = settings;
      own.isUser = i == 0;
      own.connection.id = number;
      own.connection.login = LoginRequest(L"Bot " + std::to_wstring(number), L"Utrecht");
      constexpr int ONE_IN = 5;
      bots_.push_back(std::make_unique<Bot>(static_cast<std::uint32_t>(number), number % ONE_IN == 0));
      clients_.push_back(std::make_unique<Client>(io_, office_, own, *bots_.back()));
    }
  }

  /// Until the server says good-bye. Answers whether everything was in order.
  bool run() {
    constexpr int WAIT_MS = 200;
    for (const auto& client : clients_) client->start();
    {
      const NetworkThread network(io_);
      while (!std::ranges::all_of(clients_, &Client::isOver)) {
        office_.waitForMail(WAIT_MS);
        for (const auto& client : clients_) client->work();
      }
    }
    for (const auto& client : clients_) client->work();
    return isInOrder();
  }

 private:
  bool isInOrder() const {
    int posted = 0;
    int delivered = 0;
    int logins = 0;
    bool isMailLeft = office_.getMailCount() != 0;
    for (const auto& client : clients_) {
      posted += client->postedCount();
      delivered += client->deliveredCount();
      logins += client->loginCount();
      isMailLeft |= client->isMailLeft();
    }
    std::cout << "bots " << clients_.size() << ", messages " << delivered << ", logins " << logins << '\n';
    if (isMailLeft) std::cout << "mail is left\n";
    if (posted != delivered) std::cout << posted << " messages were posted\n";
    return !isMailLeft && posted == delivered;
  }

  asio::io_context io_;
  PostOffice office_;
  std::vector<std::unique_ptr<Bot>> bots_;
  std::vector<std::unique_ptr<Client>> clients_;
};

/// A program that plays while a person looks on.
class Autopilot : public Pilot {
 public:
  explicit Autopilot(Person& person) : person_(person) {}

  void inLobby(Client& client) override { bot_.inLobby(client); }
  void toMove(Client& client, const Tessel::PlayerActionsInfo& actions) override { bot_.toMove(client, actions); }
  void handEnded(Client& client) override { bot_.handEnded(client); }
  void follows(Tessel::SpecificTournamentModel* tournament) override { person_.follows(tournament); }

 private:
  Person& person_;
  Bot bot_{std::random_device()(), false};
};

/// One player, with a table in the terminal.
class Evening {
 public:
  Evening(const Options& options, Client::Settings settings) {
    const std::string nick = options.text("--nick", "Marigold");
    settings.connection.login = LoginRequest(Tessel::UTFEncoder::toWide(nick), L"Utrecht");
    Pilot& pilot = options.has("--bot") ? static_cast<Pilot&>(autopilot_) : person_;
    client_ = std::make_unique<Client>(io_, office_, settings, pilot);
  }

  bool run() {
    constexpr int WAIT_MS = 200;
    client_->start();
    {
      const NetworkThread network(io_);
      Terminal terminal(keys_);
      while (!client_->isOver()) {
        office_.waitForMail(WAIT_MS);
        for (const auto& pressed : keys_.pickupAll())
          if (!person_.press(*client_, pressed->key)) client_->quit();
        client_->work();
        terminal.show(person_.screen(*client_, Terminal::size()));
      }
    }
    std::cout << Tessel::UTFEncoder::toUTF8(client_->status()) << '\n';
    return true;
  }

 private:
  asio::io_context io_;
  PostOffice office_;
  KeyMailBox keys_{&office_};
  Person person_;
  Autopilot autopilot_{person_};
  std::unique_ptr<Client> client_;
};

}  // namespace

int main(int argc, char** argv) {
  constexpr auto USAGE =
      "usage: card_room_client [--bot] [--host NAME] [--port N] [--nick NAME] [--record FILE]\n"
      "       card_room_client --bots N [--first NUMBER] [--host NAME] [--port N] [--record FILE] [--ledger FILE]\n";
  try {
    const Options options(
        argc, argv, {"--host", "--port", "--nick", "--record", "--bots", "--first", "--ledger", "--lose"}, {"--bot"});
    Tessel::BugReporter::getInstance().setSink(std::make_shared<QuietSink>());
    std::optional<Recorder> recorder;
    std::optional<Ledger> ledger;
    Client::Settings settings;
    settings.connection.host = options.text("--host", settings.connection.host);
    settings.connection.port = options.text("--port", settings.connection.port);
    settings.connection.lossInterval = options.number("--lose", 0);
    if (options.has("--record")) settings.connection.recorder = &recorder.emplace(options.text("--record"));
    if (options.has("--ledger")) settings.ledger = &ledger.emplace(options.text("--ledger"));
    const bool isInOrder = options.has("--bots") ? BotHouse(options, settings).run() : Evening(options, settings).run();
    return isInOrder ? 0 : 1;
  } catch (const std::invalid_argument& wrong) {
    std::cerr << "card_room_client: " << wrong.what() << '\n' << USAGE;
    return 2;
  } catch (const std::exception& failure) {
    std::cerr << "card_room_client: " << failure.what() << '\n';
    return 1;
  }
}
