#include <gtest/gtest.h>
#include <herald/inspect/Catalogue.h>
#include <herald/messages/ClientMessageTable.h>
#include <herald/messages/ServerMessageTable.h>
#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <regex>
#include <sstream>

#include "RunCommand.h"

namespace Tessel {
namespace {

using namespace std::string_literals;

const std::vector<std::string> MIXED{
    BET_DONE,
    "\0\2\x58"s,         // unknown
    "\0\0\x24ignored"s,  // without a message
    "\0\0\x0C\0\0"s,     // too short
    SIT_IN,
    "\x01\x7F\xFF\0\1x"s,  // unknown request
    "\0\xFF\xA2\0\x0A"
    "a\tb\\\r\n\xC3\xAB z\xFF"s,  // text to be escaped, a byte unread
    "\0\x01\x5F"s,                // a message that logs itself
};

TEST(CommandTest, DecodesEachPacketIntoALine) {
  const Outcome outcome = run("decode FILE", capture(MIXED));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out,
            "1\t12\tClientBetDone\t13\t13\t[ClientBetDone: [CreditInfo: id=7, seat=3, amount=5]\n"
            "2\t600\t-\t0\t0\t-\n"
            "3\t36\t-\t0\t7\t-\n"
            "4\t12\tClientBetDone\t0\t2\t-\n"
            "5\t130\tServerSitIn\t0\t0\t[ServerSitIn]\n"
            "6\t32767\t-\t0\t1\t-\n"
            "7\t-94\tAdminNotificationMsg\t12\t13\t[AdminNotificationMsg: Message=a\\tb\\\\\\r\\n\xC3\xAB z]\n"
            "8\t351\tTourBreakEnd\t0\t0\t[TourBreakEnd]\n");
  const std::regex reports(
      "herald: packet 2: report: .*Unknown casino message \\(600\\)\n"
      "herald: packet 4: report: .*Unknown error when reading message .*\n"
      "herald: packet 4: the read failed at byte 0 of 2: The stream ends: .*\n"
      "herald: packet 6: Unknown request \\(32767\\)\n");
  EXPECT_TRUE(std::regex_match(outcome.err, reports)) << outcome.err;
  EXPECT_EQ(run("decode -", capture(MIXED)).out, outcome.out);
}

TEST(CommandTest, DecodesIntoJson) {
  std::istringstream lines(run("decode --json FILE", capture(MIXED)).out);
  std::vector<nlohmann::json> objects;
  for (std::string line; std::getline(lines, line);) objects.push_back(nlohmann::json::parse(line));
  ASSERT_EQ(objects.size(), MIXED.size());
  const auto outcomeOf = [&](std::size_t i) { return objects[i].value("outcome", ""); };

  const auto betDone =
      nlohmann::json::parse(R"({"packet": 1, "time": "1970-01-01T00:00:01.000002Z", "direction": "fromServer", "id": 12,
      "class": "ClientBetDone", "outcome": "decoded", "bytesRead": 13, "bytes": 13,
      "message": {"class": "ClientBetDone", "body": {"playerId": 7, "seat": 3, "amount": 5}}})");
  EXPECT_EQ(objects[0], betDone);
  EXPECT_EQ(outcomeOf(1), "unknownId");
  EXPECT_TRUE(objects[1].at("class").is_null() && objects[1].at("message").is_null());
  EXPECT_EQ(outcomeOf(2), "noMessage");
  EXPECT_EQ(outcomeOf(3), "readThrew");
  EXPECT_NE(objects[3].at("reason"), "");
  EXPECT_EQ(objects[4], nlohmann::json::parse(R"({"packet": 5, "time": "1970-01-01T00:00:01.000002Z",
      "direction": "toServer", "id": 130, "class": "ServerSitIn", "outcome": "decoded", "bytesRead": 0, "bytes": 0,
      "message": {"class": "ServerSitIn"}})"));
}

TEST(CommandTest, DecodesABodyFromTheCommandLine) {
  const std::string line = run("decode FILE", capture({BET_DONE})).out;
  for (const char* hex : {"00000007030000000000000005", " 00 00 00 07 03 00000000\t00 00 00 05 "}) {
    const Outcome outcome = run("decode --id 12 --hex '"s + hex + "'");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.out, line);
  }
  EXPECT_EQ(run("decode --id -7 --hex ''").out.substr(0, 9), "1\t-7\tPing");
}

// All that is wrong is told in one line, with its exit status; what lies before and behind is decoded.
TEST(CommandTest, TellsWhatIsWrongWithACapture) {
  const std::string sound = capture({BET_DONE});
  const auto behind = [&](const std::string& payload) { return capture({BET_DONE, payload, BET_DONE}); };
  const struct {
    std::string file;
    std::string complaint;
    int lines;
  } cases[] = {
      {"", "not a pcap file: .*", 0},
      {"this is no capture, whatever its name says", "not a pcap file: unknown file format", 0},
      {captureHeader(1), R"(the link type is 1 \(EN10MB\), not 147 \(USER0\))", 0},
      {sound + number32(1), "packet 2: truncated dump file; .*", 1},
      {sound + sound.substr(24, 20), "packet 2: truncated dump file; .*", 1},
      {sound + record("\0\0"s, 9) + sound.substr(24), "packet 2: cut short: 2 of 9 bytes were captured", 2},
      {sound + record("\0\0"s, 1) + sound.substr(24), "packet 2: longer than it was: 2 of 1 bytes were captured", 2},
      {behind(""), "packet 2: the payload is empty", 2},
      {behind("\x07\0\x0C"s), "packet 2: the direction byte is 7, not 0, 1, 128 or 129", 2},
      {behind("\0\x0C"s), "packet 2: too short for a message id: 1 byte", 2},
      {behind("\x01\0\x82\0"s), "packet 2: too short for the header of a request: 3 bytes", 2},
      {behind(SIT_IN + "x"), "packet 2: the request declares a body of 0 bytes and has 1 byte", 2},
      {behind("\x01\0\x82\xFF\xFF"s), "packet 2: the request declares a body of -1 bytes and has 0 bytes", 2},
  };
  for (const auto& [file, complaint, lines] : cases) {
    SCOPED_TRACE(complaint);
    const Outcome outcome = run("decode FILE", file);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(std::regex_match(outcome.err, std::regex("herald: .*: " + complaint + "\n"))) << outcome.err;
    EXPECT_EQ(std::ranges::count(outcome.out, '\n'), lines);
    EXPECT_EQ(run("stats FILE", file).status, 1);
  }
}

TEST(CommandTest, TellsWhatIsWrongWithACommandLine) {
  const struct {
    const char* arguments;
    int status;
    const char* complaint;
  } cases[] = {
      {"", 2, "subcommand is required"},
      {"decode", 2, "FILE, or --id and --hex"},
      {"decode --id 12", 2, "FILE, or --id and --hex"},
      {"decode --hex 00", 2, "--hex requires --id"},
      {"decode --id 12 --hex 00 FILE", 2, "FILE excludes --hex"},
      {"decode --id 32768 --hex 00", 2, "32768"},
      {"decode --id 12 --hex '00 0'", 2, "\"0\" at character 4"},
      {"decode --id 12 --hex 00zz", 2, "\"zz\" at character 3"},
      {"decode --wrong FILE", 2, "--wrong"},
      {"decode --json --pretty FILE", 2, "--json excludes --pretty"},
      {"decode --columns packet,tim FILE", 2, "there is no column \"tim\", only file,packet,time"},
      {"decode --packets 5-4 FILE", 2, "\"5-4\" is no range"},
      {"decode --where seat FILE", 2, "\"seat\" is no comparison"},
      {"decode --direction up FILE", 2, "up"},
      {"decode --follow FILE FILE", 2, "follows one capture"},
      {"encode FILE", 2, "--output or --hex"},
      {"diff FILE", 2, "FILE"},
      {"decoed FILE", 2, "did you mean \"decode\"?"},
      {"sta FILE", 2, "did you mean \"stats\"?"},
      {"wireshark FILE", 2, "there is no subcommand \"wireshark\"\n"},
      {"stats", 2, "FILE is required"},
      {"decode no-such-file", 1, "no-such-file: No such file or directory"},
  };
  for (const auto& [arguments, status, complaint] : cases) {
    SCOPED_TRACE(arguments);
    const Outcome outcome = run(arguments, capture({}));
    EXPECT_EQ(outcome.status, status);
    EXPECT_NE(outcome.err.find(complaint), std::string::npos) << outcome.err;
    EXPECT_EQ(outcome.out, "");
  }
}

TEST(CommandTest, TellsThatTheOutputIsFull) {
  for (const char* arguments : {"decode FILE", "stats FILE", "ids", "catalogue --help"}) {
    const Outcome outcome = run(arguments, capture({BET_DONE}), "/dev/full");
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "herald: standard output: No space left on device\n");
  }
  const std::string complaint = run("decode FILE", capture({BET_DONE, ""}), "/dev/full").err;
  EXPECT_TRUE(complaint.ends_with("herald: standard output: Input/output error\n"))
      << "the complaint has put out the lines before it: " << complaint;
}

TEST(CommandTest, EndsWhenNobodyReadsItsOutput) {
  const std::string file = temporary("long");
  const std::string complaints = temporary("complaints");
  std::ofstream(file, std::ios::binary) << capture(std::vector<std::string>(10'000, BET_DONE));
  const std::string command = HERALD_COMMAND " decode " + file + " 2>" + complaints;
  std::FILE* pipe = popen(command.c_str(), "r");
  ASSERT_NE(pipe, nullptr);
  EXPECT_EQ(std::fgetc(pipe), '1');
  const int status = pclose(pipe);
  EXPECT_TRUE(WIFSIGNALED(status) ? WTERMSIG(status) == SIGPIPE : WEXITSTATUS(status) == 128 + SIGPIPE) << status;
  EXPECT_EQ(contentOf(complaints), "");
  std::remove(complaints.c_str());
  std::remove(file.c_str());
}

TEST(CommandTest, CountsByClass) {
  std::vector<std::string> payloads = MIXED;
  payloads.push_back(BET_DONE);
  const Outcome outcome = run("stats FILE", capture(payloads));
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  for (const char* row : {
           "ClientBetDone.*\nAdminNotificationMsg.*\n\\(no message",  // the most bytes first
           "ClientBetDone +3 +28 +58\\.3% +1\n",
           "AdminNotificationMsg +1 +13 +27\\.1% +0\n",
           "\\(no message for id 36\\) +1 +7 +14\\.6% +0\n",
           "\\(unknown id 600\\) +1 +0 +0\\.0% +1\n",
           "Total +7 +48 +100\\.0% +2\n",
           "ServerSitIn +1 +0 +0\\.0% +0\n",
           "\\(unknown id 32767\\) +1 +1 +100\\.0% +1\n",
           "Decoding took 0\\.[0-9]{6} s: [1-9][0-9]* messages/s, [0-9]+\\.[0-9] MB/s\\.\n",
       })
    EXPECT_TRUE(std::regex_search(outcome.out, std::regex(row))) << row << "in\n" << outcome.out;
  EXPECT_EQ(run("stats FILE", capture({})).status, 0);
  // More than are decoded at a time.
  const std::string many = run("stats FILE", capture(std::vector<std::string>(2500, BET_DONE))).out;
  EXPECT_TRUE(std::regex_search(many, std::regex("ClientBetDone +2500 +32500 "))) << many;
}

TEST(CommandTest, PrintsWhatThereIs) {
  const std::string ids = run("ids").out;
  EXPECT_EQ(static_cast<std::size_t>(std::ranges::count(ids, '\n')),
            clientMessageTable().size() + serverMessageTable().size());
  EXPECT_NE(ids.find("fromServer\t-21\t-\n"), std::string::npos);
  EXPECT_NE(ids.find("toServer\t130\tServerSitIn\n"), std::string::npos);
  EXPECT_EQ(run("catalogue").out, protocolCatalogue());
  for (const char* subcommand : {"decode", "stats", "ids", "catalogue"}) {
    const Outcome help = run(std::string(subcommand) + " --help");
    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.out.find("  herald "s + subcommand), std::string::npos) << help.out;
  }
}

}  // namespace
}  // namespace Tessel
