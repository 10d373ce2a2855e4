#include <herald/messages/info_objects/RecordOperations.h>
#include <herald/messages/info_objects/TournamentCreationRules.h>

namespace Tessel {

TournamentCreationRules::TournamentCreationRules(ByteStream& in) { TournamentCreationRules::read(in); }

const RebuyStructure& TournamentCreationRules::getRebuyStructureType(int i) const {
  return RebuyStructureFactory::createRebuyStructure(AllowedRebuyStructure{rebuyStructures_[i].getIntValue()});
}

const PrizeStructureType& TournamentCreationRules::getPrizeStructureType(int i) const {
  return PrizeStructureType::getPrizeStructureType(AllowedPrizeStructureType{prizeStructures_[i].getIntValue()});
}

std::wstring TournamentCreationRules::toDebugString() const {
  return L"[TournamentCreationRules - To do, add the items]";
}

}  // namespace Tessel
