#pragma once
#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "FieldPlaces.h"

namespace Tessel {

/// A message or request of a capture.
struct Example {
  /// The name of the file, without its folder.
  std::string capture;
  std::uint64_t packet = 0;
  std::vector<std::uint8_t> body;
  std::vector<FieldPlace> places;
  /// As UTF-8.
  std::string debugText;
};

using Examples = std::map<std::string, Example>;

/// An example of each class that the captures hold whole, the most telling of moderate size. Throws `CaptureError`, and
/// `DamagedPacket`.
Examples findExamples(const std::vector<std::string>& captures);

}  // namespace Tessel
