#include <csignal>

#include "CommandLine.h"
#include "Diagnostics.h"
#include "Hex.h"
#include "Output.h"

using namespace Tessel;

namespace {

int runCommand(int argc, char** argv, Output& output, Diagnostics& diagnostics) {
  CommandLine commandLine;
  try {
    commandLine.parse(argc, argv);
  } catch (const CLI::ParseError& failure) {
    return commandLine.explain(failure, output);
  }
  return commandLine.run(output, diagnostics);
}

}  // namespace

int main(int argc, char** argv) {
  // A pipe whose reader has gone ends it quietly, as it does other filters, also where the caller ignores the signal.
  std::signal(SIGPIPE, SIG_DFL);
  Output output;
  Diagnostics diagnostics;
  try {
    const int status = runCommand(argc, argv, output, diagnostics);
    output.flush();
    return status;
  } catch (const UsageError& failure) {
    diagnostics.complain(failure.what());
    return 2;
  } catch (const std::exception& failure) {
    diagnostics.complain(failure.what());
    return 1;
  }
}
