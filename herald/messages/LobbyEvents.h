#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/InfoList.h>
#include <herald/messages/info_objects/PingInfoList.h>
#include <herald/messages/info_objects/PokerGameInfo.h>
#include <herald/messages/info_objects/PokerLobbyInfo.h>
#include <herald/messages/info_objects/PokerSelfPlayerInfo.h>
#include <herald/messages/info_objects/SubscriptionInfo.h>
#include <herald/messages/info_objects/TreeNodeInfo.h>
#include <herald/platform/keystone/TsArray.h>

#include <cstdint>

// The connection to the lobby, its tree and its lists of games.

namespace Tessel {

/// The server has let the player in.
class HERALD_API ConnectOk : public RecordMessage<ConnectOk, PokerSelfPlayerInfo, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[ConnectOk: %s]";
  const PokerSelfPlayerInfo& getSelfPlayerInfo() const { return body(); }
};

/// The lobby tree.
class HERALD_API TreeReply : public RecordMessage<TreeReply, TreeNodeInfo> {
 public:
  static constexpr auto TEXT = L"[TreeReply]";
  const TreeNodeInfo& getRoot() const { return body(); }
};

/// The lobby tree as it is now.
class HERALD_API TreeReplyUpdate : public TreeReply {
 public:
  void handle(AbstractClientMessageHandler& handler) const override;
  std::wstring toDebugString() const override;
};

/// The client gets no more news of a node. The node's id is also the message's.
class HERALD_API UnSubscribeNode : public RecordMessage<UnSubscribeNode, SubscriptionInfo, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[UnSubscribeNode]";
  const SubscriptionInfo& getSubscriptionInfo() const { return body(); }

  bool read(ByteStream& in) override;
};

/// The games of a node.
class HERALD_API GameList : public WireMessage<GameList> {
 public:
  /// The node that the server names; the message's own tag stays as it was.
  int getNodeId() const { return nodeId_; }
  int getNumberOfGameInfos() const { return games_.getNrInfos(); }
  /// An index outside 0 to `getNumberOfGameInfos()` - 1 throws `OutOfBoundsException`.
  const PokerGameInfo& getPokerGameInfo(int i) const { return games_[i]; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("nodeId", self.nodeId_);
    fields.ignoring("games", self.games_);
  }

 private:
  std::int16_t nodeId_ = -1;
  InfoList<PokerGameInfo> games_;
};

/// What has changed in the games of a node. The node's id is also the message's. The changed seats pair with the
/// changed games in their order; `read` answers false, with everything read, when the server sent different numbers of
/// them.
class HERALD_API GameListUpdate : public WireMessage<GameListUpdate> {
 public:
  int getNodeId() const { return nodeId_; }
  int getNumberOfAddedInfos() const { return added_.getNrInfos(); }
  /// An index outside 0 to `getNumberOfAddedInfos()` - 1 throws `OutOfBoundsException`.
  const PokerGameInfo& getPokerGameInfo(int i) const { return added_[i]; }
  const TsArray<int>& getRemovedGamesIds() const { return removedGameIds_; }
  const TsArray<int>& getChangedGamesIds() const { return changedGameIds_; }
  /// How many seats of each changed game are taken.
  const TsArray<int>& getChangedSeats() const { return changedSeats_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("nodeId", self.nodeId_);
    fields.onRead(self, &GameListUpdate::takeNodeId);
    fields.ignoring("added", self.added_);
    fields.template countedOrNone<std::int16_t>("removedGameIds", self.removedGameIds_);
    fields.countedKeeping("changedGameIds", self.nrChanged_, self.changedGameIds_);
    fields.countedKeeping("changedSeats", self.nrChangedSeats_, self.changedSeats_);
    fields.onRead(self, &GameListUpdate::hasSeatsOfEachChange);
  }

 private:
  bool takeNodeId();
  bool hasSeatsOfEachChange() const { return nrChanged_ == nrChangedSeats_; }

  std::int16_t nodeId_ = -1;
  InfoList<PokerGameInfo> added_;
  TsArray<int> removedGameIds_;
  std::int16_t nrChanged_ = 0;
  TsArray<int> changedGameIds_;
  std::int16_t nrChangedSeats_ = 0;
  TsArray<int> changedSeats_;
};

/// The lobby of a table.
class HERALD_API LobbyInfoMsg : public RecordMessage<LobbyInfoMsg, PokerLobbyInfo, ReadResult::ALWAYS_TRUE> {
 public:
  static constexpr auto TEXT = L"[LobbyInfoMsg: %s]";
  const PokerLobbyInfo& getLobbyInfo() const { return body(); }
};

class HERALD_API PingInfo : public RecordMessage<PingInfo, PingInfoList> {
 public:
  static constexpr auto TEXT = L"[PingInfo: %s";
  const PingInfoList& getPingInfoList() const { return body(); }
};

/// The server measures the connection; the client answers with `Pong`.
class HERALD_API Ping : public WireMessage<Ping> {
 public:
  /// The server's clock, for the client to send back.
  std::int64_t getServerTime() const { return serverTime_; }
  /// In milliseconds.
  int getPing() const { return ping_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("serverTime", self.serverTime_);
    fields("ping", self.ping_);
  }

 private:
  std::int64_t serverTime_ = -1;
  std::int16_t ping_ = -1;
};

/// How busy the site is. No message id stands for it.
class HERALD_API NumPlayersLoggedIn : public WireMessage<NumPlayersLoggedIn> {
 public:
  int getRealPlayersAtTable() const { return realPlayersAtTable_; }
  int getPlayPlayersAtTable() const { return playPlayersAtTable_; }
  int getNumRealTables() const { return numRealTables_; }
  int getNumPlayTables() const { return numPlayTables_; }
  int getRealMoneyAtTables() const { return realMoneyAtTables_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("realPlayersAtTable", self.realPlayersAtTable_);
    fields("playPlayersAtTable", self.playPlayersAtTable_);
    fields("numRealTables", self.numRealTables_);
    fields("numPlayTables", self.numPlayTables_);
    fields("realMoneyAtTables", self.realMoneyAtTables_);
  }

 private:
  std::int32_t realPlayersAtTable_ = -1;
  std::int32_t playPlayersAtTable_ = -1;
  std::int32_t numRealTables_ = -1;
  std::int32_t numPlayTables_ = -1;
  std::int32_t realMoneyAtTables_ = -1;
};

}  // namespace Tessel
