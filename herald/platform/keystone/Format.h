#pragma once
#include <herald/platform/keystone/Export.h>

#include <concepts>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>

namespace Tessel {

/// An object that prints itself: `%s` takes its debug text.
template <class T>
concept DebugPrintable = requires(const T& object) {
  { object.toDebugString() } -> std::convertible_to<std::wstring>;
};

/// A text field of a record: `%s` prints the bare text.
template <class T>
concept FormatTextField = requires(const T& field) {
  { field.getString() } -> std::convertible_to<std::wstring>;
};

/// What `%d`, `%i` and `%li` take. A 64-bit value prints whole under each of them.
template <class T>
concept FormatNumber = std::integral<T> || std::is_enum_v<T>;

/// A number field of a record, which prints as a number and as a text.
template <class T>
concept FormatNumberField = requires(const T& field) {
  { field.getValue() } -> std::integral;
};

template <class T>
concept FormatText = DebugPrintable<T> || FormatTextField<T> || std::convertible_to<const T&, std::wstring_view>;

/// One argument of `formatText`: a number or a text.
class FormatArgument {
 public:
  template <FormatNumber T>
  FormatArgument(T value) : number_(signExtended(value)) {}

  template <FormatText T>
  FormatArgument(const T& value) {
    if constexpr (FormatNumberField<T>) number_ = signExtended(value.getValue());
    if constexpr (FormatTextField<T>) {
      own_ = value.getString();
      text_ = own_;
    } else if constexpr (DebugPrintable<T>) {
      own_ = value.toDebugString();
      text_ = own_;
    } else {
      text_ = value;
    }
  }

  FormatArgument(const FormatArgument&) = delete;
  FormatArgument& operator=(const FormatArgument&) = delete;

  std::int64_t number() const { return number_; }
  std::wstring_view text() const { return text_; }

 private:
  // A char is a signed byte, also where plain char is unsigned.
  template <class T>
  static constexpr std::int64_t signExtended(T value) {
    if constexpr (std::same_as<T, char>)
      return static_cast<signed char>(value);
    else
      return static_cast<std::int64_t>(value);
  }

  std::int64_t number_ = 0;
  std::wstring own_;
  std::wstring_view text_;
};

/// A printf-style format with the placeholders %d, %i, %li (numbers) and %s (text, or an object with a debug text).
/// A format whose placeholders do not match the arguments does not compile.
template <class... Args>
class FormatString {
 public:
  consteval FormatString(const wchar_t* format) : format_(format) {
    const bool isText[] = {FormatText<Args>..., false};
    const bool isNumber[] = {(FormatNumber<Args> || FormatNumberField<Args>)..., false};
    std::size_t argument = 0;
    for (const wchar_t* c = format; *c != L'\0'; ++c) {
      if (*c != L'%') continue;
      ++c;
      if (*c == L'l') ++c;
      if (*c != L'd' && *c != L'i' && *c != L's') throw std::invalid_argument("unknown placeholder");
      if (argument == sizeof...(Args)) throw std::invalid_argument("more placeholders than arguments");
      if (*c == L's' ? !isText[argument] : !isNumber[argument])
        throw std::invalid_argument("placeholder and argument differ in kind");
      ++argument;
    }
    if (argument != sizeof...(Args)) throw std::invalid_argument("fewer placeholders than arguments");
  }

  constexpr const wchar_t* get() const { return format_; }

 private:
  const wchar_t* format_;
};

HERALD_API std::wstring formatArguments(const wchar_t* format, std::span<const FormatArgument> arguments);

/// The format with each placeholder replaced by its argument, in order. Text is taken whole, U+0000 included. (By the
/// name of std::format it would meet that one wherever an argument is a std::wstring.)
template <class... Args>
std::wstring formatText(FormatString<std::type_identity_t<Args>...> format, const Args&... args) {
  if constexpr (sizeof...(Args) == 0) {
    return format.get();
  } else {
    const FormatArgument arguments[] = {FormatArgument(args)...};
    return formatArguments(format.get(), arguments);
  }
}

/// The debug texts of the elements, separated by ", ".
template <class Range>
std::wstring joinDebugTexts(const Range& elements) {
  std::wstring text;
  for (const auto& element : elements) {
    if (!text.empty()) text += L", ";
    text += element.toDebugString();
  }
  return text;
}

}  // namespace Tessel
