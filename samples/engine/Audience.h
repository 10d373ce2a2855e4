#pragma once
#include <herald/messages/ServerMessage.h>
#include <herald/wire/WireTypes.h>

#include <cstdint>
#include <string_view>
#include <vector>

#include "Body.h"
#include "Game.h"

namespace CardRoom {

/// Those whom a table or a tournament tells what happens: the clients of the players who are there. Also its clock.
class Audience {
 public:
  virtual ~Audience() = default;

  /// The ids of the players whose clients listen.
  virtual std::vector<int> listeners() const = 0;
  /// Sends a message to a listener's client.
  virtual void tell(int listener, int messageId, const Body& body) = 0;
  /// Milliseconds since 1970.
  virtual std::int64_t now() const = 0;

  /// A player has answered with that request, or has asked for something with it. Who runs a play from a script makes
  /// the client's side of it from this; who gets requests from clients needs nothing of it.
  virtual void answered(const Person&, const Tessel::ServerMessage&) {}
  /// A script lets so many milliseconds pass.
  virtual void pause(std::int64_t) {}
};

/// The id (the first, where there are two) of a class of messages. Throws `std::invalid_argument` when it has none.
int messageId(std::string_view messageClass);

template <class Message>
int messageId() {
  static const int id = messageId(Tessel::typeName<Message>());
  return id;
}

/// What a table and a tournament have in common: they tell their audience what happens.
class Teller {
 public:
  virtual ~Teller() = default;

  /// Sends a message of the server to all who listen.
  template <class Message>
  void tell(const Body& body = {}) {
    tellEach<Message>([&](int) { return body; });
  }
  /// Sends each listener the message as `bodyFor(listener)` makes it.
  template <class Message, class BodyFor>
  void tellEach(const BodyFor& bodyFor) {
    tellSome<Message>(audience_.listeners(), bodyFor);
  }
  /// The same for one player, whose client need not listen.
  template <class Message>
  void tellOne(int player, const Body& body = {}) {
    check();
    if (isListening(player)) audience_.tell(player, messageId<Message>(), body);
  }

 protected:
  explicit Teller(Audience& audience) : audience_(audience) {}

  template <class Message, class BodyFor>
  void tellSome(const std::vector<int>& listeners, const BodyFor& bodyFor) {
    check();
    for (const int listener : listeners) audience_.tell(listener, messageId<Message>(), bodyFor(listener));
  }
  bool isListening(int player) const;
  /// Throws `std::logic_error` when what must not change has changed. Called before each message.
  virtual void check() const = 0;

  Audience& audience() const { return audience_; }

 private:
  Audience& audience_;
};

}  // namespace CardRoom
