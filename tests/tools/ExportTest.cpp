#include <gtest/gtest.h>
#include <herald/herald.h>
#include <herald/inspect/FieldList.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>
#include <thread>

#include "RunCommand.h"

namespace Tessel {
namespace {

// By column; no value for NULL.
using Row = std::map<std::string, std::optional<std::string>>;

class Db {
 public:
  explicit Db(const std::string& file) {
    EXPECT_EQ(sqlite3_open_v2(file.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr), SQLITE_OK) << file;
    sqlite3_busy_timeout(handle_, 10'000);
  }
  ~Db() { sqlite3_close(handle_); }
  Db(const Db&) = delete;
  Db& operator=(const Db&) = delete;

  void script(const std::string& sql) {
    EXPECT_EQ(sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(handle_);
  }

  // As sqlite3 prints them, a line for each row.
  std::string lines(const std::string& sql) {
    std::string text;
    each(sql, [&](sqlite3_stmt* row) {
      for (int i = 0; i < sqlite3_column_count(row); ++i) text += (i > 0 ? "|" : "") + valueOf(row, i).value_or("");
      text += '\n';
    });
    return text;
  }

  std::vector<Row> rows(const std::string& sql) {
    std::vector<Row> rows;
    each(sql, [&](sqlite3_stmt* row) {
      Row& columns = rows.emplace_back();
      for (int i = 0; i < sqlite3_column_count(row); ++i) columns[sqlite3_column_name(row, i)] = valueOf(row, i);
    });
    return rows;
  }

  std::string soundness() { return lines("PRAGMA integrity_check") + lines("PRAGMA foreign_key_check"); }

 private:
  static std::optional<std::string> valueOf(sqlite3_stmt* row, int column) {
    if (sqlite3_column_type(row, column) == SQLITE_NULL) return std::nullopt;
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
    return std::string(text, static_cast<std::size_t>(sqlite3_column_bytes(row, column)));
  }

  template <class Visit>
  void each(const std::string& sql, const Visit& visit) {
    sqlite3_stmt* statement = nullptr;
    ASSERT_EQ(sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr), SQLITE_OK) << sqlite3_errmsg(handle_);
    int result = sqlite3_step(statement);
    for (; result == SQLITE_ROW; result = sqlite3_step(statement)) visit(statement);
    EXPECT_EQ(result, SQLITE_DONE) << sqlite3_errmsg(handle_);
    sqlite3_finalize(statement);
  }

  sqlite3* handle_ = nullptr;
};

std::string quoted(const std::string& name) { return '"' + name + '"'; }

// What identifies a row, and is no value of a field.
const std::set<std::string> KEYS{"row_id", "packet_id", "owner_id", "parent_id", "parent_field", "item_index"};

// Finds each field of messages in a database, by its path alone and without what the exporter knows of layouts.
class Finder {
 public:
  explicit Finder(Db& db) : db_(db) {
    for (const Row& row : db.rows("SELECT name FROM sqlite_master WHERE type = 'table'"))
      tables_.insert(row.at("name").value());
  }

  void compare(int packet, const std::string& className, const FieldList& fields) {
    const std::string id = std::to_string(packet);
    const std::vector<Row> rows = db_.rows("SELECT * FROM " + quoted(className) + " WHERE packet_id = " + id);
    ASSERT_EQ(rows.size(), 1u);
    fields_ = &fields;
    packet_ = id;
    children_.assign(fields.size() + 1, {});
    for (std::size_t i = 0; i < fields.size(); ++i) children_[fields[i].parent + 1].push_back(i);
    compareChildren(0, {className, rows.front(), ""});
  }

  // The values in all tables of messages, which must not be more than what was compared.
  std::size_t cells() {
    std::size_t count = 0;
    for (const std::string& table : tables_) {
      if (table == "packets" || table == "meta" || table == "value_names") continue;
      for (const Row& row : db_.rows("SELECT * FROM " + quoted(table)))
        for (const auto& [name, value] : row) count += value && !KEYS.contains(name) ? 1 : 0;
    }
    return count;
  }

  std::size_t compared = 0;

 private:
  struct Place {
    std::string table;
    Row row;
    std::string prefix;
  };

  void compareChildren(std::size_t ofNext, const Place& place) {
    for (const std::size_t i : children_[ofNext]) compareField(i, place, (*fields_)[i].name);
  }

  void expectValue(const Place& place, const std::string& column, const Field& field) {
    const std::string expected = field.type == WireType::BOOL ? (field.value == "true" ? "1" : "0") : field.value;
    const auto value = place.row.find(column);
    ASSERT_NE(value, place.row.end()) << place.table << '.' << column;
    EXPECT_EQ(value->second, expected) << place.table << '.' << column << " of packet " << packet_;
    ++compared;
  }

  void compareField(std::size_t index, const Place& place, const std::string& name) {
    const Field& field = (*fields_)[index];
    const std::string table = place.table + "_" + place.prefix + name;
    switch (field.kind) {
      case FieldKind::NUMBER:
      case FieldKind::TEXT:
        return expectValue(place, place.prefix + name, field);
      case FieldKind::RECORD:
        if (tables_.contains(table)) return compareChildren(index + 1, {table, child(table, place, 0), ""});
        return compareChildren(index + 1, {place.table, place.row, place.prefix + name + "_"});
      case FieldKind::LIST:
        break;
    }
    expectValue(place, place.prefix + name + "_count", field);
    std::size_t item = 0;
    for (const std::size_t i : children_[index + 1]) compareItem(i, place, table, item++);
  }

  void compareItem(std::size_t index, const Place& place, const std::string& list, std::size_t item) {
    const Field& field = (*fields_)[index];
    std::string table = list;
    if (!tables_.contains(table)) table += "_" + field.value;
    if (!tables_.contains(table)) table = place.table;  // the node of a tree
    const Place own{table, child(table, place, item), ""};
    if (field.kind == FieldKind::RECORD) return compareChildren(index + 1, own);
    expectValue(own, "value", field);
  }

  Row child(const std::string& table, const Place& holder, std::size_t item) {
    std::string sql = "SELECT * FROM " + quoted(table) + " WHERE packet_id = " + packet_
                      + " AND item_index = " + std::to_string(item);
    const auto id = holder.row.find("row_id");
    if (table == holder.table)
      sql += " AND parent_id = " + id->second.value();
    else if (db_.lines("SELECT 1 FROM pragma_table_info(" + quoted(table) + ") WHERE name = 'parent_id'") == "1\n")
      sql += " AND parent_id IS NULL";
    if (table != holder.table && id != holder.row.end()) sql += " AND owner_id = " + id->second.value();
    const std::vector<Row> rows = db_.rows(sql);
    EXPECT_EQ(rows.size(), 1u) << sql;
    return rows.empty() ? Row() : rows.front();
  }

  Db& db_;
  std::set<std::string> tables_;
  const FieldList* fields_ = nullptr;
  std::string packet_;
  // By the index of the field that holds them and 1 more.
  std::vector<std::vector<std::size_t>> children_;
};

// A database of captures, gone with the test.
class Exported {
 public:
  explicit Exported(const std::string& capture, const std::string& options = "") {
    std::remove(file.c_str());
    const Outcome outcome = run("export " + options + " - " + file, capture);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.out, "");
  }
  ~Exported() { std::remove(file.c_str()); }
  Exported(const Exported&) = delete;
  Exported& operator=(const Exported&) = delete;

  const std::string file = temporary("exported.db");
};

std::string sampleOf(const std::string& name) { return contentOf(HERALD_SAMPLES_DIR "/" + name + ".pcap"); }

// Of a capture with the low byte first.
std::vector<std::string> payloadsOf(const std::string& capture) {
  std::vector<std::string> payloads;
  for (std::size_t at = 24; at < capture.size();) {
    std::uint32_t size = 0;
    capture.copy(reinterpret_cast<char*>(&size), sizeof(size), at + 8);
    payloads.push_back(capture.substr(at + 16, size));
    at += 16 + size;
  }
  return payloads;
}

int compareAll(const std::string& capture, Secrets secrets, Finder& finder) {
  int packets = 0;
  for (const std::string& payload : payloadsOf(capture)) {
    ++packets;
    const int id =
        static_cast<std::int16_t>(static_cast<std::uint8_t>(payload[1]) << 8 | static_cast<std::uint8_t>(payload[2]));
    const bool isRequest = payload[0] == 1;
    const std::string body = payload.substr(isRequest ? 5 : 3);
    ByteStream stream(std::span(reinterpret_cast<const std::uint8_t*>(body.data()), body.size()));
    if (isRequest) {
      const DecodedRequest decoded = decodeRequest(id, stream);
      const Inspectable object = *decoded.request;
      finder.compare(packets, std::string(object.className()), FieldList(object, secrets));
    } else {
      const DecodedMessage decoded = ClientMessageFactory::decode(id, stream);
      const Inspectable object = *decoded.message;
      finder.compare(packets, std::string(object.className()), FieldList(object, secrets));
    }
  }
  return packets;
}

// Trees within lists of more than one class, lists within lists, negative counts and texts with anything in them.
const char* const ODD_MESSAGES = R"({"class":"VIPInfo","body":{"type":"com.tessel.shared.info.TreeNodeInfo","elements":[
  {"id":1,"subNodes":[{"id":2,"subNodes":[{"id":3},{"id":4}]},{"id":5}]},{"id":6,"subNodes":[{"id":7}]}]}}
{"class":"VIPInfo","body":{"type":"com.tessel.games.poker4.shared.info.CreditInfo","elements":[{"seat":1},{"seat":2}]}}
{"class":"TournamentCreationRulesReply","body":{"gameTypes":[{"seats":[{"numSeats":2}]},{"seats":[]},{"seats":[
  {"numSeats":6},{"numSeats":9}]}],"languages":["","a'b\"c","nul\u0000nul","🃏"]}}
{"class":"AdminNotificationMsg","notification":"'); DROP TABLE packets; --"}
)";

std::string oddCapture() {
  const std::string joined = std::regex_replace(std::string(ODD_MESSAGES), std::regex("\n +"), "");
  const Outcome encoded = run("encode -o - FILE", joined);
  EXPECT_EQ(encoded.status, 0) << encoded.err;
  return encoded.out;
}

TEST(ExportTest, TheDatabaseHoldsEveryField) {
  const std::pair<std::string, std::string> captures[] = {{"table", sampleOf("table")},
                                                          {"lobby", sampleOf("lobby")},
                                                          {"tournament", sampleOf("tournament")},
                                                          {"odd", oddCapture()}};
  for (const auto& [name, capture] : captures) {
    for (const Secrets secrets : {Secrets::MASKED, Secrets::SHOWN}) {
      SCOPED_TRACE(name);
      const Exported exported(capture, secrets == Secrets::SHOWN ? "--secrets" : "");
      Db db(exported.file);
      EXPECT_EQ(db.soundness(), "ok\n");
      Finder finder(db);
      const int packets = compareAll(capture, secrets, finder);
      EXPECT_GT(finder.compared, 0u);
      EXPECT_EQ(finder.cells(), finder.compared);
      RecordProperty(name, static_cast<int>(finder.compared));
      EXPECT_EQ(db.lines("SELECT count(*), complete, has_secrets FROM packets, meta"),
                std::to_string(packets) + "|1|" + (secrets == Secrets::SHOWN ? "1\n" : "0\n"));
    }
  }
}

TEST(ExportTest, ThePacketsAreThoseThatAreDecoded) {
  const std::string odd = capture({"\0\2\x58"s, "\0\0\x0C\0\0"s, "\0\x01\x5Fx"s, "\x01\0\x82\0\1x"s, BET_DONE, SIT_IN});
  for (const std::string& file : {sampleOf("table"), odd}) {
    const Exported exported(file);
    std::string expected;
    std::istringstream lines(run("decode --json FILE", file).out);
    for (std::string line; std::getline(lines, line);) {
      const auto json = nlohmann::json::parse(line);
      const auto text = [&](const char* name) {
        return json.contains(name) && json[name].is_string() ? json[name].get<std::string>() : "";
      };
      expected += std::to_string(json["packet"].get<int>()) + "|" + text("time") + "|" + text("direction") + "|"
                  + std::to_string(json["id"].get<int>()) + "|" + text("class") + "|"
                  + std::to_string(json["bytes"].get<int>()) + "|" + std::to_string(json["bytesRead"].get<int>()) + "|"
                  + text("outcome") + "|" + text("reason") + "\n";
    }
    Db db(exported.file);
    EXPECT_EQ(db.lines("SELECT number, time, direction, id, class, bytes, bytes_read, outcome, reason FROM packets"),
              expected);
    EXPECT_EQ(db.lines("SELECT count(*) FROM packets WHERE file <> '-' OR substr(time, 1, 19) <> "
                       "strftime('%Y-%m-%dT%H:%M:%S', time_ns / 1000000000, 'unixepoch')"),
              "0\n");
  }
}

TEST(ExportTest, ReplacesNothingUnlessItIsTold) {
  const Exported exported(capture({BET_DONE}));
  const std::string before = contentOf(exported.file);
  const std::string file = " " + exported.file;
  EXPECT_EQ(run("export FILE" + file, capture({SIT_IN})).status, 1);
  EXPECT_EQ(contentOf(exported.file), before);
  const Outcome both = run("export --force FILE FILE" + file, capture({SIT_IN, BET_DONE}));
  EXPECT_EQ(both.status, 0) << both.err;
  EXPECT_EQ(Db(exported.file).lines("SELECT packet_id, number, class FROM packets"),
            "1|1|ServerSitIn\n2|2|ClientBetDone\n3|1|ServerSitIn\n4|2|ClientBetDone\n");
  EXPECT_EQ(Db(exported.file).lines("SELECT json_array_length(sources) FROM meta"), "2\n");
  EXPECT_EQ(run("export --force --class 'Client*' FILE" + file, capture({SIT_IN, BET_DONE})).status, 0);
  EXPECT_EQ(Db(exported.file).lines("SELECT class FROM packets"), "ClientBetDone\n");
  const std::string kept = temporary("kept.pcap");
  std::ofstream(kept, std::ios::binary) << capture({BET_DONE});
  EXPECT_EQ(run("export --force " + kept + " " + kept).status, 1);
  EXPECT_EQ(contentOf(kept), capture({BET_DONE}));
  std::remove(kept.c_str());
  EXPECT_EQ(run("export FILE").status, 2);
  EXPECT_EQ(run("export FILE /no/such/folder/x.db", capture({})).status, 1);
}

TEST(ExportTest, ADamagedCaptureIsNotComplete) {
  std::string cut = capture({BET_DONE, BET_DONE});
  cut.pop_back();
  const std::string file = temporary("cut.db");
  EXPECT_EQ(run("export FILE " + file, cut).status, 1);
  EXPECT_EQ(Db(file).lines("SELECT count(*), complete FROM packets, meta"), "1|0\n");
  std::remove(file.c_str());
}

// Killed while it waits for the rest of a long capture, behind thousands of packets.
TEST(ExportTest, AnInterruptedExportIsSoundAndSaysSo) {
  const std::string file = temporary("killed.db");
  const std::string pipe = temporary("killed.pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  const pid_t child = fork();
  if (child == 0) {
    execl(HERALD_COMMAND, HERALD_COMMAND, "export", pipe.c_str(), file.c_str(), nullptr);
    _exit(127);
  }
  ASSERT_GT(child, 0);
  std::ofstream input(pipe, std::ios::binary);
  const std::string table = sampleOf("table");
  input << table.substr(0, 24);
  const std::size_t perTable = payloadsOf(table).size();
  std::size_t written = 0;
  for (; written < 12'000; written += perTable) input << table.substr(24);
  input << std::flush;
  for (int i = 0; i < 200 && Db(file).lines("SELECT count(*) >= 10000 FROM packets") != "1\n"; ++i)
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
  ASSERT_EQ(kill(child, SIGKILL), 0);
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFSIGNALED(status));
  {
    Db db(file);
    EXPECT_EQ(db.soundness(), "ok\n");
    EXPECT_EQ(db.lines("SELECT complete FROM meta"), "0\n");
    const std::size_t packets = std::stoul(db.lines("SELECT count(*) FROM packets"));
    EXPECT_GE(packets, 10'000u);
    EXPECT_LT(packets, written);
    EXPECT_EQ(db.lines("SELECT count(*) FROM packets WHERE class = 'ClientBetDone'"),
              db.lines("SELECT count(*) FROM ClientBetDone"));
  }
  for (const std::string& used : {file, file + "-journal", pipe}) std::remove(used.c_str());
}

std::vector<std::string> blocksOf(const std::string& page, const std::string& language) {
  std::vector<std::string> blocks;
  const std::regex block("```" + language + "\n([^`]*)```");
  for (std::sregex_iterator found(page.begin(), page.end(), block), end; found != end; ++found)
    blocks.push_back((*found)[1]);
  return blocks;
}

// What the page asks, from the messages.
struct Answers {
  std::map<std::pair<int, std::string>, int> won;
  std::map<int, int> pots;
  std::map<std::string, std::vector<double>> seconds;
};

double secondsOf(const nlohmann::json& line) {
  const std::string time = line["time"];
  return std::stoi(time.substr(11, 2)) * 3600 + std::stoi(time.substr(14, 2)) * 60 + std::stod(time.substr(17, 9));
}

Answers answersOf(const std::string& jsonLines) {
  Answers answers;
  std::map<int, std::string> names;
  std::map<int, double> asked;
  int hand = 0;
  std::istringstream lines(jsonLines);
  for (std::string text; std::getline(lines, text);) {
    const auto line = nlohmann::json::parse(text);
    if (!line["class"].is_string()) continue;
    const std::string name = line["class"];
    const auto& message = line["message"];
    if (name == "GameStateInfoMsg") {
      for (const auto& player : message["body"]["players"])
        names[player["player"]["id"]] = player["player"]["nickName"];
    } else if (name == "PlayerSatDown") {
      names[message["body"]["player"]["id"]] = message["body"]["player"]["nickName"];
    } else if (name == "ClientNewRound") {
      hand = message["body"]["handNumber"];
    } else if (name == "ClientBetsToPot" || name == "ClientBetDeadDone") {
      answers.pots[hand] += message["body"]["amount"].get<int>();
    } else if (name == "ClientWin") {
      for (const auto& pot : message["pots"])
        if (pot["potType"] != 4)
          answers.won[{hand, names[pot["credit"]["playerId"]]}] += pot["credit"]["amount"].get<int>();
    } else if (name.starts_with("ClientBet") && name.ends_with("Req")) {
      asked.clear();
      if (name == "ClientBetReq")
        for (const int seat : message["body"]["requestedSeats"]) asked[seat] = secondsOf(line);
    } else if (name == "ClientBetDone" && asked.contains(message["body"]["seat"])) {
      answers.seconds[names[message["body"]["playerId"]]].push_back(secondsOf(line) - asked[message["body"]["seat"]]);
    }
  }
  return answers;
}

std::vector<std::vector<std::string>> cellsOf(const std::string& lines) {
  std::vector<std::vector<std::string>> cells;
  std::istringstream stream(lines);
  for (std::string line; std::getline(stream, line);) {
    std::istringstream row(line);
    auto& last = cells.emplace_back();
    for (std::string cell; std::getline(row, cell, '|');) last.push_back(cell);
  }
  return cells;
}

TEST(ExportTest, TheQueriesOfThePageAnswerWhatTheHandsGive) {
  const std::string page = contentOf(HERALD_SOURCE_DIR "/docs/sql.md");
  const std::vector<std::string> queries = blocksOf(page, "sql");
  const std::vector<std::string> printed = blocksOf(page, "text");
  ASSERT_EQ(queries.size(), 4u);
  ASSERT_EQ(printed.size(), 3u);
  const Exported exported(sampleOf("table"));
  Db db(exported.file);
  db.script(queries[0]);
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(db.lines(queries[i + 1]), printed[i]);

  const Answers answers = answersOf(run("decode --json FILE", sampleOf("table")).out);
  std::map<std::pair<int, std::string>, int> won;
  for (const auto& row : cellsOf(printed[0])) won[{std::stoi(row[0]), row[1]}] = std::stoi(row[2]);
  EXPECT_FALSE(won.empty());
  EXPECT_EQ(won, answers.won);

  std::size_t players = 0;
  for (const auto& row : cellsOf(printed[1])) {
    const std::vector<double>& seconds = answers.seconds.at(row[0]);
    EXPECT_EQ(std::stoul(row[1]), seconds.size()) << row[0];
    double sum = 0;
    for (const double second : seconds) sum += second;
    EXPECT_NEAR(std::stod(row[2]), sum / static_cast<double>(seconds.size()), 0.001) << row[0];
    EXPECT_NEAR(std::stod(row[3]), *std::ranges::max_element(seconds), 0.001) << row[0];
    ++players;
  }
  EXPECT_EQ(players, answers.seconds.size());

  // What went into the pot is what came out of it, and the rake.
  std::vector<std::pair<int, int>> pots;
  for (const auto& [hand, pot] : answers.pots) pots.emplace_back(-pot, hand);
  std::ranges::sort(pots);
  const auto biggest = cellsOf(printed[2]);
  ASSERT_EQ(biggest.size(), 3u);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(std::stoi(biggest[i][0]), pots[i].second);
    EXPECT_EQ(std::stoi(biggest[i][1]), -pots[i].first);
  }
}

// What the page says of JSON lines.
TEST(ExportTest, LinesOfSeveralCapturesAreThoseOfEach) {
  std::string apart;
  for (const char* name : {"table", "lobby", "tournament"})
    apart += run("decode --json " HERALD_SAMPLES_DIR "/"s + name + ".pcap").out;
  const std::string together = run("decode --json " HERALD_SAMPLES_DIR "/table.pcap " HERALD_SAMPLES_DIR
                                   "/lobby.pcap " HERALD_SAMPLES_DIR "/tournament.pcap")
                                   .out;
  EXPECT_EQ(std::regex_replace(together, std::regex("(^|\n)\\{\"file\":\"[^\"]*\","), "$1{"), apart);

  const Exported exported(sampleOf("table"));
  Db db(exported.file);
  db.script("CREATE TEMP TABLE lines (line TEXT)");
  std::istringstream lines(run("decode --json FILE", sampleOf("table")).out);
  std::size_t count = 0;
  for (std::string line; std::getline(lines, line); ++count)
    db.script("INSERT INTO lines VALUES ('" + std::regex_replace(line, std::regex("'"), "''") + "')");
  EXPECT_GT(count, 0u);
  const std::string columns = "SELECT group_concat(key || ' ' || type) FROM json_each(line)";
  EXPECT_EQ(db.lines("SELECT DISTINCT (" + columns + ") FROM lines"),
            "packet integer,time text,direction text,id integer,class text,outcome text,bytesRead integer,"
            "bytes integer,message object\n");
  EXPECT_EQ(db.lines("SELECT sum(json_extract(pot.value, '$.credit.amount')) FROM lines, "
                     "json_each(line, '$.message.pots') AS pot WHERE json_extract(line, '$.class') = 'ClientWin'"),
            db.lines("SELECT sum(credit_amount) FROM ClientWin_pots"));
}

}  // namespace
}  // namespace Tessel
