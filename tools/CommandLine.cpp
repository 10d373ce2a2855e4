#include "CommandLine.h"

#include <herald/inspect/Catalogue.h>

#include <algorithm>
#include <iostream>
#include <limits>
#include <numeric>
#include <sstream>

#include "Diff.h"
#include "Encode.h"
#include "Hex.h"
#include "Ids.h"
#include "Output.h"
#include "Stats.h"
#include "export/Export.h"
#include "report/Report.h"
#include "schema/Schemas.h"

namespace Tessel {

namespace {

constexpr const char* EXIT_STATUSES = R"(Exit status:
  0  every packet was looked at, whether or not its message could be decoded
  1  a capture cannot be opened, is no capture of link type 147 (USER0) or is
     damaged, a line cannot be encoded, or the output cannot be written, as a
     database that exists
  2  the command line is wrong
  diff: 0 the captures hold the same messages, 1 they differ, 2 anything else)";

constexpr const char* DECODE_HELP = R"(Each message or request gives one line, its columns separated by tabs: number of
the packet, message id, class, bytes read, bytes in the body, debug text. What
there is not is "-". Where several captures are named, the file comes first.
Backslash, tab, carriage return and line feed print as \\, \t, \r and \n, other
control characters and marks that turn the direction of writing as \u and four
digits. With --json the line is an object with every field, and with the bytes in
"hex" where the fields alone do not make them; herald encode makes a capture of
such lines again. Passwords print as ***. What the library reports about a packet
goes to standard error. Captures may be compressed by gzip.

A comparison of --where names a field as --fields prints it, or without the
numbers of items for any item: --where 'pots.credit.seat == 3'.

Examples:
  herald decode session.pcap
  herald decode --pretty --class 'Client*' --packets 100-200 session.pcap.gz
  herald decode --columns time,direction,class,fields --follow session.pcap
  herald decode --json session.pcap | jq 'select(.class == "ClientWin").message'
  herald decode --id 12 --hex '00 00 00 07 03 00 00 00 00 00 00 01 F4')";

constexpr const char* ENCODE_HELP = R"(Reads lines of JSON: what herald decode --json prints, or one message, request or
record each, named by "class" with its fields. A field that is missing takes its
starting value. The first line that cannot be encoded ends it; the capture holds
those before it. Without --output each line becomes hexadecimal: the body of a
message, the frame of a request.

Examples:
  herald decode --json --secrets session.pcap | herald encode - -o copy.pcap
  echo '{"class":"ClientBetDone","body":{"seat":3}}' | herald encode --hex -)";

constexpr const char* STATS_HELP = R"(Examples:
  herald stats session.pcap
  herald stats --direction fromServer monday.pcap.gz tuesday.pcap.gz)";

constexpr const char* DIFF_HELP = R"(A line with "-" is a message that only the first capture has, with "+" one that
only the second has, with "!" one of both, followed by the fields that differ.
Times are not compared.

Examples:
  herald diff before.pcap after.pcap
  herald diff --class 'Tour*' before.pcap after.pcap)";

constexpr const char* IDS_HELP = R"(Columns, separated by tabs: direction, id, class ("-" for an id that creates no
message).

Example:
  herald ids | grep Tour)";

constexpr const char* SCHEMA_HELP = R"(Examples:
  herald schema wireshark > herald.lua
  wireshark -X lua_script:herald.lua session.pcap
  herald schema kaitai > herald.ksy
  herald schema json > herald.schema.json
  herald schema page session.pcap > protocol.html)";

constexpr const char* EXPORT_HELP = R"(Each message and request class has a table, each list in it a table of its items,
and packets has a row for every packet. A record within a message adds columns:
body.seat becomes body_seat. What is cut short or interrupted has 0 in
meta.complete. Captures may be compressed by gzip.

Examples:
  herald export session.pcap session.db
  herald export --force monday.pcap.gz tuesday.pcap.gz week.db
  sqlite3 session.db 'SELECT class, count(*) FROM packets GROUP BY class')";

constexpr const char* REPORT_HELP =
    R"(Writes one page that shows the session in a browser and needs nothing beside itself:
the messages of both directions in a chart, and the fields of each beside its
bytes. Passwords stand as *** there, also in the bytes; bytes of requests that
their fields do not tell are left out.

Examples:
  herald report session.pcap -o session.html
  herald report --packets 4000- session.pcap.gz -o end-of-session.html)";

constexpr const char* CATALOGUE_HELP = R"(Example:
  herald catalogue | grep -A 8 '^PlayerInfo$')";

std::vector<std::string> splitAtCommas(const std::string& text) {
  std::vector<std::string> parts;
  std::istringstream stream(text);
  for (std::string part; std::getline(stream, part, ',');) parts.push_back(part);
  return parts;
}

// How many characters have to be changed, added or taken away.
std::size_t distance(std::string_view from, std::string_view to) {
  std::vector<std::size_t> row(to.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= from.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i);
    for (std::size_t j = 1; j <= to.size(); ++j) {
      const std::size_t changed = diagonal + (from[i - 1] == to[j - 1] ? 0 : 1);
      diagonal = std::exchange(row[j], std::min({changed, row[j] + 1, row[j - 1] + 1}));
    }
  }
  return row.back();
}

}  // namespace

CommandLine::CommandLine() : app_("Looks into captures of the messages of a poker client.", "herald") {
  app_.require_subcommand(1);
  app_.footer(EXIT_STATUSES);
  app_.set_version_flag("--version", "herald " HERALD_VERSION);
  addDecode();
  addEncode();
  addStats();
  addDiff();
  addSchema();
  addExport();
  addReport();
  app_.add_subcommand("ids", "Print the ids of all messages and requests")->footer(IDS_HELP);
  app_.add_subcommand("catalogue", "Print every message, request and record with its fields")->footer(CATALOGUE_HELP);
  for (CLI::App* subcommand : app_.get_subcommands({})) subcommands_[subcommand->get_name()] = subcommand;
}

void CommandLine::addFiles(CLI::App& subcommand) {
  subcommand.add_option("FILE", files_, "The captures; - is standard input");
}

void CommandLine::addFilter(CLI::App& subcommand) {
  subcommand.add_option("--class", classes_, "Only classes of this name; *, ? and [] as in a shell")
      ->allow_extra_args(false);
  subcommand.add_option("--direction", direction_, "Only what came fromServer, or went toServer")
      ->check(CLI::IsMember({"fromServer", "toServer"}));
  subcommand.add_option("--packets", packets_, "Only packets of these numbers, such as 10-20, 10- or 10");
  subcommand.add_option("--where", where_, "Only with a field that compares so, such as 'body.seat == 3'");
  CLI::Option* id = subcommand.add_option("--id", id_, "Only messages and requests of this id");
  id->check(CLI::Range(std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()));
}

void CommandLine::addAppearance(CLI::App& subcommand) {
  subcommand.add_flag("--secrets", showsSecrets_, "Print passwords, too");
  subcommand.add_option("--color", color_, "auto (on a terminal, unless NO_COLOR is set), always or never")
      ->transform(CLI::CheckedTransformer(
          std::map<std::string, ColorChoice>{
              {"auto", ColorChoice::AUTO}, {"always", ColorChoice::ALWAYS}, {"never", ColorChoice::NEVER}},
          CLI::ignore_case));
}

void CommandLine::addDecode() {
  CLI::App* decode =
      app_.add_subcommand("decode", "Print the messages and requests of captures, one line each")->footer(DECODE_HELP);
  addFiles(*decode);
  addFilter(*decode);
  addAppearance(*decode);
  CLI::Option* file = decode->get_option("FILE");
  CLI::Option* id = decode->get_option("--id");
  CLI::Option* hex =
      decode->add_option("--hex", hex_, "Decode this body, in hexadecimal, of a message or request of --id");
  CLI::Option* json = decode->add_flag("--json", asJson_, "Print JSON objects");
  CLI::Option* pretty = decode->add_flag("--pretty", asPretty_, "Print for people: one field a line, in colours");
  CLI::Option* fields = decode->add_flag("--fields", asFields_, "Print name=value pairs instead of the debug text");
  CLI::Option* columns = decode->add_option("--columns", columns_, "The columns of a line: " + columnNames());
  CLI::Option* follow = decode->add_flag("--follow", follows_, "Go on as the capture grows");
  json->excludes(pretty)->excludes(fields)->excludes(columns);
  pretty->excludes(fields)->excludes(columns);
  fields->excludes(columns);
  hex->needs(id)->excludes(file);
  decode->callback([=, this] {
    if (file->empty() && hex->empty()) throw CLI::RequiredError("FILE, or --id and --hex");
    if (!follow->empty() && files_.size() > 1) throw CLI::ValidationError("--follow", "follows one capture");
  });
}

void CommandLine::addEncode() {
  CLI::App* encode = app_.add_subcommand("encode", "Make a capture, or bytes, of JSON lines")->footer(ENCODE_HELP);
  encode->add_option("FILE", files_, "The lines of JSON; - is standard input")->required();
  CLI::Option* output = encode->add_option("-o,--output", capture_, "Write a capture here; - is standard output");
  CLI::Option* hex = encode->add_flag("--hex", asHex_, "Print the bytes of each line in hexadecimal");
  output->excludes(hex);
  encode->callback([=] {
    if (output->empty() && hex->empty()) throw CLI::RequiredError("--output or --hex");
  });
}

void CommandLine::addStats() {
  CLI::App* stats = app_.add_subcommand("stats", "Count the messages of captures by class, and time the decoding")
                        ->footer(STATS_HELP);
  addFiles(*stats);
  addFilter(*stats);
  stats->get_option("FILE")->required();
}

void CommandLine::addDiff() {
  CLI::App* diff = app_.add_subcommand("diff", "Print in which messages two captures differ")->footer(DIFF_HELP);
  addFiles(*diff);
  addFilter(*diff);
  addAppearance(*diff);
  diff->get_option("FILE")->required()->expected(2);
}

void CommandLine::addSchema() {
  CLI::App* schema = app_.add_subcommand("schema", "Print the protocol for other tools")->footer(SCHEMA_HELP);
  schema->add_option("LANGUAGE", language_, "For what")->required()->check(CLI::IsMember(schemaLanguages()));
  schema->add_option("CAPTURES", files_, "The captures that give the examples of the page");
}

void CommandLine::addExport() {
  CLI::App* subcommand = app_.add_subcommand("export", "Make an SQLite database of captures")->footer(EXPORT_HELP);
  addFiles(*subcommand);
  addFilter(*subcommand);
  subcommand->get_option("FILE")
      ->required()
      ->expected(2, std::numeric_limits<int>::max())
      ->description("The captures; - is standard input. The last is the database");
  subcommand->add_flag("--secrets", showsSecrets_, "Write passwords, too");
  subcommand->add_flag("--force", replaces_, "Replace the database when there is one");
  subcommand->callback([this] {
    database_ = files_.back();
    files_.pop_back();
  });
}

void CommandLine::addReport() {
  CLI::App* report =
      app_.add_subcommand("report", "Write a page that shows a capture in a browser")->footer(REPORT_HELP);
  addFiles(*report);
  addFilter(*report);
  report->get_option("FILE")->required()->expected(1);
  report->add_option("-o,--output", page_, "Write the page here; - is standard output")->required();
  report->add_flag("--secrets", showsSecrets_, "Show passwords, too");
}

void CommandLine::parse(int argc, char** argv) {
  if (argc > 1) firstArgument_ = argv[1];
  app_.parse(argc, argv);
}

int CommandLine::run(Output& output, Diagnostics& diagnostics) const {
  const auto isCalled = [this](const char* name) { return subcommands_.at(name)->parsed(); };
  const auto statusOf = [](bool isSound) { return isSound ? 0 : 1; };
  if (isCalled("decode")) return statusOf(decode(output, diagnostics));
  if (isCalled("encode")) return statusOf(encodeFiles(files_, {.capture = capture_}, output, diagnostics));
  if (isCalled("stats")) return statusOf(printStats(captures(), filter(), output, diagnostics));
  if (isCalled("export")) return statusOf(exportFiles(output, diagnostics));
  if (isCalled("diff")) return diff(output, diagnostics);
  if (isCalled("report")) return statusOf(report(output, diagnostics));
  if (isCalled("ids"))
    printIds(output);
  else if (isCalled("schema"))
    output.write(printSchema(language_, files_));
  else
    output.write(protocolCatalogue());
  return 0;
}

bool CommandLine::decode(Output& output, Diagnostics& diagnostics) const {
  DecodeOptions options = decodeOptions();
  if (!files_.empty()) return decodeCaptures(captures(), options, output, diagnostics);
  decodeBody(*options.filter.id, parseHex(hex_), options, output, diagnostics);
  return true;
}

bool CommandLine::exportFiles(Output& output, Diagnostics& diagnostics) const {
  const ExportOptions options{.database = database_,
                              .replaces = replaces_,
                              .filter = filter(),
                              .secrets = showsSecrets_ ? Secrets::SHOWN : Secrets::MASKED};
  return exportCaptures(captures(), options, output, diagnostics);
}

int CommandLine::diff(Output& output, Diagnostics& diagnostics) const {
  const DiffOptions options{
      .filter = filter(), .secrets = showsSecrets_ ? Secrets::SHOWN : Secrets::MASKED, .color = color_};
  switch (diffCaptures(files_[0], files_[1], options, output, diagnostics)) {
    case DiffResult::SAME:
      return 0;
    case DiffResult::DIFFERENT:
      return 1;
    case DiffResult::UNSOUND:
      break;
  }
  return 2;
}

bool CommandLine::report(Output& output, Diagnostics& diagnostics) const {
  const ReportOptions options{
      .page = page_, .filter = filter(), .secrets = showsSecrets_ ? Secrets::SHOWN : Secrets::MASKED};
  return writeReport(files_.front(), options, output, diagnostics);
}

PacketFilter CommandLine::filter() const {
  PacketFilter filter{.classes = classes_, .id = id_, .direction = directionNamed(direction_)};
  if (!packets_.empty()) filter.packets = parsePacketRange(packets_);
  if (!where_.empty()) filter.where.emplace(where_);
  return filter;
}

DecodeOptions CommandLine::decodeOptions() const {
  DecodeOptions options{.color = color_, .filter = filter()};
  options.format = asJson_ ? OutputFormat::JSON : asPretty_ ? OutputFormat::PRETTY : OutputFormat::LINES;
  options.secrets = showsSecrets_ ? Secrets::SHOWN : Secrets::MASKED;
  options.columns = splitAtCommas(columns_);
  if (!options.columns.empty()) return options;
  options.columns = {"packet", "id", "class", "read", "bytes", asFields_ ? "fields" : "text"};
  if (files_.size() > 1) options.columns.insert(options.columns.begin(), "file");
  return options;
}

std::string CommandLine::complaintOfSubcommand() const {
  constexpr std::size_t NEAR = 2;
  if (firstArgument_.empty() || firstArgument_.starts_with('-') || subcommands_.contains(firstArgument_)) return {};
  const auto nearest = std::ranges::min_element(
      subcommands_, {}, [this](const auto& subcommand) { return distance(firstArgument_, subcommand.first); });
  const bool isNear = distance(firstArgument_, nearest->first) <= NEAR;
  return "there is no subcommand \"" + escaped(firstArgument_) + '"'
         + (isNear ? "; did you mean \"" + nearest->first + "\"?" : "");
}

int CommandLine::explain(const CLI::ParseError& failure, Output& output) const {
  if (const std::string complaint = complaintOfSubcommand(); !complaint.empty()) {
    std::cerr << "herald: " << complaint << "\nRun with --help for more information.\n";
    return 2;
  }
  std::ostringstream help;
  const int status = app_.exit(failure, help, std::cerr);
  output.write(help.str());
  return status == 0 ? 0 : 2;
}

}  // namespace Tessel
