#pragma once
#include <herald/messages/WireRequest.h>
#include <herald/messages/info_objects/CardsInfo.h>
#include <herald/messages/info_objects/CreditInfo.h>
#include <herald/messages/info_objects/DiscardCardsInfo.h>
#include <herald/messages/info_objects/PlayerId.h>
#include <herald/messages/info_objects/TesselByte.h>

#include <cstdint>

// What the client asks of the server of one table.

namespace Tessel {

class HERALD_API ServerSitIn : public EmptyRequest<ServerSitIn, 130> {
 public:
  static constexpr auto TEXT = L"[ServerSitIn]";
};

class HERALD_API ServerSitOut : public RecordRequest<ServerSitOut, 131, PlayerId> {
 public:
  static constexpr auto TEXT = L"[ServerSitOut: %s]";
  ServerSitOut() = default;
  ServerSitOut(int playerId, int seat) : RecordRequest({playerId, seat}) {}
  const PlayerId& getPlayer() const { return body(); }
};

class HERALD_API ServerBet : public RecordRequest<ServerBet, 132, CreditInfo> {
 public:
  static constexpr auto TEXT = L"[ServerBet: %s]";
  ServerBet() = default;
  ServerBet(int playerId, int seat, std::int64_t amount) : RecordRequest({playerId, seat, amount}) {}
  const CreditInfo& getCreditInfo() const { return body(); }
};

class HERALD_API ServerFold : public EmptyRequest<ServerFold, 133> {
 public:
  static constexpr auto TEXT = L"[ServerFold]";
};

class HERALD_API ServerCheckCall : public RecordRequest<ServerCheckCall, 134, CreditInfo> {
 public:
  static constexpr auto TEXT = L"[ServerCheckCall: %s]";
  ServerCheckCall() = default;
  ServerCheckCall(int playerId, int seat, std::int64_t amount) : RecordRequest({playerId, seat, amount}) {}
  const CreditInfo& getCreditInfo() const { return body(); }
};

class HERALD_API ServerAllIn : public RecordRequest<ServerAllIn, 135, CreditInfo> {
 public:
  static constexpr auto TEXT = L"[ServerAllIn: %s]";
  ServerAllIn() = default;
  ServerAllIn(int playerId, int seat, std::int64_t amount) : RecordRequest({playerId, seat, amount}) {}
  const CreditInfo& getCreditInfo() const { return body(); }
};

class HERALD_API ServerMuckCards : public EmptyRequest<ServerMuckCards, 137> {
 public:
  static constexpr auto TEXT = L"[ServerMuckCards]";
};

class HERALD_API ServerShowCards : public EmptyRequest<ServerShowCards, 138> {
 public:
  static constexpr auto TEXT = L"[ServerShowCards]";
};

class HERALD_API ServerImBack : public EmptyRequest<ServerImBack, 139> {
 public:
  static constexpr auto TEXT = L"[ServerImBack]";
};

class HERALD_API InTurnAction {
 public:
  /// What a player does in turn; the values are the server's.
  enum InTurnActionType : int {};
};

/// The user's action in turn. The seat travels before the player.
class HERALD_API ServerInTurnAction : public ImprovedRequest<ServerInTurnAction, 141> {
 public:
  ServerInTurnAction() = default;
  ServerInTurnAction(int playerId, int playerSeat, int betRound, InTurnAction::InTurnActionType actionType,
                     std::int64_t amount)
      : playerSeat_(playerSeat), playerId_(playerId), betRound_(betRound), actionType_(actionType), amount_(amount) {}

  int getPlayerId() const { return playerId_; }
  int getPlayerSeat() const { return playerSeat_; }
  int getBetRound() const { return betRound_; }
  InTurnAction::InTurnActionType getActionType() const { return InTurnAction::InTurnActionType{actionType_}; }
  /// In the smallest units of the table's currency, or in its chips.
  std::int64_t getAmount() const { return amount_.getAmount(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerSeat", self.playerSeat_);
    fields("playerId", self.playerId_);
    fields("betRound", self.betRound_);
    fields("actionType", self.actionType_);
    fields("amount", self.amount_);
  }

 private:
  std::int32_t playerSeat_ = -1;
  std::int32_t playerId_ = -1;
  std::int32_t betRound_ = -1;
  std::int32_t actionType_ = -1;
  Amount amount_;
};

class HERALD_API ServerHurryAck : public EmptyRequest<ServerHurryAck, 142> {
 public:
  static constexpr auto TEXT = L"[ServerHurryAck]";
};

class HERALD_API TableInfoReq : public EmptyRequest<TableInfoReq, 143> {
 public:
  static constexpr auto TEXT = L"[TableInfoReq]";
};

/// The debug text names the player, not the seat; that of `PlayerCancelVote` does the same.
class HERALD_API PlayerCastVote : public WireRequest<PlayerCastVote, 144> {
 public:
  PlayerCastVote() = default;
  PlayerCastVote(int playerId, int seat) : player_(playerId, seat) {}

  const PlayerId& getPlayer() const { return player_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("player", self.player_);
  }

 private:
  PlayerId player_;
};

class HERALD_API PlayerCancelVote : public WireRequest<PlayerCancelVote, 145> {
 public:
  PlayerCancelVote() = default;
  PlayerCancelVote(int playerId, int seat) : player_(playerId, seat) {}

  const PlayerId& getPlayer() const { return player_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("player", self.player_);
  }

 private:
  PlayerId player_;
};

class HERALD_API WaitForBigBlind : public EmptyRequest<WaitForBigBlind, 146> {
 public:
  static constexpr auto TEXT = L"[WaitForBigBlind]";
};

class HERALD_API DoNotWaitForBigBlind : public EmptyRequest<DoNotWaitForBigBlind, 147> {
 public:
  static constexpr auto TEXT = L"[DoNotWaitForBigBlind]";
};

class HERALD_API AutoPostBlind : public EmptyRequest<AutoPostBlind, 148> {
 public:
  static constexpr auto TEXT = L"[AutoPostBlind]";
};

class HERALD_API ManualPostBlind : public EmptyRequest<ManualPostBlind, 149> {
 public:
  static constexpr auto TEXT = L"[ManualPostBlind]";
};

class HERALD_API ServerDiscardCards : public RecordRequest<ServerDiscardCards, 150, DiscardCardsInfo> {
 public:
  static constexpr auto TEXT = L"[ServerDiscardCards: %s]";
  ServerDiscardCards() = default;
  explicit ServerDiscardCards(const DiscardCardsInfo& discarded) : RecordRequest(discarded) {}
  const DiscardCardsInfo& getDiscardCardsInfo() const { return body(); }
};

class HERALD_API PlayerLeaveGame : public ImprovedRequest<PlayerLeaveGame, -20> {
 public:
  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self&, Fields&) {}
};

class HERALD_API SitDownRequest : public RecordRequest<SitDownRequest, -24, TesselByte> {
 public:
  static constexpr auto TEXT = L"[SitDownRequest: Seat: %d]";
  static constexpr auto FIELD = "seat";
  SitDownRequest() = default;
  explicit SitDownRequest(int seat) : RecordRequest(static_cast<char>(seat)) {}
  int getSeat() const { return body().getIntValue(); }
};

/// Takes money from the account to the table.
class HERALD_API ReserveMoney : public WireRequest<ReserveMoney, -32> {
 public:
  ReserveMoney() = default;
  explicit ReserveMoney(std::int64_t amount) : amount_(amount) {}

  /// In the smallest units of the table's currency, or in its chips.
  std::int64_t getAmount() const { return amount_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("amount", self.amount_);
  }

 private:
  std::int64_t amount_ = 0;
};

class HERALD_API PlayerStandUpReq : public EmptyRequest<PlayerStandUpReq, -35> {
 public:
  static constexpr auto TEXT = L"[PlayerStandUpReq]";
};

class HERALD_API ShowCashierReq : public EmptyRequest<ShowCashierReq, -75> {
 public:
  static constexpr auto TEXT = L"[ShowCashierReq]";
};

/// Carries cards but has no id: it cannot be sent. `write` writes nothing and answers false.
class HERALD_API ServerCards : public ServerMessage {
 public:
  ServerCards() = default;
  explicit ServerCards(CardsInfo cards) : cards_(std::move(cards)) {}

  const CardsInfo& getCardsInfo() const { return cards_; }

  [[nodiscard]] bool write(ByteStream& out) const override;
  std::wstring toDebugString() const override;
  void describe(FieldSink& sink) const override;

 private:
  CardsInfo cards_;
};

}  // namespace Tessel
