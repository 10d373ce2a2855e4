#pragma once
#include <herald/mailboxes/MailBox.h>
#include <termios.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace CardRoom {

/// A key that the user has pressed: a message family of the application's own.
struct KeyPress {
  char key;
};
using KeyMailBox = Tessel::MailBox<KeyPress, 1>;

/// The terminal while the program has it: a full screen, and a thread that posts the keys.
class Terminal {
 public:
  struct Size {
    int columns;
    int rows;
  };

  /// Throws `std::runtime_error` when standard input or output is no terminal.
  explicit Terminal(KeyMailBox& keys);
  /// Leaves the terminal as it was.
  ~Terminal();
  Terminal(const Terminal&) = delete;
  Terminal& operator=(const Terminal&) = delete;

  static Size size();
  /// Replaces what is shown. Lines are cut to the terminal's size; escape sequences take no room in them.
  void show(const std::vector<std::wstring>& lines);

 private:
  void readKeys();

  KeyMailBox& keys_;
  termios before_{};
  std::atomic<bool> isOver_ = false;
  std::thread reader_;
};

}  // namespace CardRoom
