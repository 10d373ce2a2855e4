#pragma once
#include <cstdint>
#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

struct z_stream_s;

namespace Tessel {

/// A file that cannot be opened or not be read on.
class InputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

struct InputOptions {
  /// At the end of a file, waits until more has been written.
  bool follows = false;
  /// Called before reading waits for somebody else.
  std::function<void()> beforeWaiting = [] {};
};

/// The bytes of a file, of standard input ("-") or of what follows from them when they are compressed by gzip.
class Input {
 public:
  /// Throws `InputError`.
  Input(const std::string& file, InputOptions options);
  ~Input();
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;

  /// The next bytes, one at least; 0 at the end. Throws `InputError`.
  std::size_t read(char* to, std::size_t size);

  /// The share of the file that has been read, from 0 to 1; nothing for a pipe.
  std::optional<double> shareRead() const;

 private:
  void startInflating();
  std::size_t readRaw(char* to, std::size_t size);
  std::size_t readInflated(char* to, std::size_t size);
  bool fillBuffer();
  void wait();

  struct EndInflating {
    void operator()(z_stream_s* stream) const;
  };

  InputOptions options_;
  int descriptor_ = -1;
  std::uint64_t rawCount_ = 0;
  std::optional<std::uint64_t> size_;
  std::vector<char> buffer_;
  std::size_t bufferedFrom_ = 0;
  std::unique_ptr<z_stream_s, EndInflating> inflater_;
  bool isWithinMember_ = false;
};

/// The input as a stream of the C library, which owns it. What reading throws ends the stream and comes out of
/// `rethrow`.
class InputFile {
 public:
  explicit InputFile(std::unique_ptr<Input> input) : input_(std::move(input)) {}

  /// To be closed by the caller, and before this goes away.
  std::FILE* open();
  void rethrow() const;
  const Input& input() const { return *input_; }
  /// Whether its first bytes, as far as they have been read, are one of these, of at most four bytes.
  bool beginsWithAnyOf(std::span<const std::string_view> beginnings) const;

 private:
  static ssize_t readCookie(void* self, char* to, std::size_t size);

  std::unique_ptr<Input> input_;
  std::string beginning_;
  std::exception_ptr failure_;
};

}  // namespace Tessel
