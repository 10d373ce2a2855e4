#pragma once
#include <herald/mailboxes/MessageKind.h>
#include <herald/messages/info_objects/SettingsInfo.h>

#include <memory>
#include <utility>

namespace Tessel {

class LobbyToGameMessage;
class BringTableToTop;
class LobbySettingsMessage;
class ShutdownGameModel;
class UserSettingsUpdate;

/// Receives the commands and settings from the lobby to a game model: one operation per kind.
class HERALD_API LobbyToGameMessageHandler {
 public:
  virtual ~LobbyToGameMessageHandler();

  /// Delivers the message to the handler and deletes it, also when the handler throws. Takes ownership; neither is
  /// null.
  static void handle(LobbyToGameMessageHandler* handler, LobbyToGameMessage* message);
  static void handle(LobbyToGameMessageHandler* handler, std::unique_ptr<LobbyToGameMessage> message);

  virtual void handle(const UserSettingsUpdate& message) = 0;
  virtual void handle(const ShutdownGameModel& message) = 0;
  virtual void handle(const BringTableToTop& message) = 0;
  virtual void handle(const LobbySettingsMessage& message) = 0;
};

/// Base of the commands and settings from the lobby to a game model.
class HERALD_API LobbyToGameMessage {
 public:
  using Handler = LobbyToGameMessageHandler;

  virtual ~LobbyToGameMessage();
  /// Calls the handler's operation for the message's own kind.
  virtual void handle(LobbyToGameMessageHandler* handler) = 0;

 protected:
  LobbyToGameMessage() = default;
  LobbyToGameMessage(const LobbyToGameMessage&) = default;
  LobbyToGameMessage(LobbyToGameMessage&&) = default;
  LobbyToGameMessage& operator=(const LobbyToGameMessage&) = default;
  LobbyToGameMessage& operator=(LobbyToGameMessage&&) = default;
};

class HERALD_API UserSettingsUpdate : public PointerMessageKind<UserSettingsUpdate, LobbyToGameMessage> {};

class HERALD_API ShutdownGameModel : public PointerMessageKind<ShutdownGameModel, LobbyToGameMessage> {};

class HERALD_API BringTableToTop : public PointerMessageKind<BringTableToTop, LobbyToGameMessage> {};

class HERALD_API LobbySettingsMessage : public PointerMessageKind<LobbySettingsMessage, LobbyToGameMessage> {
 public:
  explicit LobbySettingsMessage(SettingsInfo settings) : settings_(std::move(settings)) {}

  const SettingsInfo& getSettings() const { return settings_; }

 private:
  SettingsInfo settings_;
};

}  // namespace Tessel
