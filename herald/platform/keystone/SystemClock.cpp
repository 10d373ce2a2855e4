#include <herald/platform/keystone/SystemClock.h>

#include <chrono>
#include <mutex>
#include <utility>

#ifdef _WIN32
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#else
#include <herald/platform/keystone/UTFEncoder.h>

#include <system_error>
#endif

namespace Tessel {

namespace {

namespace chrono = std::chrono;

chrono::steady_clock::time_point processStart() {
  static const chrono::steady_clock::time_point start = chrono::steady_clock::now();
  return start;
}

// Takes the time when the library is loaded, not when somebody first asks.
[[maybe_unused]] const chrono::steady_clock::time_point PROCESS_START = processStart();

std::int64_t toMilliseconds(chrono::steady_clock::duration duration) {
  return chrono::duration_cast<chrono::milliseconds>(duration).count();
}

class OperatingSystemClocks final : public ClockSource {
 public:
  std::uint32_t getTickCount() const override {
    return static_cast<std::uint32_t>(toMilliseconds(chrono::steady_clock::now().time_since_epoch()));
  }
  std::int64_t getProcessClock() const override { return toMilliseconds(chrono::steady_clock::now() - processStart()); }
  std::int64_t getCalendarTime() const override {
    return chrono::floor<chrono::seconds>(chrono::system_clock::now()).time_since_epoch().count();
  }
};

// The source in use. Never destroyed: objects that outlive main may still read a clock.
struct InstalledSource {
  std::mutex lock;
  std::shared_ptr<const ClockSource> source = std::make_shared<OperatingSystemClocks>();

  static InstalledSource& getInstance() {
    static InstalledSource& instance = *new InstalledSource;
    return instance;
  }
};

std::shared_ptr<const ClockSource> currentSource() {
  InstalledSource& installed = InstalledSource::getInstance();
  const std::lock_guard guard(installed.lock);
  return installed.source;
}

}  // namespace

ClockSource::~ClockSource() = default;

std::uint32_t SystemClock::getTickCount() { return currentSource()->getTickCount(); }
std::int64_t SystemClock::getProcessClock() { return currentSource()->getProcessClock(); }
std::int64_t SystemClock::getCalendarTime() { return currentSource()->getCalendarTime(); }

std::shared_ptr<const ClockSource> SystemClock::setSource(std::shared_ptr<const ClockSource> source) {
  if (!source) source = std::make_shared<OperatingSystemClocks>();
  InstalledSource& installed = InstalledSource::getInstance();
  const std::lock_guard guard(installed.lock);
  return std::exchange(installed.source, std::move(source));
}

#ifdef _WIN32

std::wstring getSystemErrorText(unsigned long code) {
  wchar_t* buffer = nullptr;
  const DWORD length = FormatMessageW(
      FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, code,
      MAKELANGID(LANG_NEUTRAL, SUBLANG_DEFAULT), reinterpret_cast<wchar_t*>(&buffer), 0, nullptr);
  if (length == 0) return L"Unknown error " + std::to_wstring(code);
  const std::unique_ptr<wchar_t, decltype(&LocalFree)> owner(buffer, &LocalFree);
  std::wstring text(buffer, length);
  text.erase(text.find_last_not_of(L"\r\n ") + 1);
  return text;
}

#else

std::wstring getSystemErrorText(unsigned long code) {
  return UTFEncoder::toWide(std::system_category().message(static_cast<int>(code)));
}

#endif

}  // namespace Tessel
