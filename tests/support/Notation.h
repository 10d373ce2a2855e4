#pragma once
#include <herald/inspect/Inspectable.h>
#include <herald/wire/FieldSink.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// How tests write bytes, values and texts.

namespace Tessel {

/// Bytes from hex digits and quoted texts, which stand for their UTF-8: `00000007 03 0004 "Åsa"`. Throws
/// `std::invalid_argument` for anything else.
std::vector<std::uint8_t> toBytes(std::string_view notation);
std::string toHex(std::span<const std::uint8_t> bytes);

/// A text with \t, \n, \0, \" and \\ for the characters that have no place in a line or within quotes.
std::string unescape(std::string_view text);

/// Every value that the object tells, in wire order: numbers, quoted texts, and lists in parentheses, each behind its
/// count where it travels with one: `7 "Åsa" (2 1 5)`.
std::string valuesOf(Inspectable object);

/// The bytes that its fields make; a failure when they cannot be encoded.
std::vector<std::uint8_t> encodedOf(Inspectable object);

}  // namespace Tessel
