#pragma once
#include <herald/mailboxes/MessageKind.h>

#include <string>
#include <utility>

namespace Tessel {

class PNSPlayerNoteNotification;
class PNSPlayerNoteText;

/// Receives the changes of player notes: one operation per kind.
class HERALD_API PlayerNotesSubscriberMessageHandler {
 public:
  virtual ~PlayerNotesSubscriberMessageHandler();

  virtual void handle(const PNSPlayerNoteText& message) = 0;
  virtual void handle(const PNSPlayerNoteNotification& message) = 0;
};

/// Base of the changes of player notes. The consumer calls `handle` and then deletes the message.
class HERALD_API PlayerNotesSubscriberMessage {
 public:
  using Handler = PlayerNotesSubscriberMessageHandler;

  virtual ~PlayerNotesSubscriberMessage();
  /// Calls the handler's operation for the message's own kind.
  virtual void handle(PlayerNotesSubscriberMessageHandler& handler) const = 0;

 protected:
  PlayerNotesSubscriberMessage() = default;
  PlayerNotesSubscriberMessage(const PlayerNotesSubscriberMessage&) = default;
  PlayerNotesSubscriberMessage(PlayerNotesSubscriberMessage&&) = default;
  PlayerNotesSubscriberMessage& operator=(const PlayerNotesSubscriberMessage&) = default;
  PlayerNotesSubscriberMessage& operator=(PlayerNotesSubscriberMessage&&) = default;
};

class HERALD_API PNSPlayerNoteText : public MessageKind<PNSPlayerNoteText, PlayerNotesSubscriberMessage> {
 public:
  PNSPlayerNoteText(std::wstring userName, std::wstring playerName, std::wstring playerNoteText)
      : userName_(std::move(userName)), playerName_(std::move(playerName)), playerNoteText_(std::move(playerNoteText)) {
  }

  std::wstring getUserName() const { return userName_; }
  std::wstring getPlayerName() const { return playerName_; }
  std::wstring getPlayerNoteText() const { return playerNoteText_; }

 private:
  std::wstring userName_;
  std::wstring playerName_;
  std::wstring playerNoteText_;
};

class HERALD_API PNSPlayerNoteNotification
    : public MessageKind<PNSPlayerNoteNotification, PlayerNotesSubscriberMessage> {
 public:
  PNSPlayerNoteNotification(std::wstring userName, std::wstring playerName, bool hasPlayerNote, int classificationIndex)
      : userName_(std::move(userName)), playerName_(std::move(playerName)), hasPlayerNote_(hasPlayerNote),
        classificationIndex_(classificationIndex) {}

  std::wstring getUserName() const { return userName_; }
  std::wstring getPlayerName() const { return playerName_; }
  bool hasPlayerNote() const { return hasPlayerNote_; }
  int getClassificationIndex() const { return classificationIndex_; }

 private:
  std::wstring userName_;
  std::wstring playerName_;
  bool hasPlayerNote_;
  int classificationIndex_;
};

}  // namespace Tessel
