#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TesselBool.h>

namespace Tessel {

std::wstring TesselBool::toDebugString() const { return value_ ? L"true" : L"false"; }

}  // namespace Tessel
