// Holds the notes of the card room's server and of its clients against each other: whatever the server sent has come to
// the user's thread once, in order and unchanged, all of it where the connection ended in order, and the first part
// where it was cut; and server and clients agree on every stack after every hand.

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <limits>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "../common/Ledger.h"

using namespace CardRoom;

namespace {

template <class Take>
void forEachEntry(const std::string& path, const Take& take) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error("cannot read " + path);
  LedgerEntry entry;
  while (file.read(reinterpret_cast<char*>(&entry), sizeof(entry))) take(entry);
}

class Check {
 public:
  void readServer(const std::string& path) {
    forEachEntry(path, [this](const LedgerEntry& entry) {
      Session& session = sessions_[entry.session];
      switch (entry.kind) {
        case LedgerEntry::MESSAGE:
          session.sent.emplace_back(entry.digest, entry.number);
          firstSent_ = std::min(firstSent_, entry.number);
          lastSent_ = std::max(lastSent_, entry.number);
          break;
        case LedgerEntry::HAND:
          hands_[entry.number] = entry.digest;
          break;
        case LedgerEntry::LIE:
          session.wasLiedTo = true;
          break;
        case LedgerEntry::COMPLETE:
          session.isComplete = true;
          break;
      }
    });
  }

  void readClient(const std::string& path) {
    forEachEntry(path, [this](const LedgerEntry& entry) {
      if (entry.kind == LedgerEntry::MESSAGE)
        checkMessage(entry);
      else
        checkHand(entry);
    });
  }

  /// Prints what was found, and answers whether it is in order.
  bool report() {
    std::size_t sent = 0;
    std::size_t cut = 0;
    for (const auto& [id, session] : sessions_) {
      sent += session.sent.size();
      cut += !session.isComplete && !session.sent.empty();
      if (session.isComplete && !session.hasFault && session.delivered != session.sent.size())
        fault("connection " + std::to_string(id) + ": " + std::to_string(session.delivered) + " of "
              + std::to_string(session.sent.size()) + " messages have come");
    }
    const std::int64_t milliseconds = std::max<std::int64_t>((lastSent_ - firstSent_) / 1'000'000, 1);
    const std::int64_t rate = static_cast<std::int64_t>(latencies_.size()) * 1000 / milliseconds;
    std::cout << "messages    " << sent << " sent, " << latencies_.size() << " delivered in order and unchanged, "
              << rate << " a second\n"
              << "connections " << cut << " cut\n"
              << "hands       " << hands_.size() << ", clients agreed " << agreed_ << " times, " << excused_
              << " times a client was told nonsense\n";
    printLatency();
    if (agreed_ == 0 || latencies_.empty()) fault("nothing was played");
    std::cout << (faults_ == 0 ? "in order\n" : std::to_string(faults_) + " faults\n");
    return faults_ == 0;
  }

 private:
  struct Session {
    std::vector<std::pair<std::uint64_t, std::int64_t>> sent;  ///< digests and times
    std::size_t delivered = 0;
    bool isComplete = false;
    bool wasLiedTo = false;
    bool hasFault = false;
  };

  void checkMessage(const LedgerEntry& entry) {
    Session& session = sessions_[entry.session];
    if (session.hasFault) return;
    const std::size_t number = session.delivered++;
    session.hasFault = number >= session.sent.size() || session.sent[number].first != entry.digest;
    if (session.hasFault)
      return fault("connection " + std::to_string(entry.session) + ": message " + std::to_string(number + 1)
                   + " is not what was sent");
    latencies_.push_back(entry.number - session.sent[number].second);
  }

  void checkHand(const LedgerEntry& entry) {
    const auto hand = hands_.find(entry.number);
    if (hand != hands_.end() && hand->second == entry.digest)
      ++agreed_;
    else if (sessions_[entry.session].wasLiedTo)
      ++excused_;
    else
      fault("connection " + std::to_string(entry.session) + ": the stacks after hand " + std::to_string(entry.number)
            + " are not the server's");
  }

  void printLatency() {
    if (latencies_.empty()) return;
    std::ranges::sort(latencies_);
    constexpr std::pair<const char*, double> PERCENTILES[] = {{"50", 0.5}, {"99", 0.99}, {"99.9", 0.999}};
    std::cout << "latency     ";
    for (const auto& [name, part] : PERCENTILES) {
      const auto at = static_cast<std::size_t>(static_cast<double>(latencies_.size() - 1) * part);
      std::cout << name << " %: " << static_cast<double>(latencies_[at]) / 1e6 << " ms  ";
    }
    std::cout << '\n';
  }

  void fault(const std::string& text) {
    constexpr int MOST_TOLD = 10;
    if (++faults_ <= MOST_TOLD) std::cout << text << '\n';
  }

  std::map<std::int32_t, Session> sessions_;
  std::map<std::int64_t, std::uint64_t> hands_;
  std::vector<std::int64_t> latencies_;
  std::int64_t firstSent_ = std::numeric_limits<std::int64_t>::max();
  std::int64_t lastSent_ = 0;
  std::size_t agreed_ = 0;
  std::size_t excused_ = 0;
  int faults_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "usage: card_room_check SERVER_LEDGER CLIENT_LEDGER...\n";
    return 2;
  }
  try {
    Check check;
    check.readServer(argv[1]);
    for (int i = 2; i < argc; ++i) check.readClient(argv[i]);
    return check.report() ? 0 : 1;
  } catch (const std::exception& failure) {
    std::cerr << "card_room_check: " << failure.what() << '\n';
    return 1;
  }
}
