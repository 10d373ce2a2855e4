#include <herald/messages/RequestFrame.h>
#include <herald/messages/ServerMessage.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

void reportBodyTooLong(std::size_t size) {
  KeystoneException(L"messages/ServerMessage", __LINE__,
                    L"A body of " + std::to_wstring(size) + L" bytes is too long for a request.")
      .report();
}

}  // namespace Tessel
