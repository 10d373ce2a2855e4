#pragma once
#include <herald/messages/WireMessage.h>
#include <herald/messages/info_objects/InfoList.h>
#include <herald/messages/info_objects/TesselByte.h>
#include <herald/messages/info_objects/TesselInt.h>
#include <herald/messages/info_objects/TourPlayerRebuyNotification.h>
#include <herald/messages/info_objects/TourRebuyNotification.h>
#include <herald/messages/info_objects/TourRebuyQuery.h>
#include <herald/platform/tableau/TournamentRebuyFailed.h>

// Rebuys and add-ons in a tournament.

namespace Tessel {

/// Asks the user whether to buy.
class HERALD_API TournamentRebuyQueryMsg : public RecordMessage<TournamentRebuyQueryMsg, TourRebuyQuery> {
 public:
  static constexpr auto TEXT = L"[TournamentRebuyQueryMsg: %s]";
  const TourRebuyQuery& getRebuyQuery() const { return body(); }
};

/// The players whose answer is awaited.
class HERALD_API TournamentPendingRebuysMsg : public RecordMessage<TournamentPendingRebuysMsg, InfoList<TesselInt>> {
 public:
  static constexpr auto TEXT = L"[TournamentPendingRebuysMsg: %s]";
  static constexpr auto FIELD = "playerIds";
  /// The count as it came; a negative one has no players.
  int getNumberOfPlayers() const { return body().getNrInfos(); }
  /// An index outside 0 to `getNumberOfPlayers()` - 1 throws `OutOfBoundsException`.
  int getPlayerId(int i) const { return body()[i].getValue(); }
};

/// A player declined to buy.
class HERALD_API TournamentPlayerNoRebuyNotification : public WireMessage<TournamentPlayerNoRebuyNotification> {
 public:
  int getPlayerId() const { return playerId_.getValue(); }
  bool wasAddon() const { return isAddon_.getIntValue() == 1; }

  std::wstring toDebugString() const override;

  template <class Self, class Fields>
  static void wire(Self& self, Fields& fields) {
    fields("playerId", self.playerId_);
    fields("isAddon", self.isAddon_);
  }

 private:
  TesselInt playerId_;
  TesselByte isAddon_;
};

/// A player bought.
class HERALD_API TourPlayerRebuyNotificationMsg
    : public RecordMessage<TourPlayerRebuyNotificationMsg, TourPlayerRebuyNotification> {
 public:
  static constexpr auto TEXT = L"[TourPlayerRebuyNotificationMsg: PlayerRebuyNotification=%s]";
  const TourPlayerRebuyNotification& getPlayerRebuyNotification() const { return body(); }
};

/// How the rebuy period stands.
class HERALD_API TournamentRebuyNotificationMsg
    : public RecordMessage<TournamentRebuyNotificationMsg, TourRebuyNotification> {
 public:
  static constexpr auto TEXT = L"[TournamentRebuyNotificationMsg: %s]";
  const TourRebuyNotification& getRebuyNotification() const { return body(); }
};

/// The user could not buy.
class HERALD_API TourRebuyFailedMsg : public RecordMessage<TourRebuyFailedMsg, TesselByte> {
 public:
  static constexpr auto TEXT = L"[TourRebuyFailedMsg: iReason=%s]";
  static constexpr auto FIELD = "reason";
  /// A code without a reason is reported and answered with the reason of -1.
  const TournamentRebuyFailed& getReason() const;
};

}  // namespace Tessel
