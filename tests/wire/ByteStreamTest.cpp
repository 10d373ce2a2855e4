#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/Notation.h>

#include <cstdint>
#include <functional>
#include <limits>

namespace Tessel {

namespace {

template <class T>
void expectWireForm(T value, std::string_view notation) {
  ByteStream out;
  out << value;
  EXPECT_EQ(toHex(out.bytes()), notation);
  T read{};
  out >> read;
  EXPECT_EQ(read, value);
  EXPECT_TRUE(out.eos());
}

template <class T>
void expectExtremes(std::string_view lowest, std::string_view highest) {
  expectWireForm(std::numeric_limits<T>::min(), lowest);
  expectWireForm(std::numeric_limits<T>::max(), highest);
}

template <class T>
void expectNothingReadFrom(std::string_view notation) {
  ByteStream in(toBytes(notation));
  T value{};
  EXPECT_THROW(in >> value, KeystoneException);
  EXPECT_EQ(in.unreadCount(), toBytes(notation).size());
  EXPECT_EQ(value, T{});
}

TEST(ByteStream, NumbersTravelHighByteFirstInTheirWidth) {
  expectExtremes<std::int8_t>("80", "7F");
  expectExtremes<std::int16_t>("8000", "7FFF");
  expectExtremes<std::int32_t>("80000000", "7FFFFFFF");
  expectExtremes<std::int64_t>("8000000000000000", "7FFFFFFFFFFFFFFF");
  expectWireForm(char{'\x90'}, "90");
  expectWireForm(std::int16_t{0x0102}, "0102");
  expectWireForm(std::int32_t{0x01020304}, "01020304");
  expectWireForm(std::int64_t{-0x0102030405060708}, "FEFDFCFBFAF9F8F8");
  expectWireForm(true, "01");
  expectWireForm(false, "00");
}

TEST(ByteStream, ANumberPastTheEndConsumesNothing) {
  expectNothingReadFrom<char>("");
  expectNothingReadFrom<std::int8_t>("");
  expectNothingReadFrom<bool>("");
  expectNothingReadFrom<std::int16_t>("01");
  expectNothingReadFrom<std::int32_t>("010203");
  expectNothingReadFrom<std::int64_t>("01020304050607");
  ByteStream in(toBytes("0102"));
  EXPECT_THROW(in.skip(3), KeystoneException);
  EXPECT_EQ(in.unreadCount(), 2u);
}

TEST(ByteStream, TellsWhatIsHeldAndWhatIsUnread) {
  ByteStream stream(toBytes("010203"));
  std::int8_t value = 0;
  stream >> value;
  EXPECT_EQ(stream.GetSize(), 3);
  EXPECT_EQ(toHex(stream.bytes()), "010203");
  EXPECT_EQ(toHex(stream.unread()), "0203");
  EXPECT_FALSE(stream.eos());

  ByteStream copy(stream);
  stream.skip(2);
  EXPECT_TRUE(stream.eos());
  EXPECT_EQ(toHex(copy.unread()), "0203");
  copy << std::int16_t{4};
  copy.append(toBytes("AB"));
  EXPECT_EQ(toHex(copy.unread()), "02030004AB");
  EXPECT_EQ(stream.GetSize(), 3);

  copy.truncate(9);
  EXPECT_EQ(copy.GetSize(), 6);
  copy.truncate(2);
  EXPECT_EQ(toHex(copy.unread()), "02");
  EXPECT_FALSE(copy.eos()) << "one byte is left";
  copy.truncate(0);
  EXPECT_EQ(copy.unreadCount(), 0u) << "the read position stays within the bytes";
  copy.clear();
  EXPECT_TRUE(copy.eos());
  EXPECT_EQ(copy.GetSize(), 0);
}

TEST(ByteStream, AViewReadsTheCallersBytesAndCopiesThemBeforeItWrites) {
  const std::vector<std::uint8_t> bytes = toBytes("010203");
  const auto expectBytes = [&](std::string_view notation, bool areTheCallers,
                               const std::function<void(ByteStream&)>& change) {
    ByteStream stream = ByteStream::view(bytes);
    stream.skip(1);
    change(stream);
    EXPECT_EQ(toHex(stream.bytes()), notation);
    EXPECT_EQ(stream.bytes().data() == bytes.data(), areTheCallers) << notation;
    EXPECT_EQ(toHex(bytes), "010203");
  };
  expectBytes("010203", true, [](ByteStream& stream) { EXPECT_EQ(toHex(stream.unread()), "0203"); });
  expectBytes("0102", true, [](ByteStream& stream) { stream.truncate(2); });
  expectBytes("0104", false, [](ByteStream& stream) { stream.truncate(1), stream << std::int8_t{4}; });
  expectBytes("01020304", false, [](ByteStream& stream) { stream << std::int8_t{4}; });
  expectBytes("7F0203", false, [](ByteStream& stream) { stream.SetAt(0, '\x7F'); });
  expectBytes("04", false, [](ByteStream& stream) { stream.clear(), stream << std::int8_t{4}; });
  expectBytes("010203", false, [](ByteStream& stream) { stream = ByteStream(stream); });
}

TEST(ByteStream, OverwritesHeldBytesOnly) {
  ByteStream stream(toBytes("010203"));
  stream.skip(2);
  stream.SetAt(0, '\x7F');
  stream.SetAt(2, '\xFE');
  EXPECT_EQ(toHex(stream.bytes()), "7F02FE");
  EXPECT_THROW(stream.SetAt(3, 0), OutOfBoundsException);
  EXPECT_THROW(stream.SetAt(-1, 0), OutOfBoundsException);
}

}  // namespace

}  // namespace Tessel
