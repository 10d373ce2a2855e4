#include <herald/messages/LobbyEvents.h>
#include <herald/messages/MessageOperations.h>

namespace Tessel {

void TreeReplyUpdate::handle(AbstractClientMessageHandler& handler) const { handler.handle(*this); }

std::wstring TreeReplyUpdate::toDebugString() const { return L"[TreeReplyUpdate]"; }

// Its own `read` keeps the table of messages from instantiating this one's.
template class RecordMessage<UnSubscribeNode, SubscriptionInfo, ReadResult::ALWAYS_TRUE>;

bool UnSubscribeNode::read(ByteStream& in) {
  RecordMessage::read(in);
  setNodeId(body().getNodeId());
  return true;
}

std::wstring GameList::toDebugString() const { return formatText(L"[GameList: %s]", games_); }

bool GameListUpdate::takeNodeId() {
  setNodeId(nodeId_);
  return true;
}

std::wstring GameListUpdate::toDebugString() const { return formatText(L"[GameListUpdate: %s]", added_); }

std::wstring Ping::toDebugString() const { return formatText(L"[Ping: server time=%d, ping=%d]", serverTime_, ping_); }

std::wstring NumPlayersLoggedIn::toDebugString() const {
  return formatText(
      L"[NumPlayersLoggedInMsg: iRealPlayersAtTable=%d, iPlayPlayersAtTable=%d, iNumRealTables=%d, iNumPlayTables=%d, "
      L"iRealMoneyAtTables=%d]",
      realPlayersAtTable_, playPlayersAtTable_, numRealTables_, numPlayTables_, realMoneyAtTables_);
}

}  // namespace Tessel
