#include <herald/messages/info_objects/VIPList.h>

namespace Tessel {

const VIPPlayerInfo& VIPList::getVIPPlayer(int i) const { return dynamic_cast<const VIPPlayerInfo&>((*this)[i]); }

ReadableObjectInfo* VIPList::clone() const { return new VIPList(*this); }

}  // namespace Tessel
