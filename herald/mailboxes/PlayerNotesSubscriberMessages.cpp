#include <herald/mailboxes/MessageKindOperations.h>
#include <herald/mailboxes/PlayerNotesSubscriberMessages.h>

namespace Tessel {

PlayerNotesSubscriberMessage::~PlayerNotesSubscriberMessage() = default;
PlayerNotesSubscriberMessageHandler::~PlayerNotesSubscriberMessageHandler() = default;

template class MessageKind<PNSPlayerNoteText, PlayerNotesSubscriberMessage>;
template class MessageKind<PNSPlayerNoteNotification, PlayerNotesSubscriberMessage>;

}  // namespace Tessel
