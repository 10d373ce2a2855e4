#include "Output.h"

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>

namespace Tessel {

namespace {

[[noreturn]] void throwOutputError(int error) {
  throw OutputError("standard output: " + std::generic_category().message(error));
}

}  // namespace

void Output::write(std::string_view text) {
  if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size()) throwOutputError(errno);
}

void Output::flush() {
  if (std::fflush(stdout) != 0) throwOutputError(errno);
  // An earlier failure, of a flush that nobody asked for.
  if (std::ferror(stdout) != 0) throwOutputError(EIO);
}

}  // namespace Tessel
