#pragma once
#include <herald/mailboxes/MessageKind.h>
#include <herald/platform/keystone/Money.h>

#include <array>
#include <memory>
#include <string>

namespace Tessel {

class BasicTexasStatControllerMessage;
class BTSCHideViews;
class BTSCNewHand;
class BTSCReset;
class BTSCSetGlobalStats;
class BTSCSetPlayMoney;
class BTSCSetRealMoney;
class BTSCSetSessionStats;
class BTSCSetUserName;
class BTSCShowViews;

/// Receives the commands to the statistics view: one operation per kind.
class HERALD_API BasicTexasStatControllerMessageHandler {
 public:
  virtual ~BasicTexasStatControllerMessageHandler();

  /// Delivers the message to the handler and deletes it, also when the handler throws. Takes ownership; neither is
  /// null.
  static void handle(BasicTexasStatControllerMessageHandler* handler, BasicTexasStatControllerMessage* message);
  static void handle(BasicTexasStatControllerMessageHandler* handler,
                     std::unique_ptr<BasicTexasStatControllerMessage> message);

  virtual void handle(const BTSCSetUserName& message) = 0;
  virtual void handle(const BTSCHideViews& message) = 0;
  virtual void handle(const BTSCShowViews& message) = 0;
  virtual void handle(const BTSCNewHand& message) = 0;
  virtual void handle(const BTSCReset& message) = 0;
  virtual void handle(const BTSCSetGlobalStats& message) = 0;
  virtual void handle(const BTSCSetSessionStats& message) = 0;
  virtual void handle(const BTSCSetPlayMoney& message) = 0;
  virtual void handle(const BTSCSetRealMoney& message) = 0;
};

/// Base of the commands to the statistics view. The sender fills a command's fields after it has made it.
class HERALD_API BasicTexasStatControllerMessage {
 public:
  using Handler = BasicTexasStatControllerMessageHandler;

  virtual ~BasicTexasStatControllerMessage();
  /// Calls the handler's operation for the message's own kind.
  virtual void handle(BasicTexasStatControllerMessageHandler* handler) = 0;

 protected:
  BasicTexasStatControllerMessage() = default;
  BasicTexasStatControllerMessage(const BasicTexasStatControllerMessage&) = default;
  BasicTexasStatControllerMessage(BasicTexasStatControllerMessage&&) = default;
  BasicTexasStatControllerMessage& operator=(const BasicTexasStatControllerMessage&) = default;
  BasicTexasStatControllerMessage& operator=(BasicTexasStatControllerMessage&&) = default;
};

class HERALD_API BTSCSetUserName : public PointerMessageKind<BTSCSetUserName, BasicTexasStatControllerMessage> {
 public:
  std::wstring userName;
};

class HERALD_API BTSCHideViews : public PointerMessageKind<BTSCHideViews, BasicTexasStatControllerMessage> {};

class HERALD_API BTSCShowViews : public PointerMessageKind<BTSCShowViews, BasicTexasStatControllerMessage> {};

/// A new hand; the application fills the fields and knows what they mean.
class HERALD_API BTSCNewHand : public PointerMessageKind<BTSCNewHand, BasicTexasStatControllerMessage> {
 public:
  bool flag1 = false;
  int number = -1;
  bool flag2 = false;
  bool flag3 = false;
  Money amount1;
  Money amount2;
  std::array<bool, 10> flags{};
  double value = 0.0;
};

class HERALD_API BTSCReset : public PointerMessageKind<BTSCReset, BasicTexasStatControllerMessage> {};

class HERALD_API BTSCSetGlobalStats : public PointerMessageKind<BTSCSetGlobalStats, BasicTexasStatControllerMessage> {};

class HERALD_API BTSCSetSessionStats : public PointerMessageKind<BTSCSetSessionStats, BasicTexasStatControllerMessage> {
};

class HERALD_API BTSCSetPlayMoney : public PointerMessageKind<BTSCSetPlayMoney, BasicTexasStatControllerMessage> {};

class HERALD_API BTSCSetRealMoney : public PointerMessageKind<BTSCSetRealMoney, BasicTexasStatControllerMessage> {};

}  // namespace Tessel
