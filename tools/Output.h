#pragma once
#include <stdexcept>
#include <string_view>

namespace Tessel {

/// Standard output took no more: the disk is full, or the reader of the pipe has gone.
class OutputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Standard output. Both operations throw `OutputError`.
class Output {
 public:
  void write(std::string_view text);
  /// Hands on what is buffered. Only what this did not throw for has been written.
  void flush();
};

}  // namespace Tessel
