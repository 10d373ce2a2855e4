#pragma once
#include <algorithm>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

// The floor that Herald is compared with: what one would write by hand for these messages and no others. Plain
// structures with `std::string` texts (checked to be UTF-8) and `std::vector` lists, one test of the bounds for each
// run of fields of fixed size, every item built in its place.

namespace Floor {

// ---- The messages. `fields` is for the comparison with other decoders; nothing here is read or written through it.
// ----

struct Money {
  std::int16_t unit;
  std::int64_t amount;
  auto fields() const { return std::tie(unit, amount); }
};

struct CreditInfo {
  std::int32_t playerId;
  std::int8_t seat;
  std::int64_t amount;
  auto fields() const { return std::tie(playerId, seat, amount); }
};

struct PlayerActions {
  std::int8_t seat, actionFlags;
  std::int64_t checkCallValue;
  std::int8_t betTypeCode;
  std::vector<std::int64_t> bets;
  auto fields() const { return std::tie(seat, actionFlags, checkCallValue, betTypeCode, bets); }
};

struct BetRequest {
  std::vector<std::int8_t> requestedSeats;
  std::vector<PlayerActions> playerActions;
  std::int8_t totalTime, timeLeft;
  auto fields() const { return std::tie(requestedSeats, playerActions, totalTime, timeLeft); }
};

struct PlayerState {
  std::int32_t seat, id;
  std::string nickName, city;
  std::int32_t ping, gameId;
  std::int8_t flags;
  std::string teamName;
  Money moneyAtTable;
  std::int64_t betsNotInPot;
  bool sittingIn, slow;
  auto fields() const {
    return std::tie(seat, id, nickName, city, ping, gameId, flags, teamName, moneyAtTable, betsNotInPot, sittingIn,
                    slow);
  }
};

struct Card {
  std::int32_t playerId, seat;
  std::int8_t color, number;
  auto fields() const { return std::tie(playerId, seat, color, number); }
};

struct Cards {
  std::vector<Card> cards;
  bool hasWinning;
  std::vector<std::uint8_t> winning;  // 0 or 1 for each card
  auto fields() const { return std::tie(cards, hasWinning, winning); }
};

struct Rules {
  std::string description;
  std::int16_t unit;
  std::int64_t maxRake, bigBlind;
  std::vector<std::int64_t> chipStackValues;
  std::int64_t minChipValue, ante, smallBlind, smallBet, bigBet;
  Money tournamentBuyIn, tournamentFee;
  auto fields() const {
    return std::tie(description, unit, maxRake, bigBlind, chipStackValues, minChipValue, ante, smallBlind, smallBet,
                    bigBet, tournamentBuyIn, tournamentFee);
  }
};

struct Game {
  std::int32_t id;
  std::string name;
  std::int16_t nrPlayers, maxNrPlayers, nrPlayersWatching, unit;
  std::int32_t port, type;
  std::int8_t gameType, limitType;
  std::int64_t lowerLimit, upperLimit;
  std::int8_t tableFlags;
  auto fields() const {
    return std::tie(id, name, nrPlayers, maxNrPlayers, nrPlayersWatching, unit, port, type, gameType, limitType,
                    lowerLimit, upperLimit, tableFlags);
  }
};

struct GameState {
  Rules rules;
  std::int32_t dealerSeat;
  std::int64_t pot;
  std::int32_t bettingRound;
  std::vector<PlayerState> players;
  Cards cards;
  std::int32_t handId;
  Game game;
  std::int64_t rake;
  auto fields() const { return std::tie(rules, dealerSeat, pot, bettingRound, players, cards, handId, game, rake); }
};

struct GameList {
  std::int16_t nodeId;
  std::vector<Game> games;
  auto fields() const { return std::tie(nodeId, games); }
};

struct Ticket {
  std::string description;
  Money buyIn, fee;
  bool isRestricted;
  auto fields() const { return std::tie(description, buyIn, fee, isRestricted); }
};

struct PrizeStructure {
  std::int32_t numPlayersInPayout;
  Money prizePool;
  std::int8_t type;
  Money addedCash, guaranteedCash;
  auto fields() const { return std::tie(numPlayersInPayout, prizePool, type, addedCash, guaranteedCash); }
};

struct LevelStructure {
  std::int64_t durationMs;
  std::int16_t durationHands;
  bool isAdaptive;
  auto fields() const { return std::tie(durationMs, durationHands, isAdaptive); }
};

struct Rebuy {
  std::int32_t numberOfRebuys;
  std::int64_t durationMs;
  bool hasAddon;
  Money rebuy, rebuyCost, addon, addonCost;
  auto fields() const { return std::tie(numberOfRebuys, durationMs, hasAddon, rebuy, rebuyCost, addon, addonCost); }
};

struct Flight {
  std::int32_t mainEventId, numPlayers;
  std::int64_t durationMs;
  auto fields() const { return std::tie(mainEventId, numPlayers, durationMs); }
};

struct TourSummary {
  std::int32_t tourId, attributes;
  std::int8_t status;
  std::int16_t serverPort;
  std::string nameShort, nameLong, description;
  std::int8_t limitType, gameType;
  std::int32_t numEntrants, minNumEntrants, maxNumEntrants, currentNumPlayers;
  std::int8_t playersPerTable;
  Ticket ticket;
  PrizeStructure prize;
  Money startingChips;
  std::int64_t startTime, webRegistrationTime, clientRegistrationTime;
  LevelStructure level;
  std::int32_t ownerId;
  std::optional<Rebuy> rebuy;
  std::optional<Flight> flight;
  std::int8_t regStatus;
  auto fields() const {
    return std::tie(tourId, attributes, status, serverPort, nameShort, nameLong, description, limitType, gameType,
                    numEntrants, minNumEntrants, maxNumEntrants, currentNumPlayers, playersPerTable, ticket, prize,
                    startingChips, startTime, webRegistrationTime, clientRegistrationTime, level, ownerId, rebuy,
                    flight, regStatus);
  }
};

struct TourUpdate {
  std::int32_t tourId, attributes;
  std::int8_t status;
  std::int32_t numEntrants, currentNumPlayers, numPlayersInPayout;
  Money prizePool;
  std::int64_t startTime;
  std::optional<std::int32_t> numPlayersInMainEvent;
  std::int8_t regStatus;
  auto fields() const {
    return std::tie(tourId, attributes, status, numEntrants, currentNumPlayers, numPlayersInPayout, prizePool,
                    startTime, numPlayersInMainEvent, regStatus);
  }
};

struct TourChanges {
  std::int16_t nodeId;
  std::vector<TourSummary> added;
  std::vector<TourUpdate> updated;
  std::vector<std::int32_t> deleted;
  auto fields() const { return std::tie(nodeId, added, updated, deleted); }
};

struct TreeNode {
  std::int16_t id, nameId;
  std::string defaultName;
  std::int16_t port;
  std::int8_t nodeType, lobbyType;
  std::vector<TreeNode> subNodes;
  auto fields() const { return std::tie(id, nameId, defaultName, port, nodeType, lobbyType, subNodes); }
};

struct LobbyPlayer {
  std::int32_t id;
  std::string name;
  std::int8_t attributes;
  auto fields() const { return std::tie(id, name, attributes); }
};

struct PlayerList {
  std::vector<LobbyPlayer> registered;
  std::vector<std::int32_t> unregistered;
  auto fields() const { return std::tie(registered, unregistered); }
};

struct InTurnAction {
  std::int32_t seat, playerId, betRound, actionType;
  std::int64_t amount;
  auto fields() const { return std::tie(seat, playerId, betRound, actionType, amount); }
};

struct JoinTournament {
  std::int32_t playerId, tournamentId, tableId;
  std::int8_t replyStatus;
  std::string password;
  auto fields() const { return std::tie(playerId, tournamentId, tableId, replyStatus, password); }
};

struct ChatMessage {
  std::string nickname, message;
  auto fields() const { return std::tie(nickname, message); }
};

// ---- Reading. ----

[[noreturn, gnu::cold, gnu::noinline]] inline void fail(const char* why) { throw std::runtime_error(why); }

template <std::integral T>
T bigEndian(T value) {
  if constexpr (sizeof(T) == 8) return static_cast<T>(__builtin_bswap64(static_cast<std::uint64_t>(value)));
  if constexpr (sizeof(T) == 4) return static_cast<T>(__builtin_bswap32(static_cast<std::uint32_t>(value)));
  if constexpr (sizeof(T) == 2) return static_cast<T>(__builtin_bswap16(static_cast<std::uint16_t>(value)));
  return value;
}

template <std::integral T>
T load(const std::uint8_t* from) {
  T value;
  std::memcpy(&value, from, sizeof(T));
  return bigEndian(value);
}

inline Money loadMoney(const std::uint8_t* from) { return {load<std::int16_t>(from), load<std::int64_t>(from + 2)}; }

inline bool isUtf8(const std::uint8_t* at, const std::uint8_t* end) {
  while (at != end) {
    const unsigned lead = *at++;
    if (lead < 0x80) continue;
    const int more = lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    if (lead < 0xC2 || lead > 0xF4 || end - at < more) return false;
    // The byte behind the lead keeps out long forms, surrogates and what lies beyond U+10FFFF.
    const unsigned lowest = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned highest = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    if (*at < lowest || *at > highest) return false;
    for (int i = 1; i < more; ++i)
      if ((at[i] & 0xC0) != 0x80) return false;
    at += more;
  }
  return true;
}

// By words, the last of which overlaps the one before.
inline bool isAscii(const std::uint8_t* bytes, std::size_t size) {
  std::uint64_t all = 0;
  const auto look = [&]<class Word>(Word word, std::size_t at) {
    std::memcpy(&word, bytes + at, sizeof word);
    all |= word;
  };
  if (size >= 8) {
    for (std::size_t at = 0; at + 8 < size; at += 8) look(std::uint64_t{}, at);
    look(std::uint64_t{}, size - 8);
  } else if (size >= 4) {
    look(std::uint32_t{}, 0);
    look(std::uint32_t{}, size - 4);
  } else {
    for (std::size_t at = 0; at < size; ++at) look(std::uint8_t{}, at);
  }
  return (all & 0x8080808080808080u) == 0;
}

class Reader {
 public:
  explicit Reader(std::span<const std::uint8_t> bytes) : at_(bytes.data()), end_(at_ + bytes.size()) {}

  std::size_t left() const { return static_cast<std::size_t>(end_ - at_); }

  /// The one test of a run of fields of fixed size.
  const std::uint8_t* take(std::size_t size) {
    if (left() < size) [[unlikely]]
      fail("past the end");
    return std::exchange(at_, at_ + size);
  }

  template <class T>
  T number() {
    return load<T>(take(sizeof(T)));
  }

  template <class T>
  std::size_t count() {
    const T count = number<T>();
    if (count < 0) [[unlikely]]
      fail("a count below zero");
    return static_cast<std::size_t>(count);
  }

  std::string text() {
    const std::size_t size = number<std::uint16_t>();
    const std::uint8_t* const bytes = take(size);
    if (!isAscii(bytes, size) && !isUtf8(bytes, bytes + size)) [[unlikely]]
      fail("no UTF-8");
    return {reinterpret_cast<const char*>(bytes), size};
  }

 private:
  const std::uint8_t* at_;
  const std::uint8_t* end_;
};

template <class T>
T read(Reader& in);

// Reads an item when it becomes one, so that it is built where it stays.
template <class T>
struct Item {
  Reader& in;
  operator T() const { return read<T>(in); }
};

// The items of a list while it is read: a vector that is made of this range allocates once and fills with nothing else.
template <class T, class Make>
struct Items {
  using value_type = T;
  using reference = std::invoke_result_t<Make, std::size_t>;
  using pointer = void;
  using difference_type = std::ptrdiff_t;
  using iterator_category = std::random_access_iterator_tag;

  const Make* make;
  std::size_t index;

  reference operator*() const { return (*make)(index); }
  Items& operator++() { return ++index, *this; }
  bool operator==(const Items& other) const { return index == other.index; }
  difference_type operator-(const Items& other) const { return static_cast<difference_type>(index - other.index); }
};

template <class T, class Make>
std::vector<T> vectorOf(std::size_t count, const Make& make) {
  using Iterator = Items<T, Make>;
  return std::vector<T>(Iterator{&make, 0}, Iterator{&make, count});
}

// `smallest` is the smallest size of an item on the wire: a forged count asks for no memory.
template <class T>
std::vector<T> list(Reader& in, std::size_t count, std::size_t smallest) {
  if (in.left() / smallest < count) [[unlikely]]
    fail("a count past the end");
  return vectorOf<T>(count, [&in](std::size_t) { return Item<T>{in}; });
}

template <std::integral T>
std::vector<T> numbers(Reader& in, std::size_t count) {
  if (in.left() / sizeof(T) < count) [[unlikely]]
    fail("a count past the end");
  const std::uint8_t* const bytes = in.take(count * sizeof(T));
  return vectorOf<T>(count, [bytes](std::size_t index) { return load<T>(bytes + index * sizeof(T)); });
}

// Lists in braces are evaluated from left to right: where one says `at = in.take(n)`, it tests the n bytes from which
// the fields behind it are loaded.

template <>
inline CreditInfo read(Reader& in) {
  const std::uint8_t* const at = in.take(13);
  return {load<std::int32_t>(at), load<std::int8_t>(at + 4), load<std::int64_t>(at + 5)};
}

template <>
inline PlayerActions read(Reader& in) {
  const std::uint8_t* const at = in.take(11);
  return {load<std::int8_t>(at), load<std::int8_t>(at + 1), load<std::int64_t>(at + 2), load<std::int8_t>(at + 10),
          numbers<std::int64_t>(in, in.count<std::int8_t>())};
}

template <>
inline BetRequest read(Reader& in) {
  const std::uint8_t* at;
  return {numbers<std::int8_t>(in, in.count<std::int8_t>()), list<PlayerActions>(in, in.count<std::int8_t>(), 12),
          (at = in.take(2), load<std::int8_t>(at)), load<std::int8_t>(at + 1)};
}

template <>
inline PlayerState read(Reader& in) {
  const std::uint8_t* at;
  return {(at = in.take(8), load<std::int32_t>(at)),
          load<std::int32_t>(at + 4),
          in.text(),
          in.text(),
          (at = in.take(9), load<std::int32_t>(at)),
          load<std::int32_t>(at + 4),
          load<std::int8_t>(at + 8),
          in.text(),
          (at = in.take(20), loadMoney(at)),
          load<std::int64_t>(at + 10),
          at[18] != 0,
          at[19] != 0};
}

template <>
inline Card read(Reader& in) {
  const std::uint8_t* const at = in.take(10);
  const auto color = load<std::int8_t>(at + 8), number = load<std::int8_t>(at + 9);
  if (color < -1 || color > 3) [[unlikely]]
    fail("color");
  if (number < -1 || number == 0 || number > 13) [[unlikely]]
    fail("number");
  return {load<std::int32_t>(at), load<std::int32_t>(at + 4), color, number};
}

template <>
inline Cards read(Reader& in) {
  const std::size_t count = in.count<std::int32_t>();
  Cards cards{list<Card>(in, count, 10), in.number<std::int8_t>() != 0, {}};
  if (!cards.hasWinning) return cards;
  cards.winning = numbers<std::uint8_t>(in, count);
  for (std::uint8_t& winning : cards.winning) winning = winning != 0;
  return cards;
}

template <>
inline Rules read(Reader& in) {
  const std::uint8_t* at;
  return {in.text(),
          (at = in.take(18), load<std::int16_t>(at)),
          load<std::int64_t>(at + 2),
          load<std::int64_t>(at + 10),
          numbers<std::int64_t>(in, in.count<std::int32_t>()),
          (at = in.take(60), load<std::int64_t>(at)),
          load<std::int64_t>(at + 8),
          load<std::int64_t>(at + 16),
          load<std::int64_t>(at + 24),
          load<std::int64_t>(at + 32),
          loadMoney(at + 40),
          loadMoney(at + 50)};
}

template <>
inline Game read(Reader& in) {
  const std::uint8_t* at;
  return {in.number<std::int32_t>(),
          in.text(),
          (at = in.take(35), load<std::int16_t>(at)),
          load<std::int16_t>(at + 2),
          load<std::int16_t>(at + 4),
          load<std::int16_t>(at + 6),
          load<std::int32_t>(at + 8),
          load<std::int32_t>(at + 12),
          load<std::int8_t>(at + 16),
          load<std::int8_t>(at + 17),
          load<std::int64_t>(at + 18),
          load<std::int64_t>(at + 26),
          load<std::int8_t>(at + 34)};
}

template <>
inline GameState read(Reader& in) {
  const std::uint8_t* at;
  return {read<Rules>(in),
          (at = in.take(16), load<std::int32_t>(at)),
          load<std::int64_t>(at + 4),
          load<std::int32_t>(at + 12),
          list<PlayerState>(in, in.count<std::int16_t>(), 43),
          read<Cards>(in),
          in.number<std::int32_t>(),
          read<Game>(in),
          in.number<std::int64_t>()};
}

template <>
inline GameList read(Reader& in) {
  return {in.number<std::int16_t>(), list<Game>(in, in.count<std::int16_t>(), 41)};
}

template <>
inline Rebuy read(Reader& in) {
  const std::uint8_t* const at = in.take(53);
  return {load<std::int32_t>(at), load<std::int64_t>(at + 4), at[12] != 0,       loadMoney(at + 13),
          loadMoney(at + 23),     loadMoney(at + 33),         loadMoney(at + 43)};
}

template <>
inline Flight read(Reader& in) {
  const std::uint8_t* const at = in.take(16);
  return {load<std::int32_t>(at), load<std::int32_t>(at + 4), load<std::int64_t>(at + 8)};
}

// What travels only when its bit is set.
template <class T>
std::optional<T> conditional(Reader& in, std::int32_t attributes, int bit) {
  if ((attributes >> bit & 1) == 0) return std::nullopt;
  return std::optional<T>(Item<T>{in});
}

constexpr int FLIGHT_BIT = 1;
constexpr int REBUY_BIT = 5;

template <>
inline TourSummary read(Reader& in) {
  const std::uint8_t* at;
  std::int32_t attributes;
  return {(at = in.take(11), load<std::int32_t>(at)),
          attributes = load<std::int32_t>(at + 4),
          load<std::int8_t>(at + 8),
          load<std::int16_t>(at + 9),
          in.text(),
          in.text(),
          in.text(),
          (at = in.take(19), load<std::int8_t>(at)),
          load<std::int8_t>(at + 1),
          load<std::int32_t>(at + 2),
          load<std::int32_t>(at + 6),
          load<std::int32_t>(at + 10),
          load<std::int32_t>(at + 14),
          load<std::int8_t>(at + 18),
          {in.text(), (at = in.take(105), loadMoney(at)), loadMoney(at + 10), at[20] != 0},
          {load<std::int32_t>(at + 21), loadMoney(at + 25), load<std::int8_t>(at + 35), loadMoney(at + 36),
           loadMoney(at + 46)},
          loadMoney(at + 56),
          load<std::int64_t>(at + 66),
          load<std::int64_t>(at + 74),
          load<std::int64_t>(at + 82),
          {load<std::int64_t>(at + 90), load<std::int16_t>(at + 98), at[100] != 0},
          load<std::int32_t>(at + 101),
          conditional<Rebuy>(in, attributes, REBUY_BIT),
          conditional<Flight>(in, attributes, FLIGHT_BIT),
          in.number<std::int8_t>()};
}

template <>
inline std::int32_t read(Reader& in) {
  return in.number<std::int32_t>();
}

template <>
inline TourUpdate read(Reader& in) {
  const std::uint8_t* const at = in.take(39);
  const auto attributes = load<std::int32_t>(at + 4);
  return {load<std::int32_t>(at),
          attributes,
          load<std::int8_t>(at + 8),
          load<std::int32_t>(at + 9),
          load<std::int32_t>(at + 13),
          load<std::int32_t>(at + 17),
          loadMoney(at + 21),
          load<std::int64_t>(at + 31),
          conditional<std::int32_t>(in, attributes, FLIGHT_BIT),
          in.number<std::int8_t>()};
}

template <>
inline TourChanges read(Reader& in) {
  return {in.number<std::int16_t>(), list<TourSummary>(in, in.count<std::int16_t>(), 144),
          list<TourUpdate>(in, in.count<std::int16_t>(), 40), numbers<std::int32_t>(in, in.count<std::int16_t>())};
}

template <>
inline TreeNode read(Reader& in) {
  const std::uint8_t* at;
  return {(at = in.take(4), load<std::int16_t>(at)),      load<std::int16_t>(at + 2), in.text(),
          (at = in.take(4), load<std::int16_t>(at)),      load<std::int8_t>(at + 2),  load<std::int8_t>(at + 3),
          list<TreeNode>(in, in.count<std::int8_t>(), 11)};
}

template <>
inline LobbyPlayer read(Reader& in) {
  return {in.number<std::int32_t>(), in.text(), in.number<std::int8_t>()};
}

template <>
inline PlayerList read(Reader& in) {
  return {list<LobbyPlayer>(in, in.count<std::int16_t>(), 7), numbers<std::int32_t>(in, in.count<std::int16_t>())};
}

template <>
inline InTurnAction read(Reader& in) {
  const std::uint8_t* const at = in.take(24);
  return {load<std::int32_t>(at), load<std::int32_t>(at + 4), load<std::int32_t>(at + 8), load<std::int32_t>(at + 12),
          load<std::int64_t>(at + 16)};
}

template <>
inline JoinTournament read(Reader& in) {
  const std::uint8_t* const at = in.take(13);
  return {load<std::int32_t>(at), load<std::int32_t>(at + 4), load<std::int32_t>(at + 8), load<std::int8_t>(at + 12),
          in.text()};
}

template <>
inline ChatMessage read(Reader& in) {
  return {in.text(), in.text()};
}

template <class T>
T read(std::span<const std::uint8_t> body) {
  Reader in(body);
  return read<T>(in);
}

// ---- Writing: the three requests. ----

/// The frames of requests: id, size of the body, body. Keeps its memory when it is cleared.
class Writer {
 public:
  void clear() { size_ = 0; }
  std::span<const std::uint8_t> bytes() const { return {buffer_.data(), size_}; }

  /// Makes room for a frame and writes its header; answers where the body goes.
  std::uint8_t* frame(std::int16_t id, std::size_t bodySize) {
    if (bodySize > INT16_MAX) [[unlikely]]
      fail("a body too long");
    const std::size_t end = size_ + 4 + bodySize;
    if (buffer_.size() < end) [[unlikely]]
      buffer_.resize(2 * end);
    std::uint8_t* const at = buffer_.data() + size_;
    size_ = end;
    return store(at, id, static_cast<std::int16_t>(bodySize));
  }

  template <std::integral... Numbers>
  static std::uint8_t* store(std::uint8_t* at, Numbers... numbers) {
    ((numbers = bigEndian(numbers), std::memcpy(at, &numbers, sizeof numbers), at += sizeof numbers), ...);
    return at;
  }

  static std::uint8_t* store(std::uint8_t* at, const std::string& text) {
    at = store(at, static_cast<std::uint16_t>(text.size()));
    return std::copy_n(reinterpret_cast<const std::uint8_t*>(text.data()), text.size(), at);
  }

 private:
  std::vector<std::uint8_t> buffer_;
  std::size_t size_ = 0;
};

inline void write(Writer& out, const InTurnAction& action) {
  Writer::store(out.frame(141, 24), action.seat, action.playerId, action.betRound, action.actionType, action.amount);
}

inline void write(Writer& out, const JoinTournament& join) {
  std::uint8_t* const body = out.frame(205, 15 + join.password.size());
  Writer::store(Writer::store(body, join.playerId, join.tournamentId, join.tableId, join.replyStatus), join.password);
}

inline void write(Writer& out, const ChatMessage& chat) {
  std::uint8_t* const body = out.frame(-22, 4 + chat.nickname.size() + chat.message.size());
  Writer::store(Writer::store(body, chat.nickname), chat.message);
}

}  // namespace Floor
