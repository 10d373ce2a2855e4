#pragma once
#include <herald/messages/info_objects/ArrayRecord.h>
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/WireRecord.h>
#include <herald/platform/tableau/TournamentTicket.h>
#include <herald/wire/Text.h>

// What a player who is out of a tournament has won. An index outside a list fails with `std::invalid_argument`.

namespace Tessel {

class HERALD_API MonetaryPrizeInfo : public ReadableRecord<MonetaryPrizeInfo> {
 public:
  Money getPrize() const { return prize_.getMoney(); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("prize", self.prize_);
  }

 private:
  MoneyAmount prize_;
};

class HERALD_API MonetaryPrizeList : public ArrayRecord<MonetaryPrizeList, MonetaryPrizeInfo> {
 public:
  int getNumberOfPrizes() const { return getItems().size(); }
  Money getPrize(int i) const { return getItems()[i].getPrize(); }

  std::wstring toDebugString() const override;
};

/// An entry to another tournament, of which only the description is known.
class HERALD_API TicketPrizeInfo : public ReadableRecord<TicketPrizeInfo> {
 public:
  TournamentTicket getPrize() const { return TournamentTicket(description_.getString()); }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("description", self.description_);
  }

 private:
  Text description_;
};

class HERALD_API TicketPrizeList : public ArrayRecord<TicketPrizeList, TicketPrizeInfo> {
 public:
  int getNumberOfPrizes() const { return getItems().size(); }
  TournamentTicket getPrize(int i) const { return getItems()[i].getPrize(); }

  std::wstring toDebugString() const override;
};

}  // namespace Tessel
