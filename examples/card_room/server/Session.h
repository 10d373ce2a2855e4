#pragma once
#include <herald/inspect/Requests.h>

#include <array>
#include <asio.hpp>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "../common/Ledger.h"
#include "../common/Recorder.h"
#include "Chaos.h"

namespace CardRoom {

/// One connection of a client, seen from the server. It lives as long as something is under way on it.
class Session : public std::enable_shared_from_this<Session> {
 public:
  /// Whoever answers the requests.
  class Owner {
   public:
    virtual ~Owner() = default;
    virtual void requested(Session& session, const Tessel::RequestFrames::Frame& frame) = 0;
    /// Called once. Nothing comes from the session after it.
    virtual void ended(Session& session) = 0;
  };
  /// What notes it, and what disturbs it. Null for nothing.
  struct Surroundings {
    Ledger* ledger = nullptr;
    Recorder* recorder = nullptr;
    std::optional<Chaos> chaos{};
  };

  Session(int id, asio::ip::tcp::socket socket, Owner& owner, Surroundings surroundings);

  int id() const { return id_; }
  bool isOpen() const { return state_ == State::OPEN; }
  void start();
  void send(int messageId, std::span<const std::uint8_t> body);
  /// From now on nothing goes wrong on purpose.
  void calm() { surroundings_.chaos.reset(); }
  /// Ends the connection when all has been sent.
  void close();
  /// Ends it at once.
  void drop();

 private:
  using Bytes = std::vector<std::uint8_t>;
  enum class State { OPEN, CLOSING, SILENT, ENDED };

  void read();
  void received(std::span<const std::uint8_t> bytes);
  void record(const Tessel::RequestFrames::Frame& frame) const;
  void enqueue(int messageId, std::span<const std::uint8_t> body);
  void sendDamaged(int messageId, std::span<const std::uint8_t> body);
  void sendHalf(int messageId, std::span<const std::uint8_t> body);
  void write();
  void writeNow(std::size_t count);

  const int id_;
  asio::ip::tcp::socket socket_;
  asio::steady_timer delay_;
  Owner& owner_;
  Surroundings surroundings_;
  State state_ = State::OPEN;

  std::array<std::uint8_t, 4096> input_{};
  Tessel::RequestFrames frames_;
  Bytes waiting_;
  Bytes sending_;
  std::size_t sent_ = 0;  ///< of what is being sent
  bool isWriting_ = false;
  bool isFirst_ = true;
  std::optional<int> messagesLeft_;  ///< before the connection ends
};

}  // namespace CardRoom
