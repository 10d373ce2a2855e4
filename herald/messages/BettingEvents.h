#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/BetRequestInfo.h>
#include <herald/messages/info_objects/CreditInfo.h>
#include <herald/messages/info_objects/NewRoundInfo.h>
#include <herald/messages/info_objects/PlayerId.h>
#include <herald/messages/info_objects/TesselByte.h>
#include <herald/messages/info_objects/WinPotInfo.h>

#include <cstdint>
#include <vector>

// Hands and betting.

namespace Tessel {

/// A hand begins.
class HERALD_API ClientNewRound : public RecordMessage<ClientNewRound, NewRoundInfo> {
 public:
  static constexpr auto TEXT = L"[ClientNewRound: %s";
  const NewRoundInfo& getNewRoundInfo() const { return body(); }
};

/// Who has the dealer's token now.
class HERALD_API ClientSetDealerToken : public RecordMessage<ClientSetDealerToken, PlayerId> {
 public:
  static constexpr auto TEXT = L"[ClientSetDealerToken: %s";
  const PlayerId& getDealer() const { return body(); }
};

/// Players are asked to post a blind.
class HERALD_API ClientBetBlindReq : public RecordMessage<ClientBetBlindReq, BetRequestInfo> {
 public:
  static constexpr auto TEXT = L"[ClientBetBlindReq: %s";
  const BetRequestInfo& getBetRequestInfo() const { return body(); }
};

/// Players are asked to post an ante.
class HERALD_API ClientBetAnteReq : public RecordMessage<ClientBetAnteReq, BetRequestInfo> {
 public:
  static constexpr auto TEXT = L"[ClientBetAnteReq: %s";
  const BetRequestInfo& getBetRequestInfo() const { return body(); }
};

/// Players are asked to act.
class HERALD_API ClientBetReq : public RecordMessage<ClientBetReq, BetRequestInfo> {
 public:
  static constexpr auto TEXT = L"[ClientBetReq: %s";
  const BetRequestInfo& getBetRequestInfo() const { return body(); }
};

/// A player is about to run out of time.
class HERALD_API ClientHurryUp : public RecordMessage<ClientHurryUp, PlayerId> {
 public:
  static constexpr auto TEXT = L"[ClientHurryUp: %s";
  const PlayerId& getPlayer() const { return body(); }
};

class HERALD_API ClientFoldDone : public RecordMessage<ClientFoldDone, PlayerId> {
 public:
  static constexpr auto TEXT = L"[ClientFoldDone: %s";
  const PlayerId& getPlayer() const { return body(); }
};

class HERALD_API ClientCheckDone : public RecordMessage<ClientCheckDone, PlayerId> {
 public:
  static constexpr auto TEXT = L"[ClientCheckDone: %s";
  const PlayerId& getPlayer() const { return body(); }
};

class HERALD_API ClientAllInDone : public RecordMessage<ClientAllInDone, PlayerId> {
 public:
  static constexpr auto TEXT = L"[ClientAllInDone: %s";
  const PlayerId& getPlayer() const { return body(); }
};

class HERALD_API ClientCallDone : public RecordMessage<ClientCallDone, CreditInfo> {
 public:
  static constexpr auto TEXT = L"[ClientCallDone: %s";
  const CreditInfo& getCreditInfo() const { return body(); }
};

class HERALD_API ClientBetDone : public RecordMessage<ClientBetDone, CreditInfo> {
 public:
  static constexpr auto TEXT = L"[ClientBetDone: %s";
  const CreditInfo& getCreditInfo() const { return body(); }
};

/// A player posts dead money, which counts for the pot but not as a bet.
class HERALD_API ClientBetDeadDone : public RecordMessage<ClientBetDeadDone, CreditInfo> {
 public:
  static constexpr auto TEXT = L"[ClientBetDeadDone: %s";
  const CreditInfo& getCreditInfo() const { return body(); }
};

/// A player's bets of the round go to the pot.
class HERALD_API ClientBetsToPot : public RecordMessage<ClientBetsToPot, CreditInfo> {
 public:
  static constexpr auto TEXT = L"[ClientBetsToPot: %s";
  const CreditInfo& getCreditInfo() const { return body(); }
};

/// The rake taken from the hand so far.
class HERALD_API ClientTotalRake : public RecordMessage<ClientTotalRake, CreditInfo> {
 public:
  static constexpr auto TEXT = L"[ClientTotalRake: %s";
  const CreditInfo& getCreditInfo() const { return body(); }
};

class HERALD_API ClientNextBettingRound : public EmptyMessage<ClientNextBettingRound> {
 public:
  static constexpr auto TEXT = L"[ClientNextBettingRound]";
};

/// No more raises in this betting round.
class HERALD_API ClientBettingCapped : public EmptyMessage<ClientBettingCapped> {
 public:
  static constexpr auto TEXT = L"[BettingCappedMessage]";
};

class HERALD_API ClientEndRound : public EmptyMessage<ClientEndRound> {
 public:
  static constexpr auto TEXT = L"[ClientEndRound]";
};

/// The pots of a hand go to their winners.
class HERALD_API ClientWin : public WireMessage<ClientWin> {
 public:
  /// One per pot.
  const std::vector<WinPotInfo>& getPots() const { return pots_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template counted<std::int8_t>("pots", self.pots_);
  }

 private:
  std::vector<WinPotInfo> pots_;
};

/// Two numbers of the server's all-in calculation.
struct AllInProbability {
  std::int32_t first = -1;
  std::int32_t second = -1;

  bool operator==(const AllInProbability&) const = default;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("first", self.first);
    fields("second", self.second);
  }
};

/// How likely the players of an all-in are to win.
class HERALD_API AllInProbabilityResults : public WireMessage<AllInProbabilityResults> {
 public:
  const std::vector<AllInProbability>& getProbabilities() const { return probabilities_; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields.template countedOrNone<std::int32_t>("probabilities", self.probabilities_);
  }

 private:
  std::vector<AllInProbability> probabilities_;
};

/// Carries the enumeration of all-in protection statuses; their meanings are the server's.
class AllInProtectionStatus {
 public:
  enum AllInProtectionStatusValue : int {};
};

/// Whether the player is protected from losing a hand to a lost connection.
class HERALD_API AllInProtectionStatusMsg : public RecordMessage<AllInProtectionStatusMsg, TesselByte> {
 public:
  static constexpr auto TEXT = L"[AllInProtectionStatusMsg: %s]";
  static constexpr auto FIELD = "status";
  AllInProtectionStatus::AllInProtectionStatusValue getStatus() const {
    return AllInProtectionStatus::AllInProtectionStatusValue{body().getIntValue()};
  }
};

}  // namespace Tessel
