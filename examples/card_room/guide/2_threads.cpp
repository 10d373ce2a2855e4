// Step 2 of docs/guide.md: the network thread decodes and posts, the user's thread waits, picks up and delivers.

#include <herald/dispatch/DefaultClientMessageHandler.h>
#include <herald/mailboxes/MailBoxes.h>
#include <herald/messages/BettingEvents.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/PostOffice.h>

#include <cstdint>
#include <iostream>
#include <thread>
#include <utility>

using namespace Tessel;

class Bets : public DefaultClientMessageHandler {
 public:
  using DefaultClientMessageHandler::handle;
  void handle(const AbusiveChatWarning&) override {}
  void handle(const ClientBetDone&) override { ++count; }

  int count = 0;
};

int main() {
  constexpr int MESSAGES = 1000;
  PostOffice office;
  ClientMessageMailBox mailBox(&office);

  std::thread network([&] {
    const std::uint8_t body[] = {0, 0, 0, 7, 3, 0, 0, 0, 0, 0, 0, 0x09, 0xC4};
    for (int i = 0; i < MESSAGES; ++i) {
      ByteStream stream = ByteStream::view(body);
      DecodedMessage decoded = ClientMessageFactory::decode(12, stream);
      if (decoded.message) mailBox.post(std::move(decoded.message));
    }
  });

  Bets bets;
  while (bets.count < MESSAGES) {
    office.waitForMail(1000);
    for (auto& message : mailBox.pickupAll()) AbstractClientMessageHandler::handle(bets, std::move(message));
  }
  network.join();
  std::cout << bets.count << " bets\n";
}
