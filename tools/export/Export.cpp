#include "Export.h"

#include <fcntl.h>
#include <herald/inspect/Json.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "DecodedPacket.h"
#include "Diagnostics.h"
#include "RowWriter.h"
#include "Terminal.h"

namespace Tessel {

namespace {

constexpr std::int64_t PACKETS_PER_TRANSACTION = 5000;

// A packet's key is given, so that those of several captures differ.
constexpr const char* COMMON_TABLES = R"---(
CREATE TABLE meta (
  version TEXT NOT NULL,                                -- of herald
  sources TEXT NOT NULL,                                -- the captures: an array in JSON
  has_secrets INTEGER NOT NULL CHECK (has_secrets IN (0, 1)),
  complete INTEGER NOT NULL CHECK (complete IN (0, 1))  -- whether every packet that was wanted is here
);
CREATE TABLE packets (
  packet_id INTEGER PRIMARY KEY,
  file TEXT NOT NULL,
  number INTEGER NOT NULL,                              -- in its file, counted from 1
  time_ns INTEGER NOT NULL,                             -- nanoseconds since 1970
  time TEXT NOT NULL,
  direction TEXT NOT NULL CHECK (direction IN ('fromServer', 'toServer')),
  id INTEGER NOT NULL,
  class TEXT,                                           -- the table that has its fields
  bytes INTEGER NOT NULL,
  bytes_read INTEGER NOT NULL,
  outcome TEXT NOT NULL,
  reason TEXT
);
CREATE INDEX "packets(class)" ON packets(class);
CREATE INDEX "packets(time_ns)" ON packets(time_ns);
CREATE TABLE value_names (
  table_name TEXT NOT NULL,
  column_name TEXT NOT NULL,
  value INTEGER NOT NULL,
  name TEXT NOT NULL,
  PRIMARY KEY (table_name, column_name, value)
) WITHOUT ROWID;
)---";

bool isSameFile(const std::string& one, const std::string& other) {
  std::error_code error;
  return std::filesystem::equivalent(one, other, error);
}

// Makes room for an empty file, but never at the cost of a capture that is to be read.
void removeOld(const ExportOptions& options, const std::vector<std::string>& sources) {
  const std::string& file = options.database;
  const std::filesystem::file_status status = std::filesystem::symlink_status(file);
  if (!std::filesystem::exists(status)) return;
  for (const std::string& source : sources)
    if (isSameFile(source, file)) throw DatabaseError(file + ": is one of the captures");
  if (!options.replaces) throw DatabaseError(file + ": exists; --force replaces it");
  if (!std::filesystem::is_regular_file(status)) throw DatabaseError(file + ": is no regular file");
  for (const char* suffix : {"", "-journal", "-wal", "-shm"}) std::filesystem::remove(file + suffix);
}

Database createDatabase(const ExportOptions& options, const std::vector<std::string>& sources) {
  removeOld(options, sources);
  const int descriptor = open(options.database.c_str(), O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0666);
  if (descriptor < 0) throw DatabaseError(options.database + ": " + std::generic_category().message(errno));
  close(descriptor);
  return Database(options.database);
}

std::string jsonArray(const std::vector<std::string>& texts) {
  std::string array = "[";
  for (const std::string& text : texts) {
    if (&text != &texts.front()) array += ',';
    appendJsonString(text, array);
  }
  return array += ']';
}

// Fills a new database, some thousand packets a transaction.
class Exporter {
 public:
  Exporter(Database& database, const CaptureCall& call, const ExportOptions& options, Diagnostics& diagnostics)
      : options_(options), tables_(Schema::ofProtocol()), database_(database), insertion_(prepare(call)),
        rows_(tables_, database, options.secrets), sink_(std::make_shared<PacketReportSink>(diagnostics)),
        installed_(sink_) {}

  void add(const std::string& file, const Packet& packet) {
    if (!options_.filter.wants(packet)) return;
    sink_->setPacket(packet.number);
    const DecodedPacket decoded(packet);
    if (!options_.filter.wants(decoded)) return;
    addPacket(file, decoded);
    if (const auto object = decoded.object()) rows_.write(packetId_, *object);
    if (packetId_ % PACKETS_PER_TRANSACTION == 0) database_.execute("COMMIT; BEGIN");
  }

  void finish(bool isComplete) {
    if (isComplete) database_.execute("UPDATE meta SET complete = 1");
    database_.execute("COMMIT");
  }

 private:
  // Makes the tables, and answers the statement that adds a packet.
  Statement prepare(const CaptureCall& call) {
    database_.execute("BEGIN");
    database_.execute(COMMON_TABLES + tables_.definitions());
    Statement meta = database_.prepare("INSERT INTO meta VALUES (?, ?, ?, 0)");
    const std::string sources = jsonArray(call.files);
    meta.bind(1, std::string_view(HERALD_VERSION));
    meta.bind(2, std::string_view(sources));
    meta.bind(3, options_.secrets == Secrets::SHOWN ? 1 : 0);
    meta.run();
    Statement name = database_.prepare("INSERT INTO value_names VALUES (?, ?, ?, ?)");
    for (const Tables::ValueName& valueName : tables_.valueNames()) {
      name.bind(1, valueName.table);
      name.bind(2, valueName.column);
      name.bind(3, valueName.value);
      name.bind(4, valueName.name);
      name.run();
    }
    // From here on an interrupted export has every table.
    database_.execute("COMMIT; BEGIN");
    return database_.prepare("INSERT INTO packets VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
  }

  void addPacket(const std::string& file, const DecodedPacket& decoded) {
    const Packet& packet = decoded.packet();
    time_.clear();
    appendIsoTime(packet.time, packet.precision, time_);
    insertion_.bind(1, ++packetId_);
    insertion_.bind(2, std::string_view(file));
    insertion_.bind(3, static_cast<std::int64_t>(packet.number));
    insertion_.bind(4, packet.time);
    insertion_.bind(5, std::string_view(time_));
    insertion_.bind(6, nameOf(packet.direction));
    insertion_.bind(7, std::int64_t{packet.id});
    bindOrNull(8, decoded.className());
    insertion_.bind(9, static_cast<std::int64_t>(packet.body.size()));
    insertion_.bind(10, static_cast<std::int64_t>(decoded.bytesRead()));
    insertion_.bind(11, nameOf(decoded.outcome()));
    bindOrNull(12, decoded.reason());
    insertion_.run();
  }

  void bindOrNull(int index, std::string_view text) {
    if (text.empty())
      insertion_.bindNull(index);
    else
      insertion_.bind(index, text);
  }

  const ExportOptions& options_;
  Tables tables_;
  Database& database_;
  Statement insertion_;
  RowWriter rows_;
  std::int64_t packetId_ = 0;
  std::string time_;
  std::shared_ptr<PacketReportSink> sink_;
  WithReportSink installed_;
};

}  // namespace

bool exportCaptures(const CaptureCall& call, const ExportOptions& options, Output& output, Diagnostics& diagnostics) {
  Database database = createDatabase(options, call.files);
  diagnostics.expectNoOutput();
  Exporter exporter(database, call, options, diagnostics);
  const bool isSound = visitPackets(call, output, diagnostics,
                                    [&](const std::string& file, const Packet& packet) { exporter.add(file, packet); });
  exporter.finish(isSound);
  return isSound;
}

}  // namespace Tessel
