#include <gtest/gtest.h>
#include <herald/herald.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <regex>
#include <sstream>
#include <thread>

#include "RunCommand.h"

namespace Tessel {
namespace {

// What a capture holds, times included, behind the header of the file.
std::string packetsOf(const std::string& capture) { return capture.substr(24); }

std::string encodedAgain(const std::string& capture, const std::string& options = "") {
  const Outcome json = run("decode --json --secrets " + options + " FILE", capture);
  const Outcome again = run("encode -o - FILE", json.out);
  EXPECT_EQ(again.status, 0) << again.err;
  return again.out;
}

TEST(BothWaysTest, DecodedCapturesBecomeTheSameBytesAgain) {
  for (const char* name : {"table", "lobby", "tournament"}) {
    const std::string sample = contentOf(std::string(HERALD_SAMPLES_DIR "/") + name + ".pcap");
    EXPECT_EQ(encodedAgain(sample), sample) << name;
    EXPECT_EQ(run("decode --json --secrets FILE", sample).out.find("\"hex\""), std::string::npos)
        << "the fields alone tell everything in " << name;
  }
  // Also what is unknown, failed, not read to its end, or not what the library itself writes.
  const std::string odd =
      capture({"\0\2\x58"
               "abc"s,
               "\0\0\x24ignored"s, "\0\0\x0C\0\0"s, "\0\x01\x5Fx"s, "\x01\x7F\xFF\0\1x"s, "\x01\0\x82\0\1x"s,
               "\0\xFF\xA2\0\1\xFF"s, "\0\0\x33\x05"s, BET_DONE, SIT_IN});
  EXPECT_EQ(packetsOf(encodedAgain(odd)), packetsOf(odd));
  EXPECT_EQ(packetsOf(encodedAgain(capture({}))), "");
}

TEST(BothWaysTest, KeepsNanoseconds) {
  std::string fine = capture({BET_DONE, SIT_IN});
  fine.replace(0, 4, number32(0xA1B23C4D));
  fine.replace(28, 4, number32(999'999'999));
  EXPECT_EQ(packetsOf(encodedAgain(fine)), packetsOf(fine));
  EXPECT_EQ(run("decode --columns time FILE", fine).out,
            "1970-01-01T00:00:01.999999999Z\n1970-01-01T00:00:01.000000002Z\n");
}

// A text of so many bytes in a chat message of the server, and the packets that it takes.
std::string longChat(std::size_t textSize) {
  std::string lists = "\0\xFF\xB8\0\x01\0\0\0\0"s;
  const auto count = static_cast<std::uint16_t>(textSize);
  lists += static_cast<char>(count >> 8);
  lists += static_cast<char>(count & 0xFF);
  for (std::size_t i = 0; i < count; ++i) lists += "\1\2\3\4"s;
  return lists;
}

std::vector<std::string> split(const std::string& message, std::size_t partSize) {
  std::vector<std::string> parts;
  for (std::size_t at = 1; at < message.size(); at += partSize) {
    const bool goesOn = at + partSize < message.size();
    parts.push_back(std::string(1, static_cast<char>(message[0] | (goesOn ? 0x80 : 0))) + message.substr(at, partSize));
  }
  return parts;
}

TEST(BothWaysTest, JoinsAndSplitsLongMessages) {
  const std::string whole = run("decode --json FILE", capture({longChat(1000)})).out;
  EXPECT_NE(whole.find("\"outcome\":\"decoded\""), std::string::npos) << whole.substr(0, 300);
  std::vector<std::string> parts = split(longChat(1000), 700);
  // Packets of the other direction stand between its parts.
  for (std::size_t i = 1; i < parts.size(); i += 2)
    parts.insert(parts.begin() + static_cast<std::ptrdiff_t>(i), SIT_IN);
  const std::string joined = run("decode --json --direction fromServer FILE", capture(parts)).out;
  EXPECT_EQ(joined, whole);

  // 300,000 bytes of JSON text in one message.
  std::string json = R"({"class":"TourSummaryChangeList","deletedTournaments":[)";
  for (int i = 0; i < 32767; ++i) json += i == 0 ? "7" : ",7";
  json += R"(],"newTournaments":[)";
  for (int i = 0; i < 1000; ++i) json += (i == 0 ? "" : ",") + R"({"description":")"s + std::string(200, 'd') + "\"}";
  const Outcome encoded = run("encode -o - FILE", json + "]}\n");
  ASSERT_EQ(encoded.status, 0) << encoded.err;
  EXPECT_EQ(packetsOf(encodedAgain(encoded.out)), packetsOf(encoded.out));
  EXPECT_EQ(run("decode --columns packet,class,outcome FILE", encoded.out + packetsOf(capture({BET_DONE}))).out,
            "1\tTourSummaryChangeList\tdecoded\n3\tClientBetDone\tdecoded\n");
}

TEST(BothWaysTest, TellsOfLongMessagesThatAreNotWhole) {
  const std::vector<std::string> parts = split(longChat(1000), 1500);
  const auto cut = record(parts[1].substr(0, 9), parts[1].size());
  std::string tooLong = captureHeader();
  const std::string part = "\x80"s + std::string(262143, 'x');
  for (int i = 0; i < 65; ++i) tooLong += record(part, part.size());
  const struct {
    std::string file;
    std::string complaint;
  } cases[] = {
      {capture({BET_DONE, BET_DONE, parts[0], SIT_IN}), "packet 3: the message that begins here does not end"},
      {captureHeader() + packetsOf(capture({parts[0]})) + cut
           + packetsOf(capture({parts[2], BET_DONE, BET_DONE, SIT_IN})),
       "packet 2: cut short: 9 of 1501 bytes were captured"},
      {tooLong + packetsOf(capture({"\0x"s, BET_DONE, BET_DONE, SIT_IN})),
       "packet 1: the message that begins here is longer than 16 MiB"},
  };
  for (const auto& [file, complaint] : cases) {
    const Outcome outcome = run("decode --columns class FILE", file);
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "ClientBetDone\nClientBetDone\nServerSitIn\n");
    EXPECT_TRUE(outcome.err.ends_with(": " + complaint + "\n")) << outcome.err;
  }
}

TEST(BothWaysTest, EncodesSingleMessages) {
  const struct {
    const char* json;
    int status;
    const char* out;
    const char* err;
  } cases[] = {
      {R"({"class":"ClientBetDone","body":{"playerId":7,"seat":3,"amount":5}})", 0, "00000007030000000000000005\n", ""},
      {R"({"class":"ServerBet","body":{"playerId":7,"seat":3,"amount":5}})", 0, "0084000d00000007030000000000000005\n",
       ""},
      {"\n{\"class\":\"CreditInfo\"}\n{\"class\":", 1, "ffffffff030000000000000000\n", "line 3: "},
      {R"({"class":"ClientBetDone","body":{"seat":300}})", 1, "", "line 1: body.seat: 300 does not fit a byte\n"},
      {R"({"class":"No\u001bne"})", 1, "", "line 1: There is no class \"No\\u001bne\".\n"},
      {"[]", 1, "", "line 1: it is no JSON object\n"},
      {R"({"packet":1,"direction":"fromServer","id":12,"message":{"class":"ClientWin"}})", 1, "",
       "line 1: message.class: the id 12 has another class\n"},
      {R"({"packet":1,"direction":"fromServer","id":99999,"message":null})", 1, "",
       "line 1: id: 99999 does not fit a short\n"},
      {R"({"packet":1,"direction":"toServer","id":130,"message":null,"hex":"***"})", 1, "", "line 1: hex: is masked\n"},
      {R"({"packet":1,"time":"noon","direction":"toServer","id":130,"message":null})", 1, "",
       "line 1: \"noon\" is no time such as 2024-03-08T19:00:00.015000Z\n"},
  };
  for (const auto& [json, status, out, err] : cases) {
    SCOPED_TRACE(json);
    const Outcome outcome = run("encode --hex FILE", json);
    EXPECT_EQ(outcome.status, status);
    EXPECT_EQ(outcome.out.substr(0, 4), std::string(out).substr(0, 4));
    EXPECT_NE(outcome.err.find(err), std::string::npos) << outcome.err;
    if (*err == '\0') {
      EXPECT_EQ(outcome.out, out);
    }
  }
  EXPECT_EQ(run("encode -o - FILE", R"({"class":"CreditInfo"})").status, 1) << "a record does not travel alone";
}

TEST(BothWaysTest, ShowsPasswordsOnlyWhenAsked) {
  ByteStream frame;
  ASSERT_TRUE(TournamentJoinRequestMsg(7, 42, L"open sesame").write(frame));
  const std::string payload = "\x01"s + std::string(frame.bytes().begin(), frame.bytes().end());
  const std::string file = capture({payload, payload + "x"});
  const std::string damagedSize = [&] {
    std::string longer = payload + "x";
    longer[4] = static_cast<char>(longer[4] + 1);
    return capture({payload, longer});
  }();
  for (const char* options : {"", "--json", "--pretty", "--fields"}) {
    for (const std::string& captured : {file, damagedSize}) {
      const Outcome masked = run("decode "s + options + " FILE", captured);
      EXPECT_EQ((masked.out + masked.err).find("sesame"), std::string::npos) << masked.out;
      EXPECT_EQ((masked.out + masked.err).find("6f70656e"), std::string::npos) << masked.out;
      EXPECT_NE(masked.out.find("***"), std::string::npos) << masked.out;
    }
    EXPECT_NE(run("decode --secrets "s + options + " FILE", file).out.find("open sesame"), std::string::npos);
  }
  EXPECT_EQ(run("encode -o - FILE", run("decode --json FILE", file).out).status, 1) << "a mask is no password";
  EXPECT_EQ(packetsOf(encodedAgain(damagedSize)), packetsOf(damagedSize));
}

TEST(BothWaysTest, ChoosesPacketsColumnsAndFiles) {
  const std::string win =
      "\0\0\x11\x02\0\0\0\0\x07\x03\0\0\0\0\0\0\0\x05\x03\0\x05\0\x01\0\0\0\x08\x04\0\0\0\0\0\0\0\x09\x04\0\x05\0"s;
  const std::string file = capture({BET_DONE, SIT_IN, win, "\0\2\x58"s, BET_DONE});
  const struct {
    const char* options;
    const char* packets;
  } cases[] = {
      {"", "1 2 3 4 5 "},
      {"--class ClientBetDone", "1 5 "},
      {"--class 'Client*' --packets 2-", "3 5 "},
      {"--class ServerSitIn --class ClientWin", "2 3 "},
      {"--class ''", "4 "},
      {"--id 130", "2 "},
      {"--direction toServer", "2 "},
      {"--packets 2-3", "2 3 "},
      {"--packets 4", "4 "},
      {"--packets -2", "1 2 "},
      {"--where 'body.seat == 3'", "1 5 "},
      {"--where 'body.amount>=5'", "1 5 "},
      {"--where 'body.amount < 5'", ""},
      {"--where 'pots.credit.seat == 4'", "3 "},
      {"--where 'pots[0].credit.seat == 4'", ""},
      {"--where 'pots[1].credit.seat != 3'", "3 "},
      {"--where 'pots == 2'", "3 "},
  };
  for (const auto& [options, packets] : cases) {
    const Outcome outcome = run("decode --columns packet "s + options + " FILE", file);
    EXPECT_EQ(std::regex_replace(outcome.out, std::regex("\n"), " "), packets) << options;
  }
  EXPECT_EQ(run("decode --fields --packets 3 FILE", file).out.substr(0, 53),
            "3\t17\tClientWin\t37\t37\tpots[0].potType=0(MAIN_POT) pots");
  EXPECT_EQ(run("decode --columns direction,outcome,class FILE --packets 4", file).out, "fromServer\tunknownId\t-\n");
  const Outcome both = run("decode --packets 1 FILE - <FILE", file);
  EXPECT_EQ(std::ranges::count(both.out, '\n'), 2);
  EXPECT_NE(both.out.find("\n-\t1\t12"), std::string::npos) << "the file comes first: " << both.out;
  EXPECT_TRUE(std::regex_search(run("stats --class 'Client*' FILE FILE", file).out, std::regex("ClientBetDone +4 ")));
  EXPECT_TRUE(std::regex_search(run("decode --pretty --color always FILE", file).out,
                                std::regex("\x1B\\[.*seat\x1B\\[0m: 3\n")));
  EXPECT_EQ(run("decode --pretty FILE", file).out.find('\x1B'), std::string::npos) << "no terminal";
  EXPECT_NE(run("decode --id 130 --hex ''").out.find("ServerSitIn"), std::string::npos);
}

TEST(BothWaysTest, NothingDrivesTheTerminal) {
  const std::string text =
      "a\x1B[2J\x7F\xC2\x9B\xE2\x80\xAE\xD8\x9C\xE2\x81\xA6"
      "\a\xC3\xA9";
  const std::string file = capture({"\0\xFF\xA2\0"s + static_cast<char>(text.size()) + text});
  for (const char* options : {"", "--json", "--pretty", "--fields"}) {
    const std::string out = run("decode "s + options + " FILE", file).out;
    EXPECT_NE(out.find("a\\u001b[2J\\u007f\\u009b\\u202e\\u061c\\u2066\\u0007\xC3\xA9"), std::string::npos) << out;
  }
}

TEST(BothWaysTest, ComparesCaptures) {
  const std::string other = [] {
    std::string changed = BET_DONE;
    changed.back() = 9;
    return changed;
  }();
  const std::string ping = "\0\xFF\xF9\0\0\0\0\0\0\0\1"s;
  const std::string first = temporary("first");
  std::ofstream(first, std::ios::binary) << capture({ping, BET_DONE, SIT_IN, ping});
  const Outcome outcome = run("diff " + first + " FILE", capture({ping, ping, other, ping}));
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(
      std::regex_match(outcome.out, std::regex("\\+ [12] Ping .*\n! 2 -> 3 ClientBetDone\n    body.amount: 5 -> 9\n"
                                               "- 3 ServerSitIn \\[ServerSitIn\\]\n")))
      << outcome.out;
  EXPECT_EQ(run("diff FILE FILE", capture(std::vector<std::string>(5, ping))).status, 0);
  EXPECT_EQ(run("diff --class ServerSitIn " + first + " FILE", capture({SIT_IN, other})).status, 0);
  EXPECT_EQ(run("diff " + first + " FILE", "no capture").status, 2);
  std::remove(first.c_str());
}

TEST(BothWaysTest, ReadsWhatIsCompressed) {
  const auto compressed = [](const std::string& bytes) {
    const std::string file = temporary("plain");
    std::ofstream(file, std::ios::binary) << bytes;
    EXPECT_EQ(std::system(("gzip -f " + file).c_str()), 0);
    std::string packed = contentOf(file + ".gz");
    std::remove((file + ".gz").c_str());
    return packed;
  };
  // Compressed files may stand one behind the other.
  const std::string packed = compressed(capture({BET_DONE, SIT_IN})) + compressed(packetsOf(capture({BET_DONE})));
  EXPECT_EQ(run("decode --columns packet FILE", packed).out, "1\n2\n3\n");
  EXPECT_EQ(run("decode --columns packet -", packed).out, "1\n2\n3\n");
  const Outcome cut = run("decode --columns packet FILE", packed.substr(0, packed.size() - 9));
  EXPECT_EQ(cut.status, 1);
  EXPECT_NE(cut.err.find("the compressed file is cut short"), std::string::npos) << cut.err;
  std::string damaged = packed;
  damaged[packed.size() / 2] = static_cast<char>(~damaged[packed.size() / 2]);
  EXPECT_EQ(run("decode FILE", damaged).status, 1);
}

// Each line is out before the next packet comes.
TEST(BothWaysTest, WritesLineByLineWhileItsInputStaysOpen) {
  const std::string grown = temporary("grown");
  const std::string pipe = temporary("pipe");
  ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
  std::ofstream(grown, std::ios::binary) << capture({BET_DONE});
  const struct {
    std::string command;
    std::string writeTo;
  } cases[] = {{"timeout 20 " HERALD_COMMAND " decode --columns class --follow " + grown, grown},
               {"timeout 20 " HERALD_COMMAND " decode --columns class " + pipe, pipe}};
  for (const auto& [command, writeTo] : cases) {
    SCOPED_TRACE(command);
    std::FILE* lines = popen(command.c_str(), "r");
    ASSERT_NE(lines, nullptr);
    std::ofstream more(writeTo, std::ios::binary | std::ios::app);
    if (writeTo == pipe) more << capture({BET_DONE}) << std::flush;
    char line[64] = "";
    EXPECT_STREQ(std::fgets(line, sizeof(line), lines), "ClientBetDone\n");
    const std::string next = record(SIT_IN, SIT_IN.size());
    more << next.substr(0, 20) << std::flush;
    std::this_thread::sleep_for(std::chrono::milliseconds(150));
    more << next.substr(20) << std::flush;
    EXPECT_STREQ(std::fgets(line, sizeof(line), lines), "ServerSitIn\n");
    more.close();
    if (writeTo == grown) std::ofstream(grown, std::ios::trunc);
    EXPECT_EQ(std::fgets(line, sizeof(line), lines), nullptr);
    EXPECT_EQ(WEXITSTATUS(pclose(lines)), writeTo == grown ? 1 : 0) << "a file that has become shorter is an error";
  }
  std::remove(grown.c_str());
  std::remove(pipe.c_str());
}

// What the help tells of stands in the manual and is completed.
TEST(BothWaysTest, ManualAndCompletionsNameEveryOption) {
  const std::regex option("  (--?[a-z-]+)(?:,(--[a-z-]+))?");
  const std::string help = run("--help").out;
  std::set<std::string> names;
  const std::regex subcommand("\n  ([a-z]+) +[A-Z]");
  for (std::sregex_iterator word(help.begin(), help.end(), subcommand), end; word != end; ++word)
    names.insert((*word)[1]);
  EXPECT_GE(names.size(), 6u);
  for (const std::string& name : std::set(names)) {
    const std::string text = run(name + " --help").out;
    for (std::sregex_iterator found(text.begin(), text.end(), option), end; found != end; ++found)
      for (std::size_t i = 1; i < 3; ++i)
        if ((*found)[i].matched) names.insert((*found)[i]);
  }
  for (const char* file : {"herald.1", "completions/herald.bash", "completions/_herald"}) {
    const std::string text =
        std::regex_replace(contentOf(std::string(HERALD_SOURCE_DIR "/tools/") + file), std::regex("\\\\-"), "-");
    for (const std::string& name : names)
      EXPECT_TRUE(std::regex_search(text, std::regex("(^|[^a-z-])" + name + "($|[^a-z-])"))) << name << " in " << file;
  }
}

}  // namespace
}  // namespace Tessel
