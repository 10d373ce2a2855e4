#include "RunCommand.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>

namespace Tessel {

std::string temporary(const std::string& name) {
  return testing::TempDir() + "herald-command-" + std::to_string(getpid()) + "-" + name;
}

std::string contentOf(const std::string& file) {
  std::ostringstream content;
  content << std::ifstream(file, std::ios::binary).rdbuf();
  return content.str();
}

std::string number32(std::uint32_t value) { return {reinterpret_cast<const char*>(&value), sizeof(value)}; }

std::string captureHeader(std::uint32_t linkType) {
  return number32(0xA1B2C3D4) + number32(4 << 16 | 2) + number32(0) + number32(0) + number32(262144)
         + number32(linkType);
}

std::string record(const std::string& payload, std::size_t length) {
  return number32(1) + number32(2) + number32(static_cast<std::uint32_t>(payload.size()))
         + number32(static_cast<std::uint32_t>(length)) + payload;
}

std::string capture(const std::vector<std::string>& payloads) {
  std::string bytes = captureHeader();
  for (const std::string& payload : payloads) bytes += record(payload, payload.size());
  return bytes;
}

Outcome run(const std::string& arguments, const std::string& file, const std::string& output) {
  const std::string in = temporary("in");
  const std::string out = temporary("out");
  const std::string err = temporary("err");
  std::ofstream(in, std::ios::binary) << file;
  const std::string command = HERALD_COMMAND " " + std::regex_replace(arguments, std::regex("\\bFILE\\b"), in) + " <"
                              + in + " >" + (output.empty() ? out : output) + " 2>" + err;
  const int status = std::system(command.c_str());
  Outcome outcome{WEXITSTATUS(status), output.empty() ? contentOf(out) : "", contentOf(err)};
  for (const std::string& used : {in, out, err}) std::remove(used.c_str());
  return outcome;
}

}  // namespace Tessel
