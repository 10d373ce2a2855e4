#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TesselInt.h>
#include <herald/platform/keystone/StringUtils.h>

namespace Tessel {

std::wstring TesselInt::toDebugString() const { return StringUtils::intToString(value_); }

template class InfoList<TesselInt>;

}  // namespace Tessel
