#pragma once
#include <herald/platform/tableau/DealType.h>
#include <herald/platform/tableau/PotType.h>

#include <initializer_list>
#include <string_view>
#include <vector>

#include "Capture.h"
#include "CardRoom.h"
#include "Poker.h"

namespace Samples {

/// What a player does in turn, and what comes between.
struct Move {
  enum Kind { FOLD, CHECK_OR_CALL, RAISE, ALL_IN };
  enum Hitch { NONE, SLOW, HURRIED, TIMED_OUT, PREPARED };

  Kind kind = CHECK_OR_CALL;
  std::int64_t raiseTo = 0;
  Hitch hitch = NONE;
};

inline constexpr Move FOLD = {Move::FOLD};
inline constexpr Move CHECK = {Move::CHECK_OR_CALL};
inline constexpr Move CALL = {Move::CHECK_OR_CALL};
inline constexpr Move ALL_IN = {Move::ALL_IN};
inline constexpr Move TIMED_OUT = {Move::FOLD, 0, Move::TIMED_OUT};
constexpr Move raiseTo(std::int64_t bet) { return {Move::RAISE, bet}; }
constexpr Move slowly(Move move) { return {move.kind, move.raiseTo, Move::SLOW}; }
constexpr Move hurried(Move move) { return {move.kind, move.raiseTo, Move::HURRIED}; }
/// The user has chosen the move before it was the user's turn.
constexpr Move prepared(Move move) { return {move.kind, move.raiseTo, Move::PREPARED}; }

/// Which cards a player gives back in a draw, by their places in the hand.
struct Exchange {
  enum Kind { BY_PLAYER, NONE, AUTOMATIC };
  Kind kind = NONE;
  std::vector<int> places{};
};

struct Player {
  static constexpr int NO_SEAT = -1;

  Person person;
  std::int64_t account = 0;
  int seat = NO_SEAT;
  std::int64_t stack = 0;  ///< What the player can still bet.
  std::int64_t bet = 0;    ///< In front of the player, not in the pot yet.
  std::int64_t paid = 0;   ///< How much of the pot came from the player's bets.
  bool sittingIn = false;
  bool inHand = false;
  bool slow = false;
  Cards cards{};
  BestHand best{};
};

/// A poker table as its server runs it: seats, chips, cards and the rules of play. It tells the recorded client what
/// happens, and answers for the client's user with the requests that a client sends. No chip is ever made or lost: the
/// sum of all accounts, stacks, bets, the pot and the rake is tested before each message.
class Table {
 public:
  Table(Capture& capture, const Game& game, std::vector<Player> players);

  /// Sends a message of the server.
  template <class Message>
  void tell(const Body& body = {}) {
    checkChips();
    capture_.server<Message>(body);
  }

  const Game& game() const { return game_; }
  Player& player(const Person& person);
  Player& user() { return player(USER); }
  Tessel::Money moneyOf(const Player& player) const { return {player.stack + player.bet, game_.unit}; }

  void tellGameState();
  void tellTableInfo();

  /// Seats.
  void sitDown(const Person& person, int seat);
  void takeMoney(const Person& person, std::int64_t amount);
  void sitIn(const Person& person, bool again);
  void sitOut(const Person& person, int status);
  void standUp(const Person& person);

  /// The table goes on with another game.
  void changeGame(AllowedGameType type, AllowedLimitType limit);
  void setAutoPost(bool autoPost) { autoPost_ = autoPost; }

  /// One hand. Cards are dealt from a deck that begins with the named ones.
  void startHand(std::string_view firstCards);
  void postAntes();
  void postBlinds();
  /// A player who missed the blinds posts a dead small blind and a live big one.
  void postMissedBlinds(const Person& person);
  void dealHands(int cardsEach);
  void dealBoard(Tessel::AllowedDealType street);
  /// The players' moves in turn. Throws when one is missing or left over.
  void betting(std::initializer_list<Move> moves);
  void exchangeCards(std::initializer_list<Exchange> exchanges);
  /// The cards of an all-in, with each player's chance to win.
  void showAllIn();
  void showdown();
  /// The last player left wins; the user mucks or shows.
  void winUncalled(bool show);

 private:
  struct Pot {
    std::int64_t amount = 0;
    std::vector<Player*> contenders;
  };

  bool isUser(const Player& player) const { return player.person.id == USER.id; }
  bool isDraw() const { return game_.type == AllowedGameType::FIVE_CARD_DRAW; }
  /// Those at the table, beginning behind a seat.
  std::vector<Player*> inOrderAfter(int seat);
  std::vector<Player*> inHandAfter(int seat);

  static void move(std::int64_t& from, std::int64_t& to, std::int64_t amount);
  std::int64_t chips() const;
  void checkChips() const;

  Body playerId(const Player& player) const;
  Body credit(const Player& player, std::int64_t amount) const;
  Body actions(const Player& player, int flags, std::int64_t callValue,
               const std::vector<std::int64_t>& bets = {}) const;
  Body betRequest(const std::vector<Player*>& players, const std::vector<Body>& actions) const;
  Body handValue(const Player& player) const;

  void postBlind(Player& player, std::int64_t amount, bool dead);
  void requestMove(const Player& player);
  void waitForMove(Player& player, Move::Hitch hitch);
  void sendMove(const Player& player, const Move& move, std::int64_t amount);
  bool makeMove(Player& player, const Move& move);
  std::int64_t betSize() const;
  bool isCapped() const;
  bool mayRaise(std::int64_t raise) const;
  Body wonPot(Tessel::AllowedPotType type, const Player& player, std::int64_t amount) const;
  void returnUncalledBet();
  void collectBets();
  std::vector<Pot> pots();
  void payPots(const std::vector<Pot>& pots);
  void rankHands();
  bool asksToShow(const Player& player, bool wins);
  void nextStreet();
  void dealTo(const std::vector<Player*>& players, int cardsEach, Tessel::AllowedDealType type);
  void showCards(const std::vector<Player*>& players, const std::vector<Player*>& winners);
  void endHand();

  Capture& capture_;
  Game game_;
  std::vector<Player> players_;
  Dice dice_{20240308};
  Deck deck_{"", dice_};

  int handNumber_ = 118'200;
  int dealerSeat_ = 0;
  int firstSeat_ = 0;
  int street_ = 0;
  int betsMade_ = 0;
  std::int64_t currentBet_ = 0;
  std::int64_t lastRaise_ = 0;
  std::int64_t pot_ = 0;
  std::int64_t dead_ = 0;  ///< How much of the pot came from dead blinds, which count as nobody's bet.
  std::int64_t rake_ = 0;
  std::int64_t house_ = 0;
  Cards board_;
  bool shown_ = false;
  bool autoPost_ = false;
  const std::int64_t totalChips_ = chips();
};

}  // namespace Samples
