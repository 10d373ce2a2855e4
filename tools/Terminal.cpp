#include "Terminal.h"

#include <herald/platform/keystone/StringUtils.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>

namespace Tessel {

namespace {

using namespace std::chrono;

bool wantsColors(ColorChoice choice) {
  if (choice != ColorChoice::AUTO) return choice == ColorChoice::ALWAYS;
  const char* noColor = std::getenv("NO_COLOR");
  const char* terminal = std::getenv("TERM");
  return isatty(STDOUT_FILENO) != 0 && (noColor == nullptr || *noColor == '\0') && terminal != nullptr
         && std::string_view(terminal) != "dumb";
}

void appendDigits(std::int64_t number, int count, std::string& out) {
  char digits[9];
  for (int i = count; i-- > 0; number /= 10) digits[i] = static_cast<char>('0' + number % 10);
  out.append(digits, static_cast<std::size_t>(count));
}

[[noreturn]] void throwNoTime(std::string_view text) {
  throw std::invalid_argument('"' + std::string(text) + "\" is no time such as 2024-03-08T19:00:00.015000Z");
}

// The decimals of a second, from their digits and the Z.
std::int64_t parseDecimals(std::string_view digits) {
  std::int64_t nanoseconds = 0;
  for (std::size_t i = 0; i < 9; ++i) {
    const char digit = i < digits.size() ? digits[i] : '0';
    if (digit < '0' || digit > '9') throw std::invalid_argument("no digit");
    nanoseconds = 10 * nanoseconds + (digit - '0');
  }
  return nanoseconds;
}

}  // namespace

std::string escaped(std::wstring_view text) { return UTFEncoder::toUTF8(StringUtils::escapeLine(text)); }
std::string escaped(std::string_view utf8) { return escaped(UTFEncoder::toWide(utf8)); }

void appendIsoTime(std::int64_t time, TimePrecision precision, std::string& out) {
  const sys_time<nanoseconds> point{nanoseconds(time)};
  const auto day = floor<days>(point);
  const year_month_day date(day);
  const hh_mm_ss clock(point - day);
  const bool isFine = precision == TimePrecision::NANOSECONDS;
  appendDigits(static_cast<int>(date.year()), 4, out);
  appendDigits(static_cast<unsigned>(date.month()), 2, out += '-');
  appendDigits(static_cast<unsigned>(date.day()), 2, out += '-');
  appendDigits(clock.hours().count(), 2, out += 'T');
  appendDigits(clock.minutes().count(), 2, out += ':');
  appendDigits(clock.seconds().count(), 2, out += ':');
  appendDigits(clock.subseconds().count() / (isFine ? 1 : 1000), isFine ? 9 : 6, out += '.');
  out += 'Z';
}

IsoTime parseIsoTime(std::string_view text) {
  int year = 0, hour = 0, minute = 0, second = 0, length = 0;
  unsigned month = 0, day = 0;
  const std::string copy(text);
  if (std::sscanf(copy.c_str(), "%4d-%2u-%2uT%2d:%2d:%2d%n", &year, &month, &day, &hour, &minute, &second, &length)
      != 6)
    throwNoTime(text);
  std::string_view rest = text.substr(static_cast<std::size_t>(length));
  const year_month_day date(std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day));
  if (!date.ok() || hour > 23 || minute > 59 || second > 59 || !rest.ends_with('Z')) throwNoTime(text);
  rest.remove_suffix(1);
  if (!rest.empty() && (rest.front() != '.' || rest.size() < 2 || rest.size() > 10)) throwNoTime(text);
  if (!rest.empty()) rest.remove_prefix(1);
  try {
    const nanoseconds time = sys_days(date).time_since_epoch() + hours(hour) + minutes(minute) + seconds(second)
                             + nanoseconds(parseDecimals(rest));
    return {time.count(), rest.size() > 6 ? TimePrecision::NANOSECONDS : TimePrecision::MICROSECONDS};
  } catch (const std::invalid_argument&) {
    throwNoTime(text);
  }
}

Colors::Colors(ColorChoice choice) : isOn_(wantsColors(choice)) {}

}  // namespace Tessel
