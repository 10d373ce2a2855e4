#pragma once
#include <herald/messages/WireRequest.h>
#include <herald/messages/info_objects/CreateTourRequestType.h>
#include <herald/messages/info_objects/TesselInt.h>

#include <utility>

// Creating, starting and cancelling a private tournament.

namespace Tessel {

/// Asks what a private tournament may be like.
class HERALD_API TournamentCreationRulesReq : public EmptyRequest<TournamentCreationRulesReq, 220> {
 public:
  static constexpr auto TEXT = L"[TournamentCreationRulesReq]";
};

class HERALD_API CancelTournamentReq : public RecordRequest<CancelTournamentReq, 221, TesselInt> {
 public:
  static constexpr auto TEXT = L"[CancelTournamentReq - tour id=%d]";
  static constexpr auto FIELD = "tourId";
  CancelTournamentReq() = default;
  explicit CancelTournamentReq(int tourId) : RecordRequest(tourId) {}
  int getTournamentId() const { return body().getValue(); }
};

class HERALD_API StartTournamentReq : public RecordRequest<StartTournamentReq, 222, TesselInt> {
 public:
  static constexpr auto TEXT = L"[StartTournamentReq - tour id=%d]";
  static constexpr auto FIELD = "tourId";
  StartTournamentReq() = default;
  explicit StartTournamentReq(int tourId) : RecordRequest(tourId) {}
  int getTournamentId() const { return body().getValue(); }
};

class HERALD_API CreateTournamentReq : public RecordRequest<CreateTournamentReq, 223, CreateTourRequestType> {
 public:
  static constexpr auto TEXT = L"[CreateTournamentReq - iTourRequest=%s]";
  CreateTournamentReq() = default;
  explicit CreateTournamentReq(CreateTourRequestType choices) : RecordRequest(std::move(choices)) {}
  const CreateTourRequestType& getChoices() const { return body(); }
};

}  // namespace Tessel
