#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/wire/Text.h>

#include <cstdint>

namespace Tessel {

/// A game (table) of the lobby. A name that cannot be decoded ends the read.
class HERALD_API GameInfo : public ReadableRecord<GameInfo> {
 public:
  int getId() const { return id_; }
  std::wstring getName() const { return name_.getString(); }
  int getNrPlayers() const { return nrPlayers_; }
  int getMaxNrPlayers() const { return maxNrPlayers_; }
  int getNrPlayersWatching() const { return nrPlayersWatching_; }
  int getMonetaryUnitId() const { return monetaryUnitId_; }
  int getPort() const { return port_; }
  /// The meaning of the value is the server's.
  int getType() const { return type_; }
  bool isFull() const { return nrPlayers_ >= maxNrPlayers_; }

  /// The numbers of players are 16 bits wide.
  void setNrPlayers(int nrPlayers) { nrPlayers_ = static_cast<std::int16_t>(nrPlayers); }
  void setNrPlayersWatching(int nrPlayers) { nrPlayersWatching_ = static_cast<std::int16_t>(nrPlayers); }

  /// Appends the fields that `read` takes, but the monetary unit id in 32 bits instead of 16. False, with the failure
  /// reported, when the name cannot be encoded.
  [[nodiscard]] bool write(ByteStream& out) const;

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("id", self.id_);
    fields.required("name", self.name_);
    fields("nrPlayers", self.nrPlayers_);
    fields("maxNrPlayers", self.maxNrPlayers_);
    fields("nrPlayersWatching", self.nrPlayersWatching_);
    fields("monetaryUnitId", self.monetaryUnitId_);
    fields("port", self.port_);
    fields("type", self.type_);
  }

 private:
  std::int32_t id_ = -1;
  Text name_;
  std::int16_t nrPlayers_ = -1;
  std::int16_t maxNrPlayers_ = -1;
  std::int16_t nrPlayersWatching_ = -1;
  std::int16_t monetaryUnitId_ = -1;
  std::int32_t port_ = -1;
  std::int32_t type_ = -1;
};

}  // namespace Tessel
