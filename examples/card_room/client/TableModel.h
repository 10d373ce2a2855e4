#pragma once
#include <herald/dispatch/AbstractClientMessageHandler.h>
#include <herald/messages/info_objects/CardsInfo.h>
#include <herald/messages/info_objects/CreditInfo.h>
#include <herald/messages/info_objects/NewRoundInfo.h>
#include <herald/messages/info_objects/PlayerInGameInfo.h>
#include <herald/messages/info_objects/PokerGameStateInfo.h>
#include <herald/messages/info_objects/WinPotInfo.h>
#include <herald/platform/keystone/Card.h>

#include <chrono>
#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace CardRoom {

/// What the client knows of the table where its player is.
struct TableModel {
  struct Seat {
    int player = -1;
    std::wstring nick;
    std::int64_t stack = 0;
    std::int64_t bet = 0;
    bool isSittingIn = false;
    bool isInHand = false;
    std::vector<Tessel::Card> cards{};
    std::wstring lastMove{};
  };

  bool isOpen = false;
  int game = -1;
  std::wstring name;
  int unit = -1;
  int seatCount = 0;
  std::int64_t bigBlind = 0;
  int hand = 0;
  int dealer = -1;
  int toAct = -1;                                    ///< The seat whose turn it is; -1 for none.
  std::chrono::steady_clock::time_point deadline{};  ///< Until when.
  int secondsToAct = 0;
  std::int64_t pot = 0;
  std::int64_t rake = 0;
  std::vector<Tessel::Card> board;
  std::map<int, Seat> seats;

  void show(const Tessel::PokerGameStateInfo& state);
  void startHand(const Tessel::NewRoundInfo& started);
  void sitDown(int seat, const Tessel::PlayerInGameInfo& player);
  void standUp(int player);
  void setMoney(const Tessel::PlayerInGameInfo& player);
  void bet(const Tessel::CreditInfo& credit, const std::wstring& move);
  void betDead(const Tessel::CreditInfo& credit);
  void betToPot(const Tessel::CreditInfo& credit);
  void win(const Tessel::WinPotInfo& won);
  void fold(int seat);
  void takeRake(std::int64_t total);
  void dealt(const Tessel::CardsInfo& cards);
  void turnUp(const Tessel::CardsInfo& cards);

  /// Null for one who is not seated.
  Seat* seatOf(int player);
  const Seat* seatOf(int player) const;
  int seatNumberOf(int player) const;
  /// -1 when all are taken.
  int freeSeat() const;
  /// By the players' ids.
  std::map<int, std::int64_t> stacks() const;
};

}  // namespace CardRoom
