#pragma once
#include <herald/platform/keystone/Export.h>

#include <deque>
#include <memory>
#include <set>

namespace Tessel {

class AbstractClientMessageHandler;
class ClientMessage;

/// Holds messages back until numbered conditions are met, then delivers them to one handler in the order in which they
/// came. What a condition means is its user's. One thread uses an object.
///
/// A copy shares the held messages with its source: each of the two delivers them to the handler when its own
/// conditions are met, and the last to let go of a message destroys it.
class HERALD_API ConditionedClientMessages {
 public:
  /// Waits for the conditions 0 to `count` - 1. The handler must outlive this object and its copies.
  ConditionedClientMessages(AbstractClientMessageHandler& handler, unsigned int count);
  ConditionedClientMessages(const ConditionedClientMessages& other);
  ConditionedClientMessages& operator=(const ConditionedClientMessages&) = delete;
  /// Destroys what is still held, without delivering it.
  ~ConditionedClientMessages();

  /// While a condition is pending: takes ownership of the message, holds it and answers true. Otherwise, and for null,
  /// answers false: the message stays the caller's, to be handled at once. So it does when memory runs out, which
  /// throws `std::bad_alloc`.
  [[nodiscard]] bool delayMessage(ClientMessage* message);
  /// The same; `message` is null afterwards when the answer is true.
  [[nodiscard]] bool delayMessage(std::unique_ptr<ClientMessage>& message);

  /// The condition is met. If none is pending then, delivers what is held. A handler may call back into this object:
  /// what it makes held is delivered after what was held before, and as soon as no condition is pending. When a handler
  /// throws, the message that it was given is destroyed, the others stay held, and the next call delivers them.
  void setCondition(unsigned int condition);

  /// The condition, any number, is pending (again).
  void resetCondition(unsigned int condition);

 private:
  bool allConditionsAreMet() const { return pendingConditions_.empty(); }
  /// A new place behind the messages that are held.
  std::unique_ptr<const ClientMessage>& hold();
  void processMessages();

  AbstractClientMessageHandler& handler_;
  std::set<unsigned int> pendingConditions_;
  /// The owner of a message is shared, rather than the message, so that memory is taken before the message is.
  std::deque<std::shared_ptr<std::unique_ptr<const ClientMessage>>> delayedMessages_;
  bool delivering_ = false;
};

}  // namespace Tessel
