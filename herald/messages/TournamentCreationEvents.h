#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/CancelTourReply.h>
#include <herald/messages/info_objects/CreateTourReply.h>
#include <herald/messages/info_objects/StartTournamentReply.h>
#include <herald/messages/info_objects/TesselByte.h>
#include <herald/messages/info_objects/TournamentCreationRules.h>

// Answers to the requests that create, start and cancel a private tournament.

namespace Tessel {

class HERALD_API TournamentCreationRulesReply
    : public RecordMessage<TournamentCreationRulesReply, TournamentCreationRules> {
 public:
  static constexpr auto TEXT = L"[TournamentCreationRulesReply - iRules=%s]";
  const TournamentCreationRules& getRules() const { return body(); }
};

class HERALD_API CancelTourReplyMsg : public RecordMessage<CancelTourReplyMsg, CancelTourReply> {
 public:
  static constexpr auto TEXT = L"[CancelTourReplyMsg - iCreateReply=%s]";
  const CancelTourReply& getReply() const { return body(); }
};

class HERALD_API StartTournamentReplyMsg : public RecordMessage<StartTournamentReplyMsg, StartTournamentReply> {
 public:
  static constexpr auto TEXT = L"[StartTournamentReplyMsg - iCreateReply=%s]";
  const StartTournamentReply& getReply() const { return body(); }
};

class HERALD_API CreateTourReplyMsg : public RecordMessage<CreateTourReplyMsg, CreateTourReply> {
 public:
  static constexpr auto TEXT = L"[CreateTourReplyMsg - iCreateReply=%s]";
  const CreateTourReply& getReply() const { return body(); }
};

/// The server has no creation rules for the user.
class HERALD_API TourCreationRulesFail : public RecordMessage<TourCreationRulesFail, TesselByte> {
 public:
  static constexpr auto TEXT = L"[TourCreationRulesFail - FailCode=%d]";
  static constexpr auto FIELD = "failCode";
  /// The values are the server's.
  enum FailCode : int {};
  FailCode getFailCode() const { return FailCode{body().getIntValue()}; }
};

}  // namespace Tessel
