#pragma once
#include <CLI/CLI.hpp>
#include <string>
#include <vector>

namespace Tessel {

class Diagnostics;
class Output;

/// The subcommands of `herald`, their options and their help.
class CommandLine {
 public:
  CommandLine();

  /// Throws `CLI::ParseError`, also for a call for help.
  void parse(int argc, char** argv) { app_.parse(argc, argv); }
  /// Does what was asked for; answers whether the capture, if there is one, was sound.
  bool run(Output& output, Diagnostics& diagnostics) const;
  /// Writes the help or the complaint that ended `parse`, and answers the exit status.
  int explain(const CLI::ParseError& failure, Output& output) const;

 private:
  void addDecode();
  void addStats();
  void addSchema();
  bool decode(Output& output, Diagnostics& diagnostics) const;

  CLI::App app_;
  CLI::App* decode_ = nullptr;
  CLI::App* stats_ = nullptr;
  CLI::App* ids_ = nullptr;
  CLI::App* schema_ = nullptr;
  std::string file_;
  std::string hex_;
  std::string language_;
  std::vector<std::string> captures_;
  int id_ = 0;
  bool asJson_ = false;
};

}  // namespace Tessel
