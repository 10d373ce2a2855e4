// The server of the card room: ring games and small tournaments, for any number of clients.

#include <herald/platform/keystone/BugReporter.h>

#include <asio.hpp>
#include <iostream>
#include <memory>
#include <optional>
#include <thread>

#include "../common/Options.h"
#include "../common/QuietSink.h"
#include "Room.h"

using namespace CardRoom;
using namespace std::chrono_literals;

namespace {

constexpr int DEFAULT_PORT = 6120;

/// Takes connections, keeps time, and ends the evening in good order.
class Server {
 public:
  explicit Server(const Options& options)
      : port_(options.number("--port", DEFAULT_PORT)), seconds_(options.number("--seconds", 0)),
        acceptor_(io_, {asio::ip::address_v4::loopback(), static_cast<asio::ip::port_type>(port_)}),
        signals_(io_, SIGINT, SIGTERM), clock_(io_) {
    if (options.has("--chaos")) chaos_ = static_cast<std::uint32_t>(options.number("--chaos", 0));
    if (options.has("--ledger")) ledger_.emplace(options.text("--ledger"));
    if (options.has("--record")) recorder_.emplace(options.text("--record"));
    Room::Options roomOptions;
    roomOptions.tables = options.number("--tables", roomOptions.tables);
    roomOptions.pace.betweenHands =
        std::chrono::milliseconds(options.number("--pause", static_cast<int>(roomOptions.pace.betweenHands.count())));
    roomOptions.seed =
        static_cast<std::uint32_t>(options.number("--seed", static_cast<int>(std::random_device()() >> 1)));
    roomOptions.ledger = ledger_ ? &*ledger_ : nullptr;
    room_ = std::make_unique<Room>(io_, roomOptions);
  }

  /// Answers whether everything was in order at the end.
  bool run() {
    std::cout << "listening on port " << acceptor_.local_endpoint().port() << std::endl;
    accept();
    tick();
    signals_.async_wait([this](asio::error_code error, int) {
      if (!error) end();
    });
    io_.run();
    room_->checkMoney();
    std::cout << "members " << room_->memberCount() << ", connections " << lastSession_ << ", hands "
              << room_->handsPlayed() << ", tournaments " << room_->tournamentsPlayed() << "\nmoney adds up\n";
    if (!everyoneHeardTheEnd_) std::cout << "not everyone was there at the end\n";
    return everyoneHeardTheEnd_;
  }

 private:
  static constexpr auto TICK = 100ms;
  static constexpr int TICKS_A_SECOND = 10;
  /// How long the end waits for hands to be over and for clients to come back.
  static constexpr int LONGEST_END = 20 * TICKS_A_SECOND;

  void accept() {
    acceptor_.async_accept([this](asio::error_code error, asio::ip::tcp::socket socket) {
      if (error) return;
      Session::Surroundings surroundings = {ledger_ ? &*ledger_ : nullptr, recorder_ ? &*recorder_ : nullptr, {}};
      ++lastSession_;
      if (chaos_ && !endingSince_) surroundings.chaos.emplace(*chaos_, lastSession_);
      std::make_shared<Session>(lastSession_, std::move(socket), *room_, std::move(surroundings))->start();
      accept();
    });
  }

  void tick() {
    clock_.expires_after(TICK);
    clock_.async_wait([this](asio::error_code) {
      ++ticks_;
      room_->tellLobbyChanges();
      if (ticks_ % TICKS_A_SECOND == 0) room_->ping();
      if (seconds_ > 0 && ticks_ == seconds_ * TICKS_A_SECOND) end();
      if (endingSince_ && mayEnd()) return goodBye();
      tick();
    });
  }

  void end() {
    if (endingSince_) return;
    endingSince_ = ticks_;
    room_->close();
  }

  bool mayEnd() const {
    if (ticks_ - *endingSince_ > LONGEST_END) return true;
    return !room_->isHandRunning() && room_->isEveryoneConnected();
  }

  void goodBye() {
    everyoneHeardTheEnd_ = room_->isEveryoneConnected();
    room_->sayGoodBye();
    acceptor_.close();
    signals_.cancel();
  }

  asio::io_context io_;
  int port_;
  int seconds_;
  std::optional<std::uint32_t> chaos_;
  std::optional<Ledger> ledger_;
  std::optional<Recorder> recorder_;
  std::unique_ptr<Room> room_;
  asio::ip::tcp::acceptor acceptor_;
  asio::signal_set signals_;
  asio::steady_timer clock_;
  int ticks_ = 0;
  int lastSession_ = 0;
  std::optional<int> endingSince_;
  bool everyoneHeardTheEnd_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  constexpr auto USAGE =
      "usage: card_room_server [--port N] [--tables N] [--pause MILLISECONDS] [--seconds N] [--record FILE]\n"
      "                        [--seed N] [--chaos SEED] [--ledger FILE]\n";
  try {
    const Options options(
        argc, argv, {"--port", "--tables", "--pause", "--seconds", "--record", "--chaos", "--seed", "--ledger"}, {});
    Tessel::BugReporter::getInstance().setSink(std::make_shared<QuietSink>());
    return Server(options).run() ? 0 : 1;
  } catch (const std::invalid_argument& wrong) {
    std::cerr << "card_room_server: " << wrong.what() << '\n' << USAGE;
    return 2;
  } catch (const std::exception& failure) {
    std::cerr << "card_room_server: " << failure.what() << '\n';
    return 1;
  }
}
