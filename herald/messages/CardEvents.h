#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/CardsInfo.h>
#include <herald/messages/info_objects/ChangeCardsInfo.h>
#include <herald/messages/info_objects/DealtCardsInfo.h>
#include <herald/messages/info_objects/DiscardCardsInfo.h>
#include <herald/messages/info_objects/HandValueInfo.h>
#include <herald/messages/info_objects/PlayerId.h>
#include <herald/messages/info_objects/VoteCastInfo.h>

// Cards and votes.

namespace Tessel {

/// Cards are dealt.
class HERALD_API ClientCards : public RecordMessage<ClientCards, DealtCardsInfo> {
 public:
  static constexpr auto TEXT = L"[ClientCards: %s";
  const DealtCardsInfo& getDealtCardsInfo() const { return body(); }
};

/// A player may muck the winning cards.
class HERALD_API ClientMuckCardsReq : public RecordMessage<ClientMuckCardsReq, PlayerId> {
 public:
  static constexpr auto TEXT = L"[ClientMuckCardsReq: %s";
  const PlayerId& getPlayer() const { return body(); }
};

/// A player may muck the losing cards.
class HERALD_API ClientMuckLosingCardsReq : public RecordMessage<ClientMuckLosingCardsReq, PlayerId> {
 public:
  static constexpr auto TEXT = L"[ClientMuckLosingCardsReq: %s";
  const PlayerId& getPlayer() const { return body(); }
};

/// A player may show the cards.
class HERALD_API ClientShowCardsReq : public RecordMessage<ClientShowCardsReq, PlayerId> {
 public:
  static constexpr auto TEXT = L"[ClientShowCardsReq: %s";
  const PlayerId& getPlayer() const { return body(); }
};

/// Cards are turned up for all.
class HERALD_API ClientShowAllCards : public RecordMessage<ClientShowAllCards, CardsInfo> {
 public:
  static constexpr auto TEXT = L"[ClientShowAllCards: %s";
  const CardsInfo& getCardsInfo() const { return body(); }
};

class HERALD_API ClientShowdownHandValue : public RecordMessage<ClientShowdownHandValue, HandValueInfo> {
 public:
  static constexpr auto TEXT = L"[ClientShowdownHandValue]";
  const HandValueInfo& getHandValueInfo() const { return body(); }
};

/// The user may choose cards to change.
class HERALD_API ClientCardsSelectable : public EmptyMessage<ClientCardsSelectable> {
 public:
  static constexpr auto TEXT = L"[ClientCardsSelectable]";
};

/// It is a player's turn to change cards.
class HERALD_API ClientChangeCards : public RecordMessage<ClientChangeCards, ChangeCardsInfo> {
 public:
  static constexpr auto TEXT = L"[ClientChangeCards: %s";
  const ChangeCardsInfo& getChangeCardsInfo() const { return body(); }
};

/// A player has discarded cards. The kind of change 0 is one by the player, 1 none, 2 an automatic one.
class HERALD_API ClientDiscardCards : public WireMessage<ClientDiscardCards> {
 public:
  bool cardsWasChanged() const { return changeKind_ != 1; }
  bool cardsWasChangedAutomatically() const { return changeKind_ == 2; }
  const DiscardCardsInfo& getDiscardCardsInfo() const { return discarded_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("changeKind", self.changeKind_);
    fields("discarded", self.discarded_);
  }

 private:
  std::int8_t changeKind_ = -1;
  DiscardCardsInfo discarded_;
};

class HERALD_API ClientVoteCast : public RecordMessage<ClientVoteCast, VoteCastInfo> {
 public:
  static constexpr auto TEXT = L"[ClientVoteCast: VoteCastInfo: %s]";
  const VoteCastInfo& getInfo() const { return body(); }
};

}  // namespace Tessel
