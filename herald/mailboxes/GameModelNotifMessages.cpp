#include <herald/mailboxes/GameModelNotifMessages.h>

namespace Tessel {

void* GameModelNotifMessage::operator new(std::size_t size) { return ::operator new(size); }

void GameModelNotifMessage::operator delete(void* storage) { ::operator delete(storage); }

void GameModelNotifMessage::operator delete(GameModelNotifMessage* message, std::destroying_delete_t) {
  operator delete(static_cast<void*>(message));
}

GameModelNotificationHandler::~GameModelNotificationHandler() = default;

void GameModelNotificationHandler::handle(GameModelNotificationHandler* handler, GameModelNotifMessage* message) {
  handle(handler, std::unique_ptr<GameModelNotifMessage>(message));
}

void GameModelNotificationHandler::handle(GameModelNotificationHandler* handler,
                                          std::unique_ptr<GameModelNotifMessage> message) {
  message->handle(handler);
}

void GMGameIdSwitch::handle(GameModelNotificationHandler* handler) { handler->handle(*this); }
void GMGameSelected::handle(GameModelNotificationHandler* handler) { handler->handle(*this); }
void GMFullScreenMode::handle(GameModelNotificationHandler* handler) { handler->handle(*this); }
void GMLobby::handle(GameModelNotificationHandler* handler) { handler->handle(*this); }
void GMAttention::handle(GameModelNotificationHandler* handler) { handler->handle(*this); }
void GMLeave::handle(GameModelNotificationHandler* handler) { handler->handle(*this); }

}  // namespace Tessel
