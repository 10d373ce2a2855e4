#pragma once
#include <gtest/gtest.h>
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/TsString.h>
#include <herald/platform/keystone/ByteStream.h>

#include <cstdint>

// Bodies of tests, appended field by field: an int is a 32-bit field, text a string, `Money` a unit and
// an amount.

namespace Tessel::WireBytes {

constexpr std::int8_t byte(int value) { return static_cast<std::int8_t>(value); }
constexpr std::int16_t number16(int value) { return static_cast<std::int16_t>(value); }
constexpr std::int64_t number64(std::int64_t value) { return value; }

inline ByteStream& operator<<(ByteStream& out, const wchar_t* text) {
  EXPECT_TRUE(TsString(text).write(out));
  return out;
}

inline ByteStream& operator<<(ByteStream& out, const Money& money) {
  EXPECT_TRUE(MoneyInfo(money).write(out));
  return out;
}

/// What the bytes hold, all of which must be read.
template <class T>
T decode(ByteStream in) {
  T object;
  EXPECT_TRUE(object.read(in));
  EXPECT_EQ(in.unreadCount(), 0u);
  return object;
}

}  // namespace Tessel::WireBytes
