#include "Terminal.h"

#include <herald/platform/keystone/UTFEncoder.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <stdexcept>

namespace CardRoom {

namespace {

constexpr auto ENTER = "\033[?1049h\033[?25l";  // the other screen, no cursor
constexpr auto LEAVE = "\033[?25h\033[?1049l";

void put(const std::string& text) {
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fflush(stdout);
}

// The first so many columns of a line. An escape sequence ends with its first letter.
std::wstring cut(const std::wstring& line, int columns) {
  std::wstring shown;
  bool isEscape = false;
  for (const wchar_t letter : line) {
    if (letter == L'\033') isEscape = true;
    if (!isEscape && --columns < 0) break;
    shown += letter;
    if (isEscape && ((letter >= L'a' && letter <= L'z') || (letter >= L'A' && letter <= L'Z'))) isEscape = false;
  }
  return shown + L"\033[0m";
}

}  // namespace

Terminal::Terminal(KeyMailBox& keys) : keys_(keys) {
  if (isatty(STDIN_FILENO) == 0 || isatty(STDOUT_FILENO) == 0 || tcgetattr(STDIN_FILENO, &before_) != 0)
    throw std::runtime_error("this needs a terminal");
  termios raw = before_;
  raw.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
  tcsetattr(STDIN_FILENO, TCSANOW, &raw);
  put(ENTER);
  reader_ = std::thread([this] { readKeys(); });
}

Terminal::~Terminal() {
  isOver_ = true;
  reader_.join();
  put(LEAVE);
  tcsetattr(STDIN_FILENO, TCSANOW, &before_);
}

void Terminal::readKeys() {
  constexpr int WAIT_MS = 100;
  while (!isOver_) {
    pollfd input = {STDIN_FILENO, POLLIN, 0};
    char key = 0;
    if (poll(&input, 1, WAIT_MS) <= 0) continue;
    if (read(STDIN_FILENO, &key, 1) != 1) return;
    keys_.post(std::make_unique<KeyPress>(KeyPress{key}));
  }
}

Terminal::Size Terminal::size() {
  winsize window{};
  if (ioctl(STDOUT_FILENO, TIOCGWINSZ, &window) != 0 || window.ws_col == 0) return {80, 24};
  return {window.ws_col, window.ws_row};
}

void Terminal::show(const std::vector<std::wstring>& lines) {
  const Size size = Terminal::size();
  std::wstring screen = L"\033[H";
  for (int row = 0; row < size.rows; ++row) {
    if (row > 0) screen += L"\r\n";
    if (row < static_cast<int>(lines.size())) screen += cut(lines[static_cast<std::size_t>(row)], size.columns);
    screen += L"\033[K";
  }
  put(Tessel::UTFEncoder::toUTF8(screen));
}

}  // namespace CardRoom
