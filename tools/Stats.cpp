#include "Stats.h"

#include <herald/inspect/Requests.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>
#include <herald/platform/keystone/ByteStream.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <iomanip>
#include <map>
#include <sstream>
#include <utility>
#include <vector>

#include "Capture.h"
#include "Diagnostics.h"
#include "Output.h"

namespace Tessel {

namespace {

constexpr std::string_view WHAT_IS_MEASURED = R"(
The time is that of the library alone, once for each message from a server:
making, reading and destroying it, and making the reports about those that fail.
Reading the file and counting are not in it. MB are millions of bytes of bodies.
)";

struct Counts {
  std::uint64_t count = 0;
  std::uint64_t bytes = 0;
  std::uint64_t failures = 0;

  void add(const Counts& other) {
    count += other.count;
    bytes += other.bytes;
    failures += other.failures;
  }
};

Counts countOf(const Packet& request) {
  ByteStream body = ByteStream::view(request.body);
  const bool hasFailed = isFailure(decodeRequest(request.id, body).outcome) || body.unreadCount() > 0;
  return {1, request.body.size(), hasFailed ? 1u : 0u};
}

// Decodes messages in batches, so that the clock is read once per batch, and keeps no more than a batch.
class TimedDecoder {
 public:
  void add(int id, std::span<const std::uint8_t> body) {
    batch_.push_back({id, ByteStream(body)});
    bytes_ += body.size();
    if (batch_.size() == BATCH_SIZE || bytes_ >= BATCH_BYTES) decodeBatch();
  }

  void decodeBatch() {
    const auto start = Clock::now();
    for (Item& item : batch_) item.outcome = ClientMessageFactory::decode(item.id, item.body).outcome;
    time_ += Clock::now() - start;
    for (const Item& item : batch_)
      counts_[item.id].add({1, item.body.bytes().size(), isFailure(item.outcome) ? 1u : 0u});
    batch_.clear();
    bytes_ = 0;
  }

  const std::map<int, Counts>& counts() const { return counts_; }
  double seconds() const { return std::chrono::duration<double>(time_).count(); }

 private:
  using Clock = std::chrono::steady_clock;

  static constexpr std::size_t BATCH_SIZE = 1024;
  static constexpr std::size_t BATCH_BYTES = 1 << 20;

  struct Item {
    int id = 0;
    ByteStream body;
    DecodeOutcome outcome = DecodeOutcome::DECODED;
  };

  std::vector<Item> batch_;
  std::size_t bytes_ = 0;
  std::map<int, Counts> counts_;
  Clock::duration time_{};
};

using NamedCounts = std::pair<std::string, Counts>;

// A row of texts; the first column stands left, the others right.
using Row = std::vector<std::string>;

std::string nameOr(std::string_view className, const char* what, int id) {
  return className.empty() ? "(" + std::string(what) + " " + std::to_string(id) + ")" : std::string(className);
}

std::string messageName(int id) {
  const ClientMessageRow* row = findClientMessageRow(id);
  return row != nullptr ? nameOr(row->name, "no message for id", id) : nameOr("", "unknown id", id);
}

std::string requestName(int id) {
  const ServerMessageRow* row = findServerMessageRow(id);
  return nameOr(row != nullptr ? row->name : "", "unknown id", id);
}

// Class by class, the one with the most bytes first.
std::vector<NamedCounts> byClass(const std::map<int, Counts>& byId, std::string (*nameOf)(int id)) {
  std::map<std::string, Counts> classes;
  for (const auto& [id, counts] : byId) classes[nameOf(id)].add(counts);
  std::vector<NamedCounts> sorted(classes.begin(), classes.end());
  std::ranges::stable_sort(sorted, std::ranges::greater(), [](const NamedCounts& row) { return row.second.bytes; });
  return sorted;
}

Counts totalOf(const std::map<int, Counts>& byId) {
  Counts total;
  for (const auto& [id, counts] : byId) total.add(counts);
  return total;
}

std::string withDecimals(double value, int decimals) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(decimals) << value;
  return text.str();
}

Row rowOf(const std::string& name, const Counts& counts, std::uint64_t allBytes) {
  const double share = allBytes == 0 ? 0 : 100.0 * static_cast<double>(counts.bytes) / static_cast<double>(allBytes);
  return {name, std::to_string(counts.count), std::to_string(counts.bytes), withDecimals(share, 1) + "%",
          std::to_string(counts.failures)};
}

std::string align(const std::vector<Row>& rows) {
  std::vector<std::size_t> widths(rows.front().size());
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  std::string text;
  for (const Row& row : rows) {
    text += row[0] + std::string(widths[0] - row[0].size(), ' ');
    for (std::size_t i = 1; i < row.size(); ++i) text += std::string(widths[i] - row[i].size() + 2, ' ') + row[i];
    text += '\n';
  }
  return text;
}

std::string tableOf(const std::string& heading, const std::map<int, Counts>& byId, std::string (*nameOf)(int id)) {
  const Counts total = totalOf(byId);
  std::vector<Row> rows{{heading, "count", "bytes", "share", "failures"}};
  for (const auto& [name, counts] : byClass(byId, nameOf)) rows.push_back(rowOf(name, counts, total.bytes));
  rows.push_back(rowOf("Total", total, total.bytes));
  return align(rows);
}

std::string throughputOf(const TimedDecoder& decoder) {
  const Counts total = totalOf(decoder.counts());
  const double seconds = decoder.seconds();
  std::string text = "Decoding took " + withDecimals(seconds, 6) + " s";
  if (seconds > 0) {
    text += ": " + withDecimals(static_cast<double>(total.count) / seconds, 0) + " messages/s, "
            + withDecimals(static_cast<double>(total.bytes) / seconds / 1e6, 1) + " MB/s";
  }
  return text.append(".\n").append(WHAT_IS_MEASURED);
}

}  // namespace

bool printStats(const CaptureCall& call, const PacketFilter& filter, Output& output, Diagnostics& diagnostics) {
  const WithReportSink quiet(std::make_shared<SilentReportSink>());
  TimedDecoder decoder;
  std::map<int, Counts> requests;
  const bool isSound = visitPackets(call, output, diagnostics, [&](const std::string&, const Packet& packet) {
    if (!filter.wants(packet) || (filter.where && !filter.wants(DecodedPacket(packet)))) return;
    if (packet.direction == Direction::FROM_SERVER)
      decoder.add(packet.id, packet.body);
    else
      requests[packet.id].add(countOf(packet));
  });
  decoder.decodeBatch();

  output.write(tableOf("MESSAGES FROM SERVERS", decoder.counts(), messageName) + '\n');
  output.write(tableOf("REQUESTS TO SERVERS", requests, requestName) + '\n');
  output.write(throughputOf(decoder));
  return isSound;
}

}  // namespace Tessel
