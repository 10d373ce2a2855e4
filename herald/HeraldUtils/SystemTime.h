#pragma once
#include <herald/platform/keystone/TsTime.h>

namespace Tessel {

/// A clock.
class HERALD_API TimeInterface {
 public:
  virtual ~TimeInterface();
  /// Stores the present into the argument.
  virtual void getTime(TsTime& time) const = 0;
};

/// The server's clock, as `CurrentServerTimeModel` estimates it.
class HERALD_API SystemTime : public TimeInterface {
 public:
  ~SystemTime() override;
  void getTime(TsTime& time) const override;
};

}  // namespace Tessel
