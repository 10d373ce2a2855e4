#pragma once
#include <asio.hpp>
#include <thread>

namespace CardRoom {

/// A thread that runs a context from here to the end of the scope.
class NetworkThread {
 public:
  explicit NetworkThread(asio::io_context& io)
      : io_(io), keepRunning_(asio::make_work_guard(io)), thread_([&io] { io.run(); }) {}
  ~NetworkThread() {
    io_.stop();
    thread_.join();
  }
  NetworkThread(const NetworkThread&) = delete;
  NetworkThread& operator=(const NetworkThread&) = delete;

 private:
  asio::io_context& io_;
  asio::executor_work_guard<asio::io_context::executor_type> keepRunning_;
  std::thread thread_;
};

}  // namespace CardRoom
