#include "Input.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <zlib.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <string_view>
#include <system_error>
#include <thread>

namespace Tessel {

namespace {

constexpr std::size_t BUFFER_SIZE = 1 << 16;
constexpr std::size_t LONGEST_BEGINNING = 4;
constexpr std::string_view GZIP_MAGIC = "\x1F\x8B";
constexpr auto LOOKS_FOR_MORE_EVERY = std::chrono::milliseconds(100);

[[noreturn]] void throwError(int error) { throw InputError(std::generic_category().message(error)); }

int openFile(const std::string& file) {
  if (file == "-") return STDIN_FILENO;
  const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0) throwError(errno);
  return descriptor;
}

std::optional<std::uint64_t> sizeOf(int descriptor) {
  struct stat status {};
  if (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  return static_cast<std::uint64_t>(status.st_size);
}

bool isReady(int descriptor) {
  pollfd ready{descriptor, POLLIN, 0};
  return poll(&ready, 1, 0) != 0;
}

}  // namespace

void Input::EndInflating::operator()(z_stream_s* stream) const {
  inflateEnd(stream);
  delete stream;
}

Input::Input(const std::string& file, InputOptions options)
    : options_(std::move(options)), descriptor_(openFile(file)), size_(sizeOf(descriptor_)) {
  buffer_.reserve(BUFFER_SIZE);
  while (buffer_.size() < GZIP_MAGIC.size() && fillBuffer()) {
  }
  if (std::string_view(buffer_.data(), buffer_.size()).starts_with(GZIP_MAGIC)) startInflating();
}

Input::~Input() {
  if (descriptor_ != STDIN_FILENO) close(descriptor_);
}

void Input::startInflating() {
  constexpr int GZIP_WINDOW_BITS = 15 + 16;
  auto stream = std::make_unique<z_stream>();
  if (inflateInit2(stream.get(), GZIP_WINDOW_BITS) != Z_OK) throw InputError("no memory to decompress it");
  inflater_.reset(stream.release());
}

std::size_t Input::read(char* to, std::size_t size) {
  if (inflater_) return readInflated(to, size);
  if (bufferedFrom_ == buffer_.size()) return readRaw(to, size);
  const std::size_t count = std::min(size, buffer_.size() - bufferedFrom_);
  std::copy_n(buffer_.data() + bufferedFrom_, count, to);
  bufferedFrom_ += count;
  return count;
}

std::size_t Input::readRaw(char* to, std::size_t size) {
  for (;;) {
    if (!size_ && !isReady(descriptor_)) options_.beforeWaiting();
    const ssize_t count = ::read(descriptor_, to, size);
    if (count > 0) {
      rawCount_ += static_cast<std::uint64_t>(count);
      return static_cast<std::size_t>(count);
    }
    if (count < 0 && errno != EINTR) throwError(errno);
    if (count == 0 && !(options_.follows && size_)) return 0;
    if (count == 0) wait();
  }
}

void Input::wait() {
  options_.beforeWaiting();
  std::this_thread::sleep_for(LOOKS_FOR_MORE_EVERY);
  size_ = sizeOf(descriptor_);
  if (size_.value_or(0) < rawCount_) throw InputError("the file has become shorter than what was read of it");
}

// Appends to what is buffered, so that it can be looked at before it is read. False at the end.
bool Input::fillBuffer() {
  if (bufferedFrom_ == buffer_.size()) {
    buffer_.clear();
    bufferedFrom_ = 0;
  }
  const std::size_t before = buffer_.size();
  buffer_.resize(BUFFER_SIZE);
  const std::size_t count = readRaw(buffer_.data() + before, BUFFER_SIZE - before);
  buffer_.resize(before + count);
  return count > 0;
}

// A file may be several compressed ones, one behind the other.
std::size_t Input::readInflated(char* to, std::size_t size) {
  inflater_->next_out = reinterpret_cast<Bytef*>(to);
  inflater_->avail_out = static_cast<uInt>(size);
  while (inflater_->avail_out == size) {
    if (bufferedFrom_ == buffer_.size() && !fillBuffer()) {
      if (isWithinMember_) throw InputError("the compressed file is cut short");
      return 0;
    }
    isWithinMember_ = true;
    inflater_->next_in = reinterpret_cast<Bytef*>(buffer_.data() + bufferedFrom_);
    inflater_->avail_in = static_cast<uInt>(buffer_.size() - bufferedFrom_);
    const int result = inflate(inflater_.get(), Z_NO_FLUSH);
    bufferedFrom_ = buffer_.size() - inflater_->avail_in;
    if (result == Z_STREAM_END) {
      isWithinMember_ = false;
      inflateReset(inflater_.get());
    } else if (result != Z_OK && result != Z_BUF_ERROR) {
      throw InputError("the compressed file is damaged");
    }
  }
  return size - inflater_->avail_out;
}

std::optional<double> Input::shareRead() const {
  if (!size_ || *size_ == 0) return std::nullopt;
  return static_cast<double>(rawCount_) / static_cast<double>(*size_);
}

std::FILE* InputFile::open() {
  std::FILE* file = fopencookie(this, "rb", {.read = readCookie, .write = nullptr, .seek = nullptr, .close = nullptr});
  if (file == nullptr) throwError(errno);
  std::setvbuf(file, nullptr, _IOFBF, BUFFER_SIZE);
  return file;
}

void InputFile::rethrow() const {
  if (failure_) std::rethrow_exception(failure_);
}

bool InputFile::beginsWithAnyOf(std::span<const std::string_view> beginnings) const {
  return std::ranges::any_of(beginnings,
                             [this](std::string_view beginning) { return beginning_.starts_with(beginning); });
}

ssize_t InputFile::readCookie(void* self, char* to, std::size_t size) {
  auto* file = static_cast<InputFile*>(self);
  try {
    const std::size_t count = file->input_->read(to, size);
    if (std::string& beginning = file->beginning_; beginning.size() < LONGEST_BEGINNING)
      beginning.append(to, std::min(count, LONGEST_BEGINNING - beginning.size()));
    return static_cast<ssize_t>(count);
  } catch (...) {
    file->failure_ = std::current_exception();
    return -1;
  }
}

}  // namespace Tessel
