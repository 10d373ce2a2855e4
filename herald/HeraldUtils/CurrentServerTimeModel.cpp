#include <herald/HeraldUtils/CurrentServerTimeModel.h>
#include <herald/platform/keystone/SystemClock.h>

#include <mutex>

namespace Tessel {

CurrentServerTimeModel::CurrentServerTimeModel() = default;
CurrentServerTimeModel::~CurrentServerTimeModel() = default;

CurrentServerTimeModel* CurrentServerTimeModel::getInstance() {
  // Made by whoever asks first, which may be the constructor of a global object; never destroyed: objects that outlive
  // main may still ask.
  static CurrentServerTimeModel& instance = *new CurrentServerTimeModel;
  return &instance;
}

CurrentServerTimeModel& CurrentServerTimeModel::staticInstance = *getInstance();

void CurrentServerTimeModel::setCurrentServerTime(TsTime time) { getInstance()->synchronise(time); }

TsTime CurrentServerTimeModel::getTime() { return getInstance()->estimate(); }

void CurrentServerTimeModel::synchronise(TsTime time) {
  const std::lock_guard guard(getLock());
  if (resynchronisationWanted_ && time > TsTime(-1)) {
    resynchronisationWanted_ = false;
    serverTime_ = time;
    tickCount_ = SystemClock::getTickCount();
  }
  notifyObservers(CurrentServerTimeUpdateObject(*this));
}

TsTime CurrentServerTimeModel::estimate() {
  constexpr std::int64_t TICKS_PER_WRAP = std::int64_t{1} << 32;
  constexpr std::int64_t TICKS_PER_SECOND = 1000;

  const std::lock_guard guard(getLock());
  std::int64_t now = SystemClock::getTickCount();
  if (now < tickCount_) {
    now += TICKS_PER_WRAP;
    resynchronisationWanted_ = true;
  }
  return serverTime_ + TsTimeSpan((now - tickCount_) / TICKS_PER_SECOND);
}

NotificationUpdateObject* CurrentServerTimeUpdateObject::clone() const {
  return new CurrentServerTimeUpdateObject(*this);
}

void CurrentServerTimeUpdateObject::accept(CurrentServerTimeUpdateVisitor& visitor) const { visitor.visit(*this); }

CurrentServerTimeUpdateVisitor::~CurrentServerTimeUpdateVisitor() = default;

}  // namespace Tessel
