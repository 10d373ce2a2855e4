#pragma once
#include <cstdint>
#include <string>
#include <vector>

namespace Tessel {

using namespace std::string_literals;

inline const std::string BET_DONE = "\0\0\x0C\0\0\0\x07\x03\0\0\0\0\0\0\0\x05"s;
inline const std::string SIT_IN = "\x01\0\x82\0\0"s;

/// The name of a file of this test's own.
std::string temporary(const std::string& name);
std::string contentOf(const std::string& file);

/// In the byte order of this machine, as captures may have it.
std::string number32(std::uint32_t value);
std::string captureHeader(std::uint32_t linkType = 147);
/// Captured whole when the length is that of the payload.
std::string record(const std::string& payload, std::size_t length);
std::string capture(const std::vector<std::string>& payloads);

struct Outcome {
  int status;
  std::string out;
  std::string err;
};

/// Calls the command with the file as its standard input; "FILE" among the arguments stands for the name of the file.
Outcome run(const std::string& arguments, const std::string& file = "", const std::string& output = "");

}  // namespace Tessel
