#pragma once
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/keystone/Card.h>

#include <cstdint>

namespace Tessel {

/// A card and whose it is. A community card belongs to player -1 at seat -1.
class HERALD_API CardInfo : public ReadableRecord<CardInfo> {
 public:
  CardInfo() = default;
  CardInfo(int playerId, int seat, const Card& card);

  /// On the wire the colors -1 to 3 are hidden, diamonds, hearts, clubs, spades; the number -1 is hidden, 1 an ace, 2
  /// to 13 a two to a king. Any other color or number is hidden.
  static Card createCard(int color, int number);

  int getPlayerId() const { return playerId_; }
  int getSeat() const { return seat_; }
  Card getCard() const { return createCard(color_, number_); }
  bool isHidden() const { return getCard().isHidden(); }
  bool isTableCard() const { return playerId_ == -1 && seat_ == -1; }

  /// Becomes a hidden card of player 0 at that seat.
  void setHiddenCard(int seat);
  /// Becomes a community card, each of the 52 as likely as the others.
  void setRandomCommunityCard();

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("seat", self.seat_);
    fields.template named<WireSuit>("color", self.color_);
    fields.template named<WireRank>("number", self.number_);
    fields.onRead(self, &CardInfo::checkCard);
  }

 private:
  enum class WireSuit : int { HIDDEN = -1, DIAMONDS, HEARTS, CLUBS, SPADES };
  enum class WireRank : int {
    HIDDEN = -1,
    ACE = 1,
    TWO,
    THREE,
    FOUR,
    FIVE,
    SIX,
    SEVEN,
    EIGHT,
    NINE,
    TEN,
    JACK,
    QUEEN,
    KING
  };

  // On the wire; no number is 0.
  static constexpr int LOWEST_COLOR = -1;
  static constexpr int HIGHEST_COLOR = 3;
  static constexpr int LOWEST_NUMBER = -1;
  static constexpr int HIGHEST_NUMBER = 13;

  bool checkCard() const {
    if (color_ < LOWEST_COLOR || color_ > HIGHEST_COLOR || number_ < LOWEST_NUMBER || number_ > HIGHEST_NUMBER
        || number_ == 0) [[unlikely]]
      throwNoCard();
    return true;
  }
  [[noreturn]] void throwNoCard() const;

  std::int32_t playerId_ = -1;
  std::int32_t seat_ = -1;
  std::int8_t color_ = -1;
  std::int8_t number_ = -1;
};

}  // namespace Tessel
