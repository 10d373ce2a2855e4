#include "Capture.h"

namespace Samples {

namespace {

using Tessel::Direction;

constexpr std::int64_t SERVER_MILLISECONDS = 15;
constexpr std::int64_t CLIENT_MILLISECONDS = 240;

}  // namespace

Capture::Capture(const std::filesystem::path& file) : writer_(file.string(), Tessel::TimePrecision::MICROSECONDS) {}

void Capture::server(int id, const Body& body) {
  milliseconds_ += SERVER_MILLISECONDS;
  write(Direction::FROM_SERVER, Body().i16(id).fields(body));
}

void Capture::client(const Tessel::ServerMessage& request) {
  milliseconds_ += CLIENT_MILLISECONDS;
  write(Direction::TO_SERVER, Body().record(request));
}

void Capture::write(Direction direction, const Body& message) {
  constexpr std::int64_t NANOSECONDS_PER_MILLISECOND = 1'000'000;
  writer_.write(direction, milliseconds_ * NANOSECONDS_PER_MILLISECOND, message.bytes());
}

}  // namespace Samples
