#include <herald/messages/info_objects/InfoListOperations.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TesselByte.h>
#include <herald/platform/keystone/StringUtils.h>

namespace Tessel {

std::wstring TesselByte::toDebugString() const { return StringUtils::intToString(value_); }

template class InfoList<TesselByte>;

}  // namespace Tessel
