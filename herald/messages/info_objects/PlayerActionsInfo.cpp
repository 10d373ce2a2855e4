#include <herald/messages/info_objects/PlayerActionsInfo.h>
#include <herald/messages/info_objects/RecordIndex.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/Exceptions.h>

namespace Tessel {

namespace {
constexpr const wchar_t* FILE_NAME = L"messages/info_objects/PlayerActionsInfo";
}

PlayerActionsInfo::PlayerActionsInfo(int seat, bool mayFold, bool mayCheckFold, bool mayCheckCall, bool mayCallAny,
                                     bool mayBetRaise, bool mayBetRaiseAny, std::int64_t checkCallValue,
                                     bool firstBetPlaced, BetType betType, const TsArray<std::int64_t>& bets)
    : seat_(static_cast<std::int8_t>(seat)),
      actionFlags_(static_cast<std::int8_t>((mayFold ? MAY_FOLD : 0) | (mayCheckFold ? MAY_CHECK_FOLD : 0)
                                            | (mayCheckCall ? MAY_CHECK_CALL : 0) | (mayCallAny ? MAY_CALL_ANY : 0)
                                            | (mayBetRaise ? MAY_BET_RAISE : 0)
                                            | (mayBetRaiseAny ? MAY_BET_RAISE_ANY : 0))),
      checkCallValue_(checkCallValue),
      betTypeCode_(static_cast<std::int8_t>(FIRST_BET_TYPE_CODE - static_cast<int>(betType))),
      firstBetPlaced_(firstBetPlaced), bets_(bets.begin(), bets.end()) {}

std::int64_t PlayerActionsInfo::getBet(int i) const {
  checkRecordIndex(FILE_NAME, i, getNrBets());
  return bets_[static_cast<std::size_t>(i)].getAmount();
}

std::wstring PlayerActionsInfo::toDebugString() const { return L"[PlayerActionsInfo: ]"; }

bool PlayerActionsInfo::operator==(const PlayerActionsInfo& other) const {
  return seat_ == other.seat_ && actionFlags_ == other.actionFlags_ && checkCallValue_ == other.checkCallValue_
         && getBetType() == other.getBetType() && firstBetPlaced_ == other.firstBetPlaced_ && bets_ == other.bets_;
}

void PlayerActionsInfo::throwNoBetType() {
  throw KeystoneException(FILE_NAME, __LINE__, L"No valid bet type specified.");
}

}  // namespace Tessel
