#pragma once
#include <herald/platform/keystone/ByteStream.h>

#include <utility>

namespace Tessel {

/// Holds the raw bytes of a message together with their read position.
class HERALD_API ServerMessageData {
 public:
  explicit ServerMessageData(ByteStream data) : data_(std::move(data)) {}
  ServerMessageData(const ServerMessageData&) = default;
  ServerMessageData(ServerMessageData&&) = default;
  ServerMessageData& operator=(const ServerMessageData&) = default;
  ServerMessageData& operator=(ServerMessageData&&) = default;
  virtual ~ServerMessageData();

  const ByteStream& getData() const { return data_; }
  void setData(const ByteStream& data) { data_ = data; }

 private:
  ByteStream data_;
};

}  // namespace Tessel
