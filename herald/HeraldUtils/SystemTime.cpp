#include <herald/HeraldUtils/CurrentServerTimeModel.h>
#include <herald/HeraldUtils/SystemTime.h>

namespace Tessel {

TimeInterface::~TimeInterface() = default;
SystemTime::~SystemTime() = default;

void SystemTime::getTime(TsTime& time) const { time = CurrentServerTimeModel::getTime(); }

}  // namespace Tessel
