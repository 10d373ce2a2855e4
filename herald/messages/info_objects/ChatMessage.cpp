#include <herald/messages/info_objects/ChatMessage.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

std::wstring ChatMessage::toDebugString() const {
  return formatText(L"[ChatMessage: Nickname=%s, Message=%s]", nickname_, message_);
}

}  // namespace Tessel
