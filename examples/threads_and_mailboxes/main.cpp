// Three threads hand messages on: one plays a server connection from a capture, one decodes, one handles.

#include <herald/dispatch/DefaultClientMessageHandler.h>
#include <herald/mailboxes/MailBoxes.h>
#include <herald/mailboxes/ServerViewMessages.h>
#include <herald/messages/BettingEvents.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/platform/keystone/BugReporter.h>
#include <herald/platform/keystone/ByteStream.h>

#include <atomic>
#include <cstdint>
#include <iostream>
#include <thread>
#include <vector>

#include "../support/ServerPackets.h"

using namespace Tessel;

namespace {

constexpr int WAIT_MS = 1000;
constexpr int CONNECTION_ID = 1;

/// Decodes the packets that it is given and posts the messages on.
class Decoder : public ServerViewMessageHandler {
 public:
  explicit Decoder(ClientMessageMailBox& messages) : messages_(messages) {}

  void handle(const ConnectionStatusMessage&) override {}
  void handle(const ClientDataMessage& packet) override {
    ByteStream body = packet.getByteStream();
    std::unique_ptr<ClientMessage> message = ClientMessageFactory::decode(packet.getPacketDescriptor(), body).message;
    if (!message) return;
    messages_.post(std::move(message));
    ++posted;
  }

  int posted = 0;

 private:
  ClientMessageMailBox& messages_;
};

/// Counts the bets and everything else.
class TableHandler : public DefaultClientMessageHandler {
 public:
  using DefaultClientMessageHandler::handle;
  void handle(const AbusiveChatWarning&) override {}
  void handle(const ClientBetDone& message) override {
    ++bets;
    chipsBet += message.getCreditInfo().getAmount();
  }

  int bets = 0;
  std::int64_t chipsBet = 0;
};

/// Messages that nobody takes are traced: this example has nothing to say of them.
class QuietSink : public StandardErrorSink {
  void trace(std::wstring_view) override {}
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: threads_and_mailboxes CAPTURE\n";
    return 2;
  }
  const std::vector<ServerPacket> packets = readServerPackets(argv[1]);
  if (packets.empty()) {
    std::cerr << argv[1] << ": no packets of a server\n";
    return 1;
  }
  BugReporter::getInstance().setSink(std::make_shared<QuietSink>());

  PostOffice decodersOffice;
  PostOffice handlersOffice;
  ServerViewMailbox rawPackets(&decodersOffice);
  ClientMessageMailBox messages(&handlersOffice);
  std::atomic<bool> allReceived = false;
  std::atomic<bool> allDecoded = false;
  Decoder decoder(messages);
  TableHandler handler;
  int delivered = 0;

  std::thread network([&] {
    for (const ServerPacket& packet : packets)
      rawPackets.post(std::make_unique<ClientDataMessage>(CONNECTION_ID, packet.id, ByteStream(packet.body)));
    allReceived = true;
  });
  std::thread decoding([&] {
    while (!(allReceived && rawPackets.isEmpty())) {
      if (!decodersOffice.waitForMail(WAIT_MS)) continue;
      for (const std::unique_ptr<ServerViewMessage>& packet : rawPackets.pickupAll()) packet->handle(decoder);
    }
    allDecoded = true;
  });
  std::thread handling([&] {
    while (!(allDecoded && messages.isEmpty())) {
      if (!handlersOffice.waitForMail(WAIT_MS)) continue;
      while (std::unique_ptr<ClientMessage> message = messages.pickupOwned()) {
        AbstractClientMessageHandler::handle(handler, std::move(message));
        ++delivered;
      }
    }
  });
  for (std::thread* thread : {&network, &decoding, &handling}) thread->join();

  std::cout << "packets received:   " << packets.size() << "\n"
            << "messages decoded:   " << decoder.posted << "\n"
            << "messages delivered: " << delivered << "\n"
            << "bets among them:    " << handler.bets << ", " << handler.chipsBet << " chips in all\n"
            << "mail left:          " << decodersOffice.getMailCount() + handlersOffice.getMailCount() << "\n";
  return delivered == decoder.posted ? 0 : 1;
}
