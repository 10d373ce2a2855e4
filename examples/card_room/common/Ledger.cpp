#include "Ledger.h"

#include <chrono>
#include <stdexcept>

namespace CardRoom {

namespace {

/// FNV-1a.
class Digest {
 public:
  void add(std::uint8_t byte) { value_ = (value_ ^ byte) * 0x100000001B3; }
  void add(std::int64_t number) {
    for (int shift = 0; shift < 64; shift += 8) add(static_cast<std::uint8_t>(number >> shift));
  }
  std::uint64_t value() const { return value_; }

 private:
  std::uint64_t value_ = 0xCBF29CE484222325;
};

}  // namespace

Ledger::Ledger(const std::string& file) : file_(file, std::ios::binary | std::ios::trunc) {
  if (!file_) throw std::runtime_error("cannot write " + file);
}

void Ledger::message(int session, std::string_view messageClass, std::span<const std::uint8_t> body) {
  Digest digest;
  for (const char letter : messageClass) digest.add(static_cast<std::uint8_t>(letter));
  for (const std::uint8_t byte : body) digest.add(byte);
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  write({LedgerEntry::MESSAGE, session, digest.value(),
         std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()});
}

void Ledger::hand(int session, int number, const std::map<int, std::int64_t>& stacks) {
  Digest digest;
  for (const auto& [player, stack] : stacks) {
    digest.add(std::int64_t{player});
    digest.add(stack);
  }
  write({LedgerEntry::HAND, session, digest.value(), number});
}

void Ledger::lie(int session) { write({LedgerEntry::LIE, session}); }

void Ledger::complete(int session) { write({LedgerEntry::COMPLETE, session}); }

void Ledger::write(const LedgerEntry& entry) { file_.write(reinterpret_cast<const char*>(&entry), sizeof(entry)); }

}  // namespace CardRoom
