#include <herald/messages/info_objects/CreateTourReply.h>
#include <herald/messages/info_objects/RecordOperations.h>

namespace Tessel {

CreateTourReply::CreateTourReply(ByteStream& in) { CreateTourReply::read(in); }

const CreatePrivateTournamentError& CreateTourReply::getErrorType() const {
  return CreatePrivateTournamentErrorFactory::createCreatePrivateTournamentError(
      AllowedCreatePrivateTournamentError{createResult_});
}

std::wstring CreateTourReply::toDebugString() const {
  return formatText(L"[CreateTourReply - iCreateResult = %d]", createResult_);
}

}  // namespace Tessel
