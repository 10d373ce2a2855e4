#include <herald/messages/CardEvents.h>
#include <herald/messages/MessageOperations.h>

namespace Tessel {

std::wstring ClientDiscardCards::toDebugString() const { return formatText(L"[ClientDiscardCards%s]", discarded_); }

}  // namespace Tessel
