#include "Table.h"

#include <herald/messages/BettingEvents.h>
#include <herald/messages/CardEvents.h>
#include <herald/messages/SeatEvents.h>
#include <herald/messages/TableRequests.h>
#include <herald/messages/TableStateEvents.h>

#include <algorithm>
#include <deque>
#include <limits>
#include <map>
#include <numeric>
#include <set>
#include <stdexcept>
#include <utility>

namespace CardRoom {

using namespace Tessel;

namespace {

constexpr int SECONDS_TO_ACT = 20;
constexpr int BETS_BEFORE_CAP = 4;
constexpr int RAKE_PERCENT = 5;
constexpr int FULL_BOARD = 5;

enum ActionFlag { FOLD_FLAG = 1, CHECK_FOLD = 2, CHECK_CALL = 4, CALL_ANY = 8, BET_RAISE = 16, BET_RAISE_ANY = 32 };

int betTypeCode(AllowedLimitType limit) { return -11 - static_cast<int>(limit); }

Body cardOf(int playerId, int seat, const Card& card, bool isOpen) {
  return Body().i32(playerId).i32(seat).i8(isOpen ? card.suit : -1).i8(isOpen ? card.wireNumber() : -1);
}

Body tableCard(const Card& card) { return cardOf(-1, -1, card, true); }

bool contains(const auto& items, const auto& item) { return std::ranges::find(items, item) != std::end(items); }

std::vector<Player*> bestOf(const std::vector<Player*>& players) {
  const auto rankOf = [](const Player* player) { return player->best.rank; };
  const HandRank best = std::ranges::max(players, {}, rankOf)->best.rank;
  std::vector<Player*> winners;
  std::ranges::copy_if(players, std::back_inserter(winners), [&](Player* player) { return rankOf(player) == best; });
  return winners;
}

void forEachBoard(Cards& board, std::span<const Card> rest, const auto& visit) {
  if (board.size() == FULL_BOARD) return visit(board);
  for (std::size_t i = 0; i < rest.size(); ++i) {
    board.push_back(rest[i]);
    forEachBoard(board, rest.subspan(i + 1), visit);
    board.pop_back();
  }
}

BestHand bestHandOf(const Player& player, const Cards& board) {
  Cards cards = player.cards;
  cards.insert(cards.end(), board.begin(), board.end());
  return bestHand(cards);
}

}  // namespace

Table::Table(Audience& audience, Game game, std::list<Player> players, std::uint32_t seed)
    : Teller(audience), game_(std::move(game)), players_(std::move(players)), dice_(seed) {}

const Player* Table::find(int id) const {
  const auto found = std::ranges::find(players_, id, [](const Player& player) { return player.person.id; });
  return found == players_.end() ? nullptr : &*found;
}

Player& Table::player(int id) {
  const Player* found = find(id);
  if (found == nullptr) throw std::logic_error("a player who is not here");
  return const_cast<Player&>(*found);
}

std::vector<Player*> Table::inOrderAfter(int seat) {
  std::vector<Player*> players;
  for (int i = 1; i <= game_.maxPlayers; ++i) {
    const auto player = std::ranges::find(players_, (seat + i) % game_.maxPlayers, &Player::seat);
    if (player != players_.end()) players.push_back(&*player);
  }
  return players;
}

std::vector<Player*> Table::inHandAfter(int seat) {
  std::vector<Player*> players = inOrderAfter(seat);
  std::erase_if(players, [](const Player* player) { return !player->inHand; });
  return players;
}

std::vector<Player*> Table::ableToBetAfter(int seat) {
  std::vector<Player*> players = inHandAfter(seat);
  std::erase_if(players, [](const Player* player) { return player->stack == 0; });
  return players;
}

int Table::playersReady() const {
  return static_cast<int>(
      std::ranges::count_if(players_, [](const Player& player) { return player.sittingIn && player.stack > 0; }));
}

bool Table::isInHand(int id) { return handRunning_ && !player(id).cards.empty(); }

int Table::playersInHand() { return static_cast<int>(inHandAfter(dealerSeat_).size()); }

void Table::move(std::int64_t& from, std::int64_t& to, std::int64_t amount) {
  if (amount < 0 || amount > from) throw std::logic_error("chips that are not there");
  from -= amount;
  to += amount;
}

std::int64_t Table::chips() const {
  return std::accumulate(players_.begin(), players_.end(), pot_ + rake_ + house_,
                         [](std::int64_t sum, const Player& p) { return sum + p.account + p.stack + p.bet; });
}

void Table::check() const {
  if (chips() != totalChips_) throw std::logic_error("chips were made or lost");
}

Body Table::playerId(const Player& player) const { return Body().record(PlayerId(player.person.id, player.seat)); }

Body Table::credit(const Player& player, std::int64_t amount) const {
  return Body().record(CreditInfo(player.person.id, player.seat, amount));
}

Body Table::actions(const Player& player, int flags, std::int64_t callValue,
                    const std::vector<std::int64_t>& bets) const {
  Body body;
  body.i8(player.seat).i8(flags).i64(callValue).i8(betTypeCode(game_.limit));
  return body.list<std::int8_t, std::int64_t>(bets);
}

Body Table::betRequest(const std::vector<Player*>& players, const std::vector<Body>& actions) const {
  Body body;
  body.list<std::int8_t>(players, [](Body& list, const Player* player) { list.i8(player->seat); });
  return body.list<std::int8_t>(actions).i8(SECONDS_TO_ACT).i8(SECONDS_TO_ACT);
}

Body Table::handValue(const Player& player) const {
  constexpr int HIGH_HAND = 0;
  Body body;
  body.i8(player.seat).i8(HIGH_HAND).i8(player.best.cards.empty() ? -1 : player.best.rank[0]);
  return body.list<std::int8_t>(player.best.cards, [](Body& list, const Card& card) { list.i8(card.wireNumber()); });
}

void Table::tellGameState() {
  tellEach<GameStateInfoMsg>([this](int listener) { return gameState(listener); });
}

void Table::tellGameState(int listener) { tellOne<GameStateInfoMsg>(listener, gameState(listener)); }

Body Table::gameState(int listener) {
  std::vector<Body> players;
  std::vector<Body> cards;
  for (const Card& card : board_) cards.push_back(tableCard(card));
  for (const Player* player : inOrderAfter(game_.maxPlayers - 1)) {
    Body& state = players.emplace_back();
    state.i32(player->seat).fields(playerInGame(player->person, moneyOf(*player), game_.id));
    state.i64(player->bet).flag(player->sittingIn).flag(player->slow);
    for (const Card& card : player->cards)
      if (player->inHand) cards.push_back(cardOf(player->person.id, player->seat, card, player->person.id == listener));
  }
  game_.players = static_cast<int>(players.size());
  Body body;
  body.fields(pokerRules(game_)).i32(dealerSeat_).i64(pot_).i32(street_).list<std::int16_t>(players);
  return body.list<std::int32_t>(cards).flag(false).i32(handNumber_).fields(pokerGame(game_)).i64(rake_);
}

void Table::tellTableInfo() { tell<ClientTableInfo>(tableInfo()); }

void Table::tellTableInfo(int listener) { tellOne<ClientTableInfo>(listener, tableInfo()); }

Body Table::tableInfo() const {
  const std::int64_t blinds[] = {game_.smallBlind(), game_.bigBlind};
  std::vector<Body> rounds;
  for (const bool isEarly : isDraw() ? std::vector{true, false} : std::vector{true, true, false, false}) {
    const std::int64_t bet = isEarly ? game_.smallBet() : game_.bigBet();
    Body& round = rounds.emplace_back();
    round.i64(bet).i64(bet * BETS_BEFORE_CAP);
    round.flag(game_.limit == AllowedLimitType::POT_LIMIT).flag(game_.limit == AllowedLimitType::NO_LIMIT);
  }
  Body body;
  body.text(game_.name).i8(game_.type).i16(game_.unit).i64(game_.ante).flag(false).flag(true).i32(game_.maxPlayers);
  body.list<std::int32_t, std::int64_t>(blinds).i64(game_.maxRake()).i32(SECONDS_TO_ACT).text(nameOf(game_.type));
  body.i64(game_.minBuyIn()).i64(game_.maxBuyIn()).i64(game_.smallBet()).i64(game_.bigBet());
  return body.list<std::int32_t>(rounds);
}

void Table::enter(const Person& person, std::int64_t account) {
  players_.push_back({.person = person, .account = account});
  totalChips_ += account;
  tell<PlayerJoined>(playerInGame(person, {0, game_.unit}, game_.id));
}

std::int64_t Table::leave(const Person& person) {
  const Player& leaving = player(person);
  if (isInHand(person.id)) throw std::logic_error("a player left whose chips are in the pot");
  if (leaving.seat != Player::NO_SEAT) standUp(person);
  tell<PlayerLeft>(Body().text(person.nick).i32(game_.id));
  tell<PlayerIGLeft>(Body().i32(person.id));
  const std::int64_t account = leaving.account;
  totalChips_ -= account;
  players_.remove_if([&](const Player& other) { return other.person.id == person.id; });
  return account;
}

void Table::setSlow(Player& player, bool slow) {
  if (std::exchange(player.slow, slow) == slow) return;
  if (slow)
    tell<ClientSlowPlayer>(Body().i32(player.person.id).i8(0));
  else
    tell<ClientSlowPlayerBack>(Body().i32(player.person.id));
}

void Table::sitDown(const Person& person, int seat) {
  Player& player = this->player(person);
  player.seat = seat;
  tell<PlayerSatDown>(playerInGame(person, moneyOf(player), game_.id).i8(seat));
}

void Table::takeMoney(const Person& person, std::int64_t amount) {
  constexpr int STATUS_FAIL = 0;
  constexpr int STATUS_OK = 1;
  Player& player = this->player(person);
  const bool isEnough = amount <= player.account;
  if (isEnough) move(player.account, player.stack, amount);
  tell<ReserveMoneyReply>(
      Body().i8(isEnough ? STATUS_OK : STATUS_FAIL).fields(playerInGame(person, moneyOf(player), game_.id)));
}

void Table::sitIn(const Person& person, bool again) {
  player(person).sittingIn = true;
  tell<ClientSatIn>(Body().i32(person.id).flag(again));
}

void Table::sitOut(const Person& person, int status) {
  player(person).sittingIn = false;
  tell<ClientSatOut>(Body().i32(person.id).i8(status));
}

void Table::standUp(const Person& person) {
  Player& player = this->player(person);
  player.seat = Player::NO_SEAT;
  player.sittingIn = false;
  move(player.stack, player.account, player.stack);
  tell<PlayerStandUp>(Body().text(person.nick).i32(game_.id));
}

void Table::changeGame(AllowedGameType type, AllowedLimitType limit) {
  game_.type = type;
  game_.limit = limit;
  tellGameState();
}

void Table::changeBlinds(std::int64_t bigBlind, std::int64_t ante) {
  game_.bigBlind = bigBlind;
  game_.ante = ante;
}

void Table::startHand(std::string_view firstCards) {
  board_.clear();
  deck_ = Deck(firstCards, dice_);
  street_ = betsMade_ = 0;
  shown_ = false;
  for (Player& player : players_) {
    player.inHand = player.seat != Player::NO_SEAT && player.sittingIn && player.stack > 0;
    player.paid = 0;
    player.cards.clear();
    player.best = {};
  }
  const Player& dealer = *inHandAfter(dealerSeat_).front();
  dealerSeat_ = firstSeat_ = dealer.seat;

  Body body;
  body.i32(++handNumber_).i32(game_.maxPlayers);
  for (int seat = 0; seat < game_.maxPlayers; ++seat)
    body.flag(
        std::ranges::any_of(players_, [&](const Player& player) { return player.inHand && player.seat == seat; }));
  handRunning_ = true;
  audience().pause(3000);
  tell<ClientNewRound>(body);
  tell<ClientSetDealerToken>(playerId(dealer));
}

void Table::postAntes() {
  const std::vector<Player*> players = inHandAfter(dealerSeat_);
  std::vector<Body> requests;
  requests.reserve(players.size());
  for (const Player* player : players) requests.push_back(actions(*player, CHECK_CALL, game_.ante));
  tell<ClientBetAnteReq>(betRequest(players, requests));
  for (Player* player : players) {
    const std::int64_t ante = std::min(game_.ante, player->stack);
    if (!player->autoPost) audience().answered(player->person, ServerBet(player->person.id, player->seat, ante));
    move(player->stack, player->bet, ante);
    tell<ClientBetDone>(credit(*player, ante));
  }
  collectBets();
}

void Table::postBlind(Player& player, std::int64_t amount, bool dead) {
  amount = std::min(amount, player.stack);
  tell<ClientBetBlindReq>(betRequest({&player}, {actions(player, FOLD_FLAG | CHECK_CALL, amount)}));
  if (!player.autoPost) audience().answered(player.person, ServerBet(player.person.id, player.seat, amount));
  move(player.stack, dead ? pot_ : player.bet, amount);
  if (!dead) {
    tell<ClientBetDone>(credit(player, amount));
    if (player.stack == 0) tell<ClientAllInDone>(playerId(player));
    return;
  }
  dead_ += amount;
  tell<ClientBetDeadDone>(credit(player, amount));
}

void Table::postBlinds() {
  const std::vector<Player*> players = inHandAfter(dealerSeat_);
  postBlind(*players.at(0), game_.smallBlind(), false);
  postBlind(*players.at(1), game_.bigBlind, false);
  firstSeat_ = players[1]->seat;
  betsMade_ = 1;
}

void Table::postMissedBlinds(const Person& person) {
  postBlind(player(person), game_.smallBlind(), true);
  postBlind(player(person), game_.bigBlind, false);
}

void Table::dealTo(const std::vector<Player*>& players, int cardsEach, AllowedDealType type) {
  struct Dealt {
    const Player* player;
    Card card;
  };
  std::vector<Dealt> dealt;
  for (int round = 0; round < cardsEach; ++round) {
    for (Player* player : players) {
      player->cards.push_back(deck_.deal());
      dealt.push_back({player, player->cards.back()});
    }
  }
  // Each listener sees the own cards.
  tellEach<ClientCards>([&](int listener) {
    Body body;
    body.i8(type).list<std::int32_t>(dealt, [&](Body& cards, const Dealt& one) {
      const int id = one.player->person.id;
      cards.fields(cardOf(id, one.player->seat, one.card, id == listener));
    });
    return body.flag(false);
  });
}

void Table::dealHands(int cardsEach) { dealTo(inHandAfter(dealerSeat_), cardsEach, AllowedDealType::HOLE_CARDS); }

void Table::nextStreet() {
  tell<ClientNextBettingRound>();
  ++street_;
  betsMade_ = 0;
  firstSeat_ = dealerSeat_;
}

void Table::dealBoard(AllowedDealType street) {
  nextStreet();
  std::vector<Body> cards;
  for (int left = street == AllowedDealType::FLOP ? 3 : 1; left > 0; --left) {
    board_.push_back(deck_.deal());
    cards.push_back(tableCard(board_.back()));
  }
  tell<ClientCards>(Body().i8(street).list<std::int32_t>(cards).flag(false));
}

std::int64_t Table::betSize() const {
  if (game_.limit != AllowedLimitType::LIMIT) return lastRaise_;
  return street_ < (isDraw() ? 1 : 2) ? game_.smallBet() : game_.bigBet();
}

bool Table::isCapped() const { return game_.limit == AllowedLimitType::LIMIT && betsMade_ == BETS_BEFORE_CAP; }

bool Table::mayRaise(std::int64_t raise) const {
  return game_.limit == AllowedLimitType::LIMIT ? !isCapped() && raise == betSize() : raise >= betSize();
}

void Table::startBetting() {
  currentBet_ = std::ranges::max(players_, {}, &Player::bet).bet;
  if (street_ == 0) currentBet_ = std::max(currentBet_, game_.bigBlind);
  lastRaise_ = game_.bigBlind;
  const std::vector<Player*> able = ableToBetAfter(firstSeat_);
  toAct_.assign(able.begin(), able.end());
}

// The last player with chips is not asked once nobody in the hand has bet more. (The others may be all in for less than
// the big blind.)
Player* Table::toAct() {
  if (toAct_.empty() || playersInHand() == 1) return nullptr;
  Player* const next = toAct_.front();
  const auto hasBetMore = [next](const Player* player) { return player->bet > next->bet; };
  const bool isAlone = ableToBetAfter(dealerSeat_).size() == 1;
  return isAlone && std::ranges::none_of(inHandAfter(dealerSeat_), hasBetMore) ? nullptr : next;
}

void Table::askMove() {
  Player& player = *toAct();
  const std::int64_t toCall = std::min(currentBet_ - player.bet, player.stack);
  int flags = FOLD_FLAG | CHECK_CALL;
  std::vector<std::int64_t> bets;
  if (!isCapped() && player.stack > toCall) {
    flags |= BET_RAISE;
    bets.push_back(std::min(toCall + betSize(), player.stack));
    if (game_.limit == AllowedLimitType::NO_LIMIT) bets.push_back(player.stack);
  }
  const Body request = actions(player, flags, toCall, bets);
  // The others may choose beforehand.
  tellEach<ClientBetReq>([&](int listener) {
    std::vector<Body> requests = {request};
    const Player* other = find(listener);
    if (other != nullptr && other != &player && other->inHand && other->stack > 0)
      requests.push_back(actions(*other, CHECK_FOLD | CALL_ANY | BET_RAISE_ANY, currentBet_ - other->bet));
    return betRequest({&player}, requests);
  });
}

void Table::answer(const Player& player, const Move& move, std::int64_t amount) {
  const int id = player.person.id;
  const int seat = player.seat;
  const auto send = [&](const ServerMessage& request) { audience().answered(player.person, request); };
  if (move.hitch == Move::PREPARED)
    return send(ServerInTurnAction(id, seat, street_, static_cast<InTurnAction::InTurnActionType>(move.kind), amount));
  switch (move.kind) {
    case Move::FOLD:
      return send(ServerFold());
    case Move::CHECK_OR_CALL:
      return send(ServerCheckCall(id, seat, amount));
    case Move::RAISE:
      return send(ServerBet(id, seat, amount));
    case Move::ALL_IN:
      return send(ServerAllIn(id, seat, amount));
  }
}

void Table::waitForMove(Player& player, Move::Hitch hitch) {
  audience().pause(1400);
  if (hitch == Move::SLOW) {
    setSlow(player, true);
    audience().pause(5000);
  }
  if (hitch != Move::HURRIED && hitch != Move::TIMED_OUT) return;
  audience().pause(12'000);
  tell<ClientHurryUp>(playerId(player));
  audience().answered(player.person, ServerHurryAck());
  if (hitch == Move::HURRIED) return;
  audience().pause(8000);
  tell<ClientPlayerTimeout>(Body().i32(player.person.id));
}

std::int64_t Table::chipsFor(const Move& move) {
  const Player& player = *toAct();
  const std::int64_t toCall = std::min(currentBet_ - player.bet, player.stack);
  const std::int64_t amount[] = {0, toCall, move.raiseTo - player.bet, player.stack};
  return amount[move.kind];
}

bool Table::allows(const Move& move) {
  const Player& player = *toAct();
  const std::int64_t chips = chipsFor(move);
  const std::int64_t raise = player.bet + chips - currentBet_;
  if (move.kind == Move::RAISE && raise <= 0) return false;
  return chips <= player.stack && (raise <= 0 || chips == player.stack || mayRaise(raise));
}

void Table::makeMove(const Move& move) {
  if (!allows(move)) throw std::logic_error("no raise of that size");
  Player& player = *toAct();
  const std::int64_t chips = chipsFor(move);
  const std::int64_t raise = player.bet + chips - currentBet_;
  toAct_.pop_front();
  setSlow(player, false);

  if (move.kind == Move::FOLD) {
    player.inHand = false;
    return tell<ClientFoldDone>(playerId(player));
  }
  if (chips == 0) return tell<ClientCheckDone>(playerId(player));
  Table::move(player.stack, player.bet, chips);
  if (raise > 0) {
    tell<ClientBetDone>(credit(player, chips));
    currentBet_ = player.bet;
    lastRaise_ = std::max(lastRaise_, raise);
    ++betsMade_;
  } else {
    tell<ClientCallDone>(credit(player, chips));
  }
  if (player.stack == 0) tell<ClientAllInDone>(playerId(player));
  if (raise <= 0) return;
  if (isCapped()) tell<ClientBettingCapped>();
  const std::vector<Player*> able = ableToBetAfter(player.seat);
  toAct_.assign(able.begin(), able.end());
  std::erase(toAct_, &player);
}

void Table::endBetting() {
  toAct_.clear();
  returnUncalledBet();
  collectBets();
}

void Table::betting(std::initializer_list<Move> moves) {
  startBetting();
  for (const Move& move : moves) {
    Player* player = toAct();
    if (player == nullptr) throw std::logic_error("a move is left over");
    askMove();
    waitForMove(*player, move.hitch);
    if (move.hitch != Move::TIMED_OUT) answer(*player, move, chipsFor(move));
    makeMove(move);
  }
  if (toAct() != nullptr) throw std::logic_error("a move is missing");
  endBetting();
}

bool Table::isAllIn() { return playersInHand() > 1 && ableToBetAfter(dealerSeat_).size() <= 1; }

Body Table::wonPot(AllowedPotType type, const Player& player, std::int64_t amount) const {
  return Body().i8(type).fields(credit(player, amount)).fields(handValue(player));
}

void Table::returnUncalledBet() {
  std::vector<Player*> players = inOrderAfter(dealerSeat_);
  std::ranges::sort(players, std::ranges::greater(), &Player::bet);
  const std::int64_t uncalled = players[0]->bet - players[1]->bet;
  if (uncalled == 0) return;
  move(players[0]->bet, players[0]->stack, uncalled);
  tell<ClientWin>(Body().i8(1).fields(wonPot(AllowedPotType::UNCALLED_BET, *players[0], uncalled)));
}

void Table::collectBets() {
  for (Player* player : inOrderAfter(dealerSeat_)) {
    if (player->bet == 0) continue;
    const std::int64_t bet = player->bet;
    player->paid += bet;
    move(player->bet, pot_, bet);
    tell<ClientBetsToPot>(credit(*player, bet));
  }
  if (street_ == 0) return;
  const std::int64_t rake = std::min((pot_ + rake_) * RAKE_PERCENT / 100, game_.maxRake());
  move(pot_, rake_, rake - rake_);
  tell<ClientTotalRake>(Body().record(CreditInfo(-1, -1, rake_)));
}

void Table::exchangeCards(std::initializer_list<Exchange> exchanges) {
  nextStreet();
  const std::vector<Player*> players = inHandAfter(dealerSeat_);
  if (players.size() != exchanges.size()) throw std::logic_error("an exchange for each player");
  auto exchange = exchanges.begin();
  for (Player* player : players) {
    const auto& [kind, places] = *exchange++;
    tellOne<ClientCardsSelectable>(player->person.id);
    tell<ClientChangeCards>(Body().i8(player->seat).i8(SECONDS_TO_ACT).i8(SECONDS_TO_ACT));
    audience().pause(kind == Exchange::AUTOMATIC ? SECONDS_TO_ACT * 1000 : 2500);
    DiscardCardsInfo info;
    info.setSeat(player->seat);
    info.setDiscardedCards(TsArray<int>(places));
    audience().answered(player->person, ServerDiscardCards(info));
    std::for_each(places.rbegin(), places.rend(),
                  [&](int place) { player->cards.erase(player->cards.begin() + place); });
    tell<ClientDiscardCards>(Body().i8(kind).i8(player->seat).list<std::int8_t, std::int8_t>(places));
    if (!places.empty()) dealTo({player}, static_cast<int>(places.size()), AllowedDealType::DRAW);
  }
}

void Table::rankHands() {
  for (Player* player : inHandAfter(dealerSeat_)) player->best = bestHandOf(*player, board_);
}

void Table::showCards(const std::vector<Player*>& players, const std::vector<Player*>& winners) {
  std::vector<Body> cards;
  std::vector<bool> winning;
  const auto wins = [](const Card& card) {
    return [card](const Player* player) { return contains(player->best.cards, card); };
  };
  for (const Card& card : board_) {
    cards.push_back(tableCard(card));
    winning.push_back(std::ranges::any_of(winners, wins(card)));
  }
  for (Player* player : players) {
    for (const Card& card : player->cards) {
      cards.push_back(cardOf(player->person.id, player->seat, card, true));
      winning.push_back(contains(winners, player) && wins(card)(player));
    }
  }
  Body body;
  body.list<std::int32_t>(cards).flag(!winners.empty());
  if (!winners.empty())
    for (const bool isWinning : winning) body.flag(isWinning);
  tell<ClientShowAllCards>(body);
}

void Table::showAllIn() {
  showCards(inHandAfter(dealerSeat_), {});
  shown_ = true;
}

void Table::tellChances() {
  constexpr std::int64_t WHOLE = 60;  // splits evenly among up to six winners
  const std::vector<Player*> players = inHandAfter(dealerSeat_);
  std::map<const Player*, std::int64_t> shares;
  std::int64_t boards = 0;
  Cards board = board_;
  forEachBoard(board, deck_.rest(), [&](const Cards& full) {
    for (Player* player : players) player->best = bestHandOf(*player, full);
    const std::vector<Player*> winners = bestOf(players);
    for (const Player* winner : winners) shares[winner] += WHOLE / std::ssize(winners);
    ++boards;
  });
  // In hundredths of a percent.
  tell<AllInProbabilityResults>(Body().list<std::int32_t>(players, [&](Body& body, const Player* player) {
    body.i32(player->person.id).i32(shares[player] * 10'000 / (WHOLE * boards));
  }));
  audience().pause(3000);
}

std::vector<Table::Pot> Table::pots() {
  std::vector<Player*> players = inHandAfter(dealerSeat_);
  std::set<std::int64_t> levels;
  for (const Player* player : players) levels.insert(player->paid);

  std::vector<Pot> pots;
  std::int64_t below = 0;
  for (const std::int64_t level : levels) {
    Pot& pot = pots.emplace_back();
    // Whatever those paid who have folded is in the last pot at the latest.
    const std::int64_t limit = level == *levels.rbegin() ? std::numeric_limits<std::int64_t>::max() : level;
    for (const Player& player : players_) pot.amount += std::min(player.paid, limit) - std::min(player.paid, below);
    std::ranges::copy_if(players, std::back_inserter(pot.contenders),
                         [&](const Player* player) { return player->paid >= level; });
    below = level;
  }
  pots.front().amount += dead_;
  std::int64_t rake = rake_;
  for (Pot& pot : pots) {
    const std::int64_t share = std::min(rake, pot.amount);
    pot.amount -= share;
    rake -= share;
  }
  return pots;
}

void Table::payPots(const std::vector<Pot>& pots) {
  std::vector<Body> wins;
  for (std::size_t i = 0; i < pots.size(); ++i) {
    const std::vector<Player*> winners = bestOf(pots[i].contenders);
    const std::int64_t share = pots[i].amount / std::ssize(winners);
    std::int64_t oddChips = pots[i].amount % std::ssize(winners);
    for (Player* winner : winners) {
      const std::int64_t won = share + std::exchange(oddChips, 0);
      move(pot_, winner->stack, won);
      wins.push_back(wonPot(i == 0 ? AllowedPotType::MAIN_POT : AllowedPotType::SIDE_POT, *winner, won));
    }
  }
  if (pot_ != 0) throw std::logic_error("a pot that nobody won");
  tell<ClientWin>(Body().list<std::int8_t>(wins));
}

// Winners show their cards, losers do not.
bool Table::asksToShow(const Player& player, bool wins) {
  if (wins) {
    tell<ClientShowCardsReq>(playerId(player));
    audience().answered(player.person, ServerShowCards());
  } else {
    tell<ClientMuckLosingCardsReq>(playerId(player));
    audience().answered(player.person, ServerMuckCards());
  }
  return wins;
}

void Table::showdown() {
  rankHands();
  const std::vector<Pot> pots = this->pots();
  const std::vector<Player*> winners = bestOf(pots.front().contenders);
  std::vector<Player*> showing = inHandAfter(dealerSeat_);
  if (!shown_)
    std::erase_if(showing, [&](const Player* player) { return !asksToShow(*player, contains(winners, player)); });
  for (const Player* player : showing) tell<ClientShowdownHandValue>(handValue(*player));
  showCards(showing, winners);
  payPots(pots);
  endHand();
}

void Table::winUncalled(bool show) {
  const std::vector<Player*> winner = inHandAfter(dealerSeat_);
  if (winner.size() != 1) throw std::logic_error("a showdown is due");
  tell<ClientMuckCardsReq>(playerId(*winner[0]));
  if (show)
    audience().answered(winner[0]->person, ServerShowCards());
  else
    audience().answered(winner[0]->person, ServerMuckCards());
  if (show) showCards(winner, {});
  payPots(pots());
  endHand();
}

void Table::endHand() {
  move(rake_, house_, rake_);
  dead_ = 0;
  board_.clear();
  handRunning_ = false;
  for (Player& player : players_) player.inHand = false;
  tell<ClientEndRound>();
}

}  // namespace CardRoom
