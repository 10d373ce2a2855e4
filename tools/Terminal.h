#pragma once
#include <cstdint>
#include <string>
#include <string_view>

#include "Packet.h"

namespace Tessel {

/// The text, in UTF-8, as one line that drives no terminal (see `StringUtils::escapeLine`).
std::string escaped(std::string_view utf8);
std::string escaped(std::wstring_view text);

/// Appends a time in nanoseconds since 1970, which it is not before, as "2024-03-08T19:00:00.015000Z" with as many
/// digits as the capture tells apart.
void appendIsoTime(std::int64_t time, TimePrecision precision, std::string& out);

struct IsoTime {
  std::int64_t nanoseconds;
  TimePrecision precision;
};
/// Reads such a text, with any number of decimals up to nine. Throws `std::invalid_argument` for anything else.
IsoTime parseIsoTime(std::string_view text);

enum class ColorChoice { AUTO, ALWAYS, NEVER };

/// Colours on a terminal, and nothing where there is none, where `NO_COLOR` is set or the terminal is a dumb one.
class Colors {
 public:
  explicit Colors(ColorChoice choice);

  std::string_view heading() const { return pick("\x1B[1;36m"); }
  std::string_view failure() const { return pick("\x1B[31m"); }
  std::string_view name() const { return pick("\x1B[2m"); }
  std::string_view added() const { return pick("\x1B[32m"); }
  std::string_view removed() const { return pick("\x1B[31m"); }
  std::string_view plain() const { return pick("\x1B[0m"); }

 private:
  std::string_view pick(std::string_view code) const { return isOn_ ? code : std::string_view(); }

  bool isOn_;
};

}  // namespace Tessel
