#include <herald/platform/tableau/TournamentTicket.h>

#include <utility>

namespace Tessel {

TournamentTicket::TournamentTicket(std::wstring description) : description_(std::move(description)) {}

TournamentTicket::TournamentTicket(Money buyIn, Money fee, bool isRestricted, std::wstring description)
    : buyIn_(buyIn), fee_(fee), isRestricted_(isRestricted), description_(std::move(description)) {}

}  // namespace Tessel
