#pragma once
#include <CLI/CLI.hpp>
#include <map>
#include <string>
#include <vector>

#include "Decode.h"

namespace Tessel {

class Diagnostics;
class Output;

/// The subcommands of `herald`, their options and their help.
class CommandLine {
 public:
  CommandLine();

  /// Throws `CLI::ParseError`, also for a call for help.
  void parse(int argc, char** argv);
  /// Does what was asked for, and answers the exit status.
  int run(Output& output, Diagnostics& diagnostics) const;
  /// Writes the help or the complaint that ended `parse`, and answers the exit status.
  int explain(const CLI::ParseError& failure, Output& output) const;

 private:
  void addDecode();
  void addEncode();
  void addStats();
  void addDiff();
  void addSchema();
  void addExport();
  void addReport();
  void addFiles(CLI::App& subcommand);
  void addFilter(CLI::App& subcommand);
  void addAppearance(CLI::App& subcommand);

  bool decode(Output& output, Diagnostics& diagnostics) const;
  bool exportFiles(Output& output, Diagnostics& diagnostics) const;
  int diff(Output& output, Diagnostics& diagnostics) const;
  bool report(Output& output, Diagnostics& diagnostics) const;
  PacketFilter filter() const;
  DecodeOptions decodeOptions() const;
  CaptureCall captures() const { return {files_, follows_}; }
  /// What to say of a first argument that is no subcommand, with the one that it may have meant.
  std::string complaintOfSubcommand() const;

  CLI::App app_;
  std::map<std::string, CLI::App*> subcommands_;
  std::string firstArgument_;
  std::vector<std::string> files_;
  std::string hex_;
  std::string language_;
  std::optional<int> id_;
  std::vector<std::string> classes_;
  std::string direction_;
  std::string packets_;
  std::string where_;
  std::string columns_;
  std::string capture_;
  std::string database_;
  std::string page_;
  ColorChoice color_ = ColorChoice::AUTO;
  bool asJson_ = false;
  bool asPretty_ = false;
  bool asFields_ = false;
  bool asHex_ = false;
  bool follows_ = false;
  bool showsSecrets_ = false;
  bool replaces_ = false;
};

}  // namespace Tessel
