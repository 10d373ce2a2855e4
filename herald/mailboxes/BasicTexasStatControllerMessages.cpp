#include <herald/mailboxes/BasicTexasStatControllerMessages.h>
#include <herald/mailboxes/MessageKindOperations.h>

namespace Tessel {

BasicTexasStatControllerMessage::~BasicTexasStatControllerMessage() = default;
BasicTexasStatControllerMessageHandler::~BasicTexasStatControllerMessageHandler() = default;

void BasicTexasStatControllerMessageHandler::handle(BasicTexasStatControllerMessageHandler* handler,
                                                    BasicTexasStatControllerMessage* message) {
  handle(handler, std::unique_ptr<BasicTexasStatControllerMessage>(message));
}

void BasicTexasStatControllerMessageHandler::handle(BasicTexasStatControllerMessageHandler* handler,
                                                    std::unique_ptr<BasicTexasStatControllerMessage> message) {
  message->handle(handler);
}

template class PointerMessageKind<BTSCSetUserName, BasicTexasStatControllerMessage>;
template class PointerMessageKind<BTSCHideViews, BasicTexasStatControllerMessage>;
template class PointerMessageKind<BTSCShowViews, BasicTexasStatControllerMessage>;
template class PointerMessageKind<BTSCNewHand, BasicTexasStatControllerMessage>;
template class PointerMessageKind<BTSCReset, BasicTexasStatControllerMessage>;
template class PointerMessageKind<BTSCSetGlobalStats, BasicTexasStatControllerMessage>;
template class PointerMessageKind<BTSCSetSessionStats, BasicTexasStatControllerMessage>;
template class PointerMessageKind<BTSCSetPlayMoney, BasicTexasStatControllerMessage>;
template class PointerMessageKind<BTSCSetRealMoney, BasicTexasStatControllerMessage>;

}  // namespace Tessel
