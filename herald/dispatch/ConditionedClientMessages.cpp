#include <herald/dispatch/ConditionedClientMessages.h>
#include <herald/messages/ClientMessage.h>

#include <cstddef>
#include <utility>

namespace Tessel {

namespace {

// Marks a delivery as under way, until it ends or throws.
class Delivery {
 public:
  explicit Delivery(bool& delivering) : delivering_(delivering) { delivering_ = true; }
  Delivery(const Delivery&) = delete;
  Delivery& operator=(const Delivery&) = delete;
  ~Delivery() { delivering_ = false; }

 private:
  bool& delivering_;
};

}  // namespace

ConditionedClientMessages::ConditionedClientMessages(AbstractClientMessageHandler& handler, unsigned int count)
    : handler_(handler) {
  for (unsigned int condition = 0; condition < count; ++condition) resetCondition(condition);
}

ConditionedClientMessages::ConditionedClientMessages(const ConditionedClientMessages& other)
    : handler_(other.handler_), pendingConditions_(other.pendingConditions_), delayedMessages_(other.delayedMessages_) {
}

ConditionedClientMessages::~ConditionedClientMessages() = default;

bool ConditionedClientMessages::delayMessage(ClientMessage* message) {
  if (message == nullptr || allConditionsAreMet()) return false;
  hold().reset(message);
  return true;
}

bool ConditionedClientMessages::delayMessage(std::unique_ptr<ClientMessage>& message) {
  if (!message || allConditionsAreMet()) return false;
  hold() = std::move(message);
  return true;
}

std::unique_ptr<const ClientMessage>& ConditionedClientMessages::hold() {
  return *delayedMessages_.emplace_back(std::make_shared<std::unique_ptr<const ClientMessage>>());
}

void ConditionedClientMessages::setCondition(unsigned int condition) {
  pendingConditions_.erase(condition);
  if (allConditionsAreMet()) processMessages();
}

void ConditionedClientMessages::resetCondition(unsigned int condition) { pendingConditions_.insert(condition); }

void ConditionedClientMessages::processMessages() {
  if (delivering_) return;  // from within a handler: the delivery under way takes what is held now, too
  const Delivery delivery(delivering_);
  // What is held now is delivered even when a handler makes a condition pending; what comes later, only while none is.
  for (std::size_t due = delayedMessages_.size(); !delayedMessages_.empty() && (due > 0 || allConditionsAreMet());) {
    const auto message = std::move(delayedMessages_.front());
    delayedMessages_.pop_front();
    if (due > 0) --due;
    (*message)->handle(handler_);
  }
}

}  // namespace Tessel
