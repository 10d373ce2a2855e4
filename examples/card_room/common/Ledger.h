#pragma once
#include <cstdint>
#include <fstream>
#include <map>
#include <span>
#include <string>
#include <string_view>

namespace CardRoom {

/// A line of a ledger.
struct LedgerEntry {
  enum Kind : std::int32_t {
    MESSAGE,   ///< The server has sent it, or the client's user thread has got it: its digest and when.
    HAND,      ///< A hand is over: the digest of all stacks at the table, and the hand's number.
    LIE,       ///< The server has sent a message that it had damaged and that still can be read.
    COMPLETE,  ///< The server has ended the connection in order: all that it sent must arrive.
  };

  Kind kind = MESSAGE;
  std::int32_t session = 0;
  std::uint64_t digest = 0;
  /// Nanoseconds of the machine's steady clock, or the number of the hand.
  std::int64_t number = 0;
};

/// What a program of the card room notes of its connections, so that afterwards the server's and the clients' notes can
/// be held against each other. For one thread.
class Ledger {
 public:
  explicit Ledger(const std::string& file);

  void message(int session, std::string_view messageClass, std::span<const std::uint8_t> body);
  /// The stacks by the players' ids. The server names no session.
  void hand(int session, int number, const std::map<int, std::int64_t>& stacks);
  void lie(int session);
  void complete(int session);

 private:
  void write(const LedgerEntry& entry);

  std::ofstream file_;
};

}  // namespace CardRoom
