#pragma once
#include <gtest/gtest.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Money.h>
#include <herald/platform/keystone/UTFEncoder.h>
#include <tests/support/Golden.h>
#include <tests/support/Notation.h>

#include <span>
#include <string>
#include <string_view>
#include <type_traits>

// What accessors answer, in one line for a table of tests.

namespace Tessel {

inline std::string shown(const Money& money) {
  return std::to_string(money.getAmount()) + '/' + std::to_string(money.getMonetaryUnitId());
}
inline std::string shown(const std::wstring& text) { return UTFEncoder::toUTF8(text); }

template <class T>
requires requires(const T& card) { card.toCString(); }
std::string shown(const T& card) { return UTFEncoder::toUTF8(card.toCString()); }

template <class T>
requires std::is_arithmetic_v<T> || std::is_enum_v<T> std::string shown(T value) {
  return std::to_string(static_cast<long long>(value));
}

template <class List>
requires requires(const List& list) {
  list.at(0);
  list.size();
}
std::string shown(const List& list) {
  std::string text = "(";
  for (int i = 0; i < list.size(); ++i) text += (i == 0 ? "" : " ") + std::to_string(list.at(i));
  return text + ')';
}

/// The values, separated by blanks; money as amount/unit.
template <class... Values>
std::string told(const Values&... values) {
  std::string text;
  ((text += (text.empty() ? "" : " ") + shown(values)), ...);
  return text;
}

template <class T>
T read(std::span<const std::uint8_t> bytes) {
  ByteStream in(bytes);
  T object;
  EXPECT_TRUE(object.read(in));
  return object;
}

template <class T>
T read(std::string_view notation) {
  return read<T>(toBytes(notation));
}

/// The first golden case of the class.
template <class T>
T golden() {
  return read<T>(goldenCase(typeName<T>()).bytes);
}

/// Of the first golden case of a class, `it`, these accessors answer what the case says.
#define EXPECT_ANSWERS(Class, ...) \
  EXPECT_EQ([](const Class& it) { return told(__VA_ARGS__); }(golden<Class>()), goldenCase(#Class).told)

}  // namespace Tessel
