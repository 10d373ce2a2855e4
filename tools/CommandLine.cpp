#include "CommandLine.h"

#include <herald/inspect/Catalogue.h>

#include <iostream>
#include <limits>
#include <sstream>

#include "Decode.h"
#include "Hex.h"
#include "Ids.h"
#include "Output.h"
#include "Stats.h"
#include "schema/Schemas.h"

namespace Tessel {

namespace {

constexpr const char* EXIT_STATUSES = R"(Exit status:
  0  every packet was looked at, whether or not its message could be decoded
  1  the capture cannot be opened, is no capture of link type 147 (USER0) or is
     damaged, or the output cannot be written
  2  the command line is wrong)";

constexpr const char* DECODE_HELP = R"(Each packet gives one line, its columns separated by tabs: number of the packet,
message id, class, bytes read, bytes in the body, debug text. What there is not
is "-"; a request has the first three. Backslash, tab, carriage return and line
feed print as \\, \t, \r and \n. With --json the line is an object with every
field of the message; the fields of a request are not decoded. JSON masks
passwords, debug texts do not. What the library reports about a packet goes to
standard error.

Examples:
  herald decode session.pcap
  zcat session.pcap.gz | herald decode -
  herald decode --json session.pcap | jq 'select(.class == "ClientWin").message'
  herald decode --id 12 --hex '00 00 00 07 03 00 00 00 00 00 00 01 F4')";

constexpr const char* STATS_HELP = R"(Examples:
  herald stats session.pcap
  zcat session.pcap.gz | herald stats -)";

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

constexpr const char* CATALOGUE_HELP = R"(Example:
  herald catalogue | grep -A 8 '^PlayerInfo$')";

}  // namespace

CommandLine::CommandLine() : app_("Looks into captures of the messages of a poker client.", "herald") {
  app_.require_subcommand(1);
  app_.footer(EXIT_STATUSES);
  addDecode();
  addStats();
  addSchema();
  ids_ = app_.add_subcommand("ids", "Print the ids of all messages and requests")->footer(IDS_HELP);
  app_.add_subcommand("catalogue", "Print every message, request and record with its fields")->footer(CATALOGUE_HELP);
}

void CommandLine::addDecode() {
  decode_ = app_.add_subcommand("decode", "Print the messages of a capture, one line each")->footer(DECODE_HELP);
  CLI::Option* file = decode_->add_option("FILE", file_, "The capture; - is standard input");
  CLI::Option* id = decode_->add_option("--id", id_, "Decode the body that --hex gives as the message of this id");
  CLI::Option* hex =
      decode_->add_option("--hex", hex_, "A body in hexadecimal, with or without blanks between the bytes");
  decode_->add_flag("--json", asJson_, "Print JSON objects");
  id->check(CLI::Range(std::numeric_limits<std::int16_t>::min(), std::numeric_limits<std::int16_t>::max()));
  id->needs(hex)->excludes(file);
  hex->needs(id);
  decode_->callback([=] {
    if (file->empty() && id->empty()) throw CLI::RequiredError("FILE, or --id and --hex");
  });
}

void CommandLine::addStats() {
  stats_ = app_.add_subcommand("stats", "Count the messages of a capture by class, and time the decoding")
               ->footer(STATS_HELP);
  stats_->add_option("FILE", file_, "The capture; - is standard input")->required();
}

void CommandLine::addSchema() {
  schema_ = app_.add_subcommand("schema", "Print the protocol for other tools")->footer(SCHEMA_HELP);
  schema_->add_option("LANGUAGE", language_, "For what")->required()->check(CLI::IsMember(schemaLanguages()));
  schema_->add_option("CAPTURES", captures_, "The captures that give the examples of the page");
}

bool CommandLine::run(Output& output, Diagnostics& diagnostics) const {
  if (decode_->parsed()) return decode(output, diagnostics);
  if (stats_->parsed()) return printStats(file_, output, diagnostics);
  if (ids_->parsed())
    printIds(output);
  else if (schema_->parsed())
    output.write(printSchema(language_, captures_));
  else
    output.write(protocolCatalogue());
  return true;
}

bool CommandLine::decode(Output& output, Diagnostics& diagnostics) const {
  const OutputFormat format = asJson_ ? OutputFormat::JSON : OutputFormat::LINES;
  if (!file_.empty()) return decodeCapture(file_, format, output, diagnostics);
  decodeBody(id_, parseHex(hex_), format, output, diagnostics);
  return true;
}

int CommandLine::explain(const CLI::ParseError& failure, Output& output) const {
  std::ostringstream help;
  const int status = app_.exit(failure, help, std::cerr);
  output.write(help.str());
  return status == 0 ? 0 : 2;
}

}  // namespace Tessel
