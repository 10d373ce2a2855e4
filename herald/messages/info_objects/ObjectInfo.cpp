#include <herald/messages/info_objects/ObjectInfo.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

void throwNoInfoObjects() {
  throw KeystoneException(L"messages/info_objects/ObjectInfo", __LINE__, L"Array does not contain any info objects.");
}

}  // namespace Tessel
