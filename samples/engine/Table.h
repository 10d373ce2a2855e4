#pragma once
#include <herald/platform/tableau/DealType.h>
#include <herald/platform/tableau/PotType.h>

#include <deque>
#include <initializer_list>
#include <list>
#include <string_view>
#include <vector>

#include "Audience.h"
#include "Game.h"
#include "Poker.h"

namespace CardRoom {

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
  bool autoPost = false;  ///< Posts blinds and antes without being asked for an answer.
  Cards cards{};
  BestHand best{};
};

/// A poker table as its server runs it: seats, chips, cards and the rules of play. No chip is ever made or lost: the
/// sum of all accounts, stacks, bets, the pot and the rake is tested before each message.
class Table : public Teller {
 public:
  Table(Audience& audience, Game game, std::list<Player> players, std::uint32_t seed);

  const Game& game() const { return game_; }
  Player& player(const Person& person) { return player(person.id); }
  Player& player(int id);
  /// Null for one who is not here.
  const Player* find(int id) const;
  const std::list<Player>& players() const { return players_; }
  Tessel::Money moneyOf(const Player& player) const { return {player.stack + player.bet, game_.unit}; }
  /// All that is here: accounts, stacks, bets, the pot and the rake.
  std::int64_t chips() const;
  /// The rake of all hands.
  std::int64_t house() const { return house_; }

  void tellGameState();
  void tellGameState(int listener);
  void tellTableInfo();
  void tellTableInfo(int listener);

  /// Seats. An account comes to the table with its owner, and leaves with its owner.
  void enter(const Person& person, std::int64_t account);
  /// Answers the account. Throws for a player of the hand that is running.
  std::int64_t leave(const Person& person);
  void sitDown(const Person& person, int seat);
  void takeMoney(const Person& person, std::int64_t amount);
  void sitIn(const Person& person, bool again);
  void sitOut(const Person& person, int status);
  void standUp(const Person& person);
  /// The player's connection is slow, or well again.
  void setSlow(Player& player, bool slow);

  /// The table goes on with another game, or with other blinds.
  void changeGame(AllowedGameType type, AllowedLimitType limit);
  void changeBlinds(std::int64_t bigBlind, std::int64_t ante);

  /// One hand. Cards are dealt from a deck that begins with the named ones.
  void startHand(std::string_view firstCards = {});
  int handNumber() const { return handNumber_; }
  void setHandNumber(int lastHand) { handNumber_ = lastHand; }
  /// Those who would play a hand that began now.
  int playersReady() const;
  bool isHandRunning() const { return handRunning_; }
  /// Whether the player was dealt into the hand that is running, folded or not.
  bool isInHand(int id);
  int boardSize() const { return static_cast<int>(board_.size()); }
  int playersInHand();
  void postAntes();
  void postBlinds();
  /// A player who missed the blinds posts a dead small blind and a live big one.
  void postMissedBlinds(const Person& person);
  void dealHands(int cardsEach);
  void dealBoard(Tessel::AllowedDealType street);

  /// A betting round move by move: `askMove` for the player to act, then `makeMove`, until there is none to act.
  void startBetting();
  /// Null when the round is over.
  Player* toAct();
  void askMove();
  /// The chips that the move of the player to act takes.
  std::int64_t chipsFor(const Move& move);
  bool allows(const Move& move);
  /// Throws for a move that is not allowed.
  void makeMove(const Move& move);
  void endBetting();
  /// A whole round from a script. Throws when a move is missing or left over.
  void betting(std::initializer_list<Move> moves);

  void exchangeCards(std::initializer_list<Exchange> exchanges);
  /// Whether nobody can bet any more and the rest is luck.
  bool isAllIn();
  /// The cards of an all-in.
  void showAllIn();
  /// Each player's chance to win the main pot, by playing out every board.
  void tellChances();
  void showdown();
  /// The last player left wins, and mucks or shows.
  void winUncalled(bool show);

 private:
  struct Pot {
    std::int64_t amount = 0;
    std::vector<Player*> contenders;
  };

  bool isDraw() const { return game_.type == AllowedGameType::FIVE_CARD_DRAW; }
  /// Those at the table, beginning behind a seat.
  std::vector<Player*> inOrderAfter(int seat);
  std::vector<Player*> inHandAfter(int seat);
  std::vector<Player*> ableToBetAfter(int seat);

  static void move(std::int64_t& from, std::int64_t& to, std::int64_t amount);
  void check() const override;

  Body gameState(int listener);
  Body tableInfo() const;
  Body playerId(const Player& player) const;
  Body credit(const Player& player, std::int64_t amount) const;
  Body actions(const Player& player, int flags, std::int64_t callValue,
               const std::vector<std::int64_t>& bets = {}) const;
  Body betRequest(const std::vector<Player*>& players, const std::vector<Body>& actions) const;
  Body handValue(const Player& player) const;

  void postBlind(Player& player, std::int64_t amount, bool dead);
  void waitForMove(Player& player, Move::Hitch hitch);
  void answer(const Player& player, const Move& move, std::int64_t amount);
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

  Game game_;
  std::list<Player> players_;
  Dice dice_;
  Deck deck_{"", dice_};

  int handNumber_ = 0;
  bool handRunning_ = false;
  int dealerSeat_ = 0;
  int firstSeat_ = 0;
  int street_ = 0;
  int betsMade_ = 0;
  std::deque<Player*> toAct_;
  std::int64_t currentBet_ = 0;
  std::int64_t lastRaise_ = 0;
  std::int64_t pot_ = 0;
  std::int64_t dead_ = 0;  ///< How much of the pot came from dead blinds, which count as nobody's bet.
  std::int64_t rake_ = 0;
  std::int64_t house_ = 0;
  Cards board_;
  bool shown_ = false;
  std::int64_t totalChips_ = chips();
};

}  // namespace CardRoom
