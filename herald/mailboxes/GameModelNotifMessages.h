#pragma once
#include <herald/platform/keystone/Export.h>

#include <concepts>
#include <cstddef>
#include <memory>
#include <new>
#include <type_traits>

// The family has no virtual destructor: its kinds are trivially destructible, which is asserted below, and final.
// NOLINTBEGIN(cppcoreguidelines-virtual-class-destructor)

namespace Tessel {

class GameModelNotifMessage;
class GMAttention;
class GMFullScreenMode;
class GMGameIdSwitch;
class GMGameSelected;
class GMLeave;
class GMLobby;

/// Receives the notifications of the game models: one operation per kind.
class HERALD_API GameModelNotificationHandler {
 public:
  virtual ~GameModelNotificationHandler();

  /// Delivers the message to the handler and deletes it, also when the handler throws. Takes ownership; neither is
  /// null.
  static void handle(GameModelNotificationHandler* handler, GameModelNotifMessage* message);
  static void handle(GameModelNotificationHandler* handler, std::unique_ptr<GameModelNotifMessage> message);

  virtual void handle(const GMGameIdSwitch& message) = 0;
  virtual void handle(const GMGameSelected& message) = 0;
  virtual void handle(const GMFullScreenMode& message) = 0;
  virtual void handle(const GMLobby& message) = 0;
  virtual void handle(const GMAttention& message) = 0;
  virtual void handle(const GMLeave& message) = 0;
};

#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

/// Base of the notifications of a game model to its owner.
class HERALD_API GameModelNotifMessage {
 public:
  explicit GameModelNotifMessage(int gameId) : gameId_(gameId) {}

  /// Calls the handler's operation for the message's own kind.
  virtual void handle(GameModelNotificationHandler* handler) = 0;

  int getGameId() const { return gameId_; }

  /// As everywhere. That they are declared beside the one below keeps g++ from taking it for a mismatch with `new`.
  static void* operator new(std::size_t size);
  static void operator delete(void* storage);
  /// Deletes a message of any kind through a pointer to this base: there is nothing to destroy, only storage to free.
  static void operator delete(GameModelNotifMessage* message, std::destroying_delete_t);

 private:
  int gameId_;
};

}  // namespace Tessel

/// What owns a notification deletes it as above. Clang warns of each `delete` expression here: it does not see that it
/// needs no virtual destructor.
template <>
struct std::default_delete<Tessel::GameModelNotifMessage> {
  constexpr default_delete() noexcept = default;
  /// An owner of a kind becomes an owner of the base.
  template <std::derived_from<Tessel::GameModelNotifMessage> Kind>
  constexpr default_delete(const default_delete<Kind>&) noexcept {}

  void operator()(Tessel::GameModelNotifMessage* message) const {
    Tessel::GameModelNotifMessage::operator delete(message, std::destroying_delete_t());
  }
};

namespace Tessel {

class HERALD_API GMGameIdSwitch final : public GameModelNotifMessage {
 public:
  GMGameIdSwitch(int gameId, int newGameId) : GameModelNotifMessage(gameId), newGameId_(newGameId) {}

  int getNewGameId() const { return newGameId_; }

  void handle(GameModelNotificationHandler* handler) override;

 private:
  int newGameId_;
};

class HERALD_API GMGameSelected final : public GameModelNotifMessage {
 public:
  GMGameSelected(int gameId, int selectedGameId) : GameModelNotifMessage(gameId), selectedGameId_(selectedGameId) {}

  int getSelectedGameId() const { return selectedGameId_; }

  void handle(GameModelNotificationHandler* handler) override;

 private:
  int selectedGameId_;
};

class HERALD_API GMFullScreenMode final : public GameModelNotifMessage {
 public:
  GMFullScreenMode(int gameId, bool fullScreen) : GameModelNotifMessage(gameId), fullScreen_(fullScreen) {}

  bool isFullScreen() const { return fullScreen_; }

  void handle(GameModelNotificationHandler* handler) override;

 private:
  bool fullScreen_;
};

class HERALD_API GMLobby final : public GameModelNotifMessage {
 public:
  explicit GMLobby(int gameId) : GameModelNotifMessage(gameId) {}

  void handle(GameModelNotificationHandler* handler) override;
};

class HERALD_API GMAttention final : public GameModelNotifMessage {
 public:
  GMAttention(int gameId, bool needAttention) : GameModelNotifMessage(gameId), needAttention_(needAttention) {}

  bool needAttention() const { return needAttention_; }

  void handle(GameModelNotificationHandler* handler) override;

 private:
  bool needAttention_;
};

class HERALD_API GMLeave final : public GameModelNotifMessage {
 public:
  /// Why the table is left; the values are the application's.
  enum class ReasonForLeaving : int {};

  GMLeave(int gameId, ReasonForLeaving reason, int value)
      : GameModelNotifMessage(gameId), value_(value), reason_(reason) {}

  int getValue() const { return value_; }
  ReasonForLeaving getReason() const { return reason_; }

  void handle(GameModelNotificationHandler* handler) override;

 private:
  int value_;
  ReasonForLeaving reason_;
};

#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif

static_assert(std::is_trivially_destructible_v<GMGameIdSwitch>);
static_assert(std::is_trivially_destructible_v<GMGameSelected>);
static_assert(std::is_trivially_destructible_v<GMFullScreenMode>);
static_assert(std::is_trivially_destructible_v<GMLobby>);
static_assert(std::is_trivially_destructible_v<GMAttention>);
static_assert(std::is_trivially_destructible_v<GMLeave>);

}  // namespace Tessel

// NOLINTEND(cppcoreguidelines-virtual-class-destructor)
