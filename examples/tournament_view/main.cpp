// Shows a tournament as its messages arrive, here from a capture.

#include <herald/SpecificTournamentModel/TournamentFeed.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/platform/keystone/BugReporter.h>
#include <herald/platform/keystone/ByteStream.h>

#include <iostream>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

#include "../support/ServerPackets.h"
#include "TournamentScreen.h"

using namespace Tessel;

namespace {

bool isTerminal() {
#ifdef _WIN32
  return _isatty(1) != 0;
#else
  return isatty(1) != 0;
#endif
}

/// The screen shows what matters: traces and log lines would only disturb it.
class QuietSink : public StandardErrorSink {
  void trace(std::wstring_view) override {}
  void log(std::wstring_view, std::wstring_view, int) override {}
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: tournament_view CAPTURE\n";
    return 2;
  }
  const std::vector<ServerPacket> packets = readServerPackets(argv[1]);
  if (packets.empty()) {
    std::cerr << argv[1] << ": no packets of a server\n";
    return 1;
  }
  BugReporter::getInstance().setSink(std::make_shared<QuietSink>());

  constexpr int TOURNAMENT_ID = 9001;
  SpecificTournamentModel model(TOURNAMENT_ID);
  TournamentFeed feed(model);
  {
    TournamentScreen screen(model, std::cout, isTerminal());
    for (const ServerPacket& packet : packets) {
      ByteStream body(packet.body);
      std::unique_ptr<ClientMessage> message = ClientMessageFactory::decode(packet.id, body).message;
      if (message) AbstractClientMessageHandler::handle(feed, std::move(message));
      screen.drawChanges();
    }
  }
  std::cout << std::endl;
  return model.getBasicInformation().getNumberOfEntrants() > 0 ? 0 : 1;
}
