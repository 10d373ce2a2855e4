#include <exception>
#include <filesystem>
#include <iostream>
#include <string_view>

#include "Capture.h"
#include "Plays.h"

namespace {

void record(const std::filesystem::path& file, void (*play)(Samples::Capture&)) {
  Samples::Capture capture(file);
  play(capture);
  capture.close();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_samples FOLDER\nWrites FOLDER/table.pcap, lobby.pcap and tournament.pcap.\n";
    return 2;
  }
  try {
    const std::filesystem::path folder = argv[1];
    record(folder / "table.pcap", Samples::playTable);
    record(folder / "lobby.pcap", Samples::playLobby);
    record(folder / "tournament.pcap", Samples::playTournament);
    return 0;
  } catch (const std::exception& failure) {
    std::cerr << "make_samples: " << failure.what() << '\n';
    return 1;
  }
}
