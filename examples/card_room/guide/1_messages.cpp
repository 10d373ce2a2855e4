// Step 1 of docs/guide.md: bytes become a message, and a handler takes it.

#include <herald/dispatch/DefaultClientMessageHandler.h>
#include <herald/messages/BettingEvents.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/platform/keystone/ByteStream.h>

#include <cstdint>
#include <iostream>

using namespace Tessel;

class Bets : public DefaultClientMessageHandler {
 public:
  using DefaultClientMessageHandler::handle;
  void handle(const AbusiveChatWarning&) override {}

  void handle(const ClientBetDone& message) override {
    const CreditInfo& bet = message.getCreditInfo();
    std::cout << "seat " << bet.getSeat() << " bets " << bet.getAmount() << '\n';
  }
};

int main() {
  const std::uint8_t body[] = {0, 0, 0, 7, 3, 0, 0, 0, 0, 0, 0, 0x09, 0xC4};
  ByteStream stream = ByteStream::view(body);
  const DecodedMessage decoded = ClientMessageFactory::decode(12, stream);
  if (!decoded.message) return 1;  // decoded.outcome says why, and a report on standard error
  Bets bets;
  decoded.message->handle(bets);
}
