#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/Notation.h>
#include <tests/support/RecordingSink.h>

#include <string>

namespace Tessel {

namespace {

/// The string of one code point: one unit, or a surrogate pair where wchar_t has 16 bits.
std::wstring wide(char32_t c) {
  if (sizeof(wchar_t) == 4 || c < 0x10000) return {static_cast<wchar_t>(c)};
  return {static_cast<wchar_t>(0xD800 + ((c - 0x10000) >> 10)), static_cast<wchar_t>(0xDC00 + (c & 0x3FF))};
}

TEST(Strings, EachCodePointHasItsBytes) {
  const struct {
    char32_t codePoint;
    std::string_view bytes;
  } cases[] = {
      {0x00, "0001 00"},          {0x7F, "0001 7F"},          {0x80, "0002 C280"},         {0x7FF, "0002 DFBF"},
      {0x800, "0003 E0A080"},     {0xD7FF, "0003 ED9FBF"},    {0xE000, "0003 EE8080"},     {0xFFFF, "0003 EFBFBF"},
      {0x10000, "0004 F0908080"}, {0x1F600, "0004 F09F9880"}, {0x10FFFF, "0004 F48FBFBF"},
  };
  for (const auto& [codePoint, bytes] : cases) {
    const std::wstring text = wide(codePoint);
    ByteStream stream;
    UTFEncoder::encodeToTsUTF8(text, stream);
    EXPECT_EQ(toHex(stream.bytes()), toHex(toBytes(bytes)));
    EXPECT_EQ(UTFEncoder::getTsUTF8EncodedLength(text) + 2, stream.GetSize());
    EXPECT_EQ(UTFEncoder::decodeFromTsUTF8(stream), text);
    EXPECT_TRUE(stream.eos());
  }
}

TEST(Strings, WhatIsNoTextIsConsumedWholeAndRefused) {
  const std::string_view bodies[] = {"80",         "BF",       "C080",   "C1BF",     "C2",          "C241",
                                     "E08080",     "E09FBF",   "E180",   "E18041",   "EDA080",      "EDBFBF",
                                     "F0808080",   "F08FBFBF", "F18080", "F1808041", "F4908080",    "F5808080",
                                     "F888808080", "FE",       "FF",     "41428043", "EDA0BDEDB880"};
  for (const auto body : bodies) {
    SCOPED_TRACE(body);
    const auto bytes = toBytes(body);
    ByteStream in;
    in << static_cast<std::int16_t>(bytes.size());
    in.append(bytes);
    in << std::int8_t{0x55};
    EXPECT_THROW(UTFEncoder::decodeFromTsUTF8(in), KeystoneException);
    EXPECT_EQ(toHex(in.unread()), "55");
  }
}

TEST(Strings, EveryByteIsLookedAt) {
  for (std::size_t size = 1; size <= 17; ++size) {
    for (std::size_t bad = 0; bad < size; ++bad) {
      std::string text(size, 'a');
      EXPECT_TRUE(UTFEncoder::isValid(text));
      text[bad] = '\x80';
      EXPECT_FALSE(UTFEncoder::isValid(text)) << bad << " of " << size;
    }
  }
}

TEST(Strings, AWideCharacterBeyondUnicodeIsReplaced) {
  if (sizeof(wchar_t) == 2) GTEST_SKIP() << "there is none";
  for (const int unit : {0x110000, -1})
    EXPECT_EQ(UTFEncoder::toUTF8(std::wstring(1, static_cast<wchar_t>(unit))), "\uFFFD") << unit;
}

TEST(Strings, ATextThatIsCutShortTakesAllThatIsLeft) {
  for (const auto body : {"", "00", "0001", "0002 41", "0005 41424344", "FFFF 41", "8000"}) {
    SCOPED_TRACE(body);
    ByteStream in(toBytes(body));
    EXPECT_THROW(UTFEncoder::decodeFromTsUTF8(in), KeystoneException);
    EXPECT_TRUE(in.eos());
  }
}

TEST(Strings, AreAsLongAsTheirCountCanTell) {
  ByteStream stream;
  UTFEncoder::encodeToTsUTF8(std::wstring(65535, L'x'), stream);
  EXPECT_EQ(stream.GetSize(), 65537);
  EXPECT_EQ(toHex(stream.bytes().first(3)), "FFFF78");
  EXPECT_EQ(UTFEncoder::decodeFromTsUTF8(stream), std::wstring(65535, L'x'));

  ByteStream out(toBytes("01"));
  EXPECT_THROW(UTFEncoder::encodeToTsUTF8(std::wstring(65536, L'x'), out), KeystoneException);
  // Half as many characters, but of two bytes each.
  EXPECT_THROW(UTFEncoder::encodeToTsUTF8(std::wstring(32768, wchar_t{0xE5}), out), KeystoneException);
  EXPECT_EQ(toHex(out.bytes()), "01");
}

TEST(Strings, ALoneSurrogateCannotBeWritten) {
  for (const wchar_t unit : {wchar_t{0xD800}, wchar_t{0xDBFF}, wchar_t{0xDC00}, wchar_t{0xDFFF}}) {
    for (const std::wstring& text : {std::wstring{unit}, L"a" + std::wstring{unit} + L"b"}) {
      ByteStream out;
      EXPECT_THROW(UTFEncoder::encodeToTsUTF8(text, out), KeystoneException);
      EXPECT_EQ(out.GetSize(), 0);

      const WithRecordingSink recording;
      TsString held(L"before");
      held.setString(text);
      EXPECT_EQ(held.getString(), text);
      EXPECT_FALSE(held.write(out));
      EXPECT_EQ(out.GetSize(), 0);
      EXPECT_EQ(recording.sink->reports.size(), 1u);
    }
  }
}

class Reporter : public BugReporterInterface {
 public:
  void report(const KVRException&) override { ++reports; }
  int reports = 0;
};

// A text of a list is reported once, also when the list turns out to be cut short behind it.
TEST(TsString, IsReportedOnceInAListThatIsCutShort) {
  const WithRecordingSink recording;
  ByteStream in(toBytes(R"(0003 0001 FF 0006 "abcdef")"));
  InfoList<TsString> list;
  EXPECT_TRUE(list.read(in));
  EXPECT_EQ(list.getNrInfos(), 3);
  EXPECT_EQ(list[1].getString(), L"abcdef");
  EXPECT_EQ(recording.sink->reports.size(), 2u) << "of the first and the last";
}

TEST(TsString, KeepsItsTextAndTellsItsReporterWhenAReadFails) {
  const WithRecordingSink recording;
  Reporter reporter;
  TsString text(L"old");
  text.setBugReporter(&reporter);
  TsString copy(text);
  ByteStream in(toBytes(R"(0001 FF 0001 "x" 0002 "y")"));
  EXPECT_FALSE(copy.read(in));
  EXPECT_EQ(copy, text);
  EXPECT_EQ(reporter.reports, 1);
  EXPECT_TRUE(copy.read(in));
  EXPECT_EQ(copy.getString(), L"x");
  copy.setBugReporter(nullptr);
  EXPECT_FALSE(copy.read(in));
  EXPECT_EQ(reporter.reports, 1);
  EXPECT_EQ(recording.sink->reports.size(), 1u);
  EXPECT_EQ(copy.getString(), L"x");
}

}  // namespace

}  // namespace Tessel
