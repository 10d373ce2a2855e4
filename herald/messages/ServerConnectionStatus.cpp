#include <herald/dispatch/AbstractClientMessageHandler.h>
#include <herald/messages/ServerConnectionStatus.h>

namespace Tessel {

ServerConnectionStatus::ServerConnectionStatus(const ConnectionStatus* status) : status_(status->cloneOwned()) {}

ServerConnectionStatus::ServerConnectionStatus(const ServerConnectionStatus& other)
    : ClientMessage(), status_(other.status_) {}

ServerConnectionStatus& ServerConnectionStatus::operator=(const ServerConnectionStatus& other) {
  status_ = other.status_;
  return *this;
}

ServerConnectionStatus::~ServerConnectionStatus() = default;

bool ServerConnectionStatus::read(ByteStream&) { return true; }

void ServerConnectionStatus::handle(AbstractClientMessageHandler& handler) const { handler.handle(*this); }

std::wstring ServerConnectionStatus::toDebugString() const { return L"[ServerConnectionStatus]"; }

void ServerConnectionStatus::describe(FieldSink&) const {}

}  // namespace Tessel
