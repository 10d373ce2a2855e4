#pragma once
#include <herald/platform/keystone/Export.h>

#include <string>

namespace Tessel {

/// When something of a lobby node is due.
class HERALD_API NodeTimer {
 public:
  /// The time stamp is in milliseconds of `SystemClock::getProcessClock`.
  NodeTimer(int id, char type, long timeStamp) : id_(id), type_(type), timeStamp_(timeStamp) {}
  NodeTimer(const NodeTimer&) = default;
  NodeTimer(NodeTimer&&) = default;
  NodeTimer& operator=(const NodeTimer&) = default;
  NodeTimer& operator=(NodeTimer&&) = default;
  virtual ~NodeTimer();

  int getId() const { return id_; }
  char getType() const { return type_; }
  /// In milliseconds of `SystemClock::getProcessClock`.
  long getTimeStamp() const { return timeStamp_; }
  /// Stores the type and answers it, sign-extended.
  int setType(char type);
  void setTimer(long timeStamp) { timeStamp_ = timeStamp; }

  /// Says also how many whole seconds from now the timer is due.
  virtual std::wstring toDebugString() const;

 private:
  int id_;
  char type_;
  long timeStamp_;
};

}  // namespace Tessel
