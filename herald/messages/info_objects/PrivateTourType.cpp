#include <herald/messages/info_objects/PrivateTourType.h>
#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/platform/keystone/BitMasking.h>

namespace Tessel {

PrivateTourType::PrivateTourType(ByteStream& in) { PrivateTourType::read(in); }

bool PrivateTourType::getIsSNG() const { return BitMasking::getBit(type_, SITNGO_BIT); }

bool PrivateTourType::getIsScheduled() const { return BitMasking::getBit(type_, SCHEDULED_BIT); }

int PrivateTourType::convertFromInternalTourType(Tourney::TournamentType type) {
  switch (type) {
    case Tourney::TournamentType::SIT_AND_GO:
      return 1 << SITNGO_BIT;
    case Tourney::TournamentType::SCHEDULED:
      return 1 << SCHEDULED_BIT;
    default:
      return 0;
  }
}

std::wstring PrivateTourType::toDebugString() const { return formatText(L"[PrivateTourTour: iType=%d]", type_); }

}  // namespace Tessel
