#pragma once
#include <herald/messages/info_objects/LobbyPlayerInfo.h>
#include <herald/messages/info_objects/LobbyTableInfo.h>
#include <herald/messages/info_objects/MoneyInfo.h>
#include <herald/messages/info_objects/TsString.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/RankedPlayer.h>
#include <herald/platform/keystone/TsArray.h>

#include <vector>

namespace Tessel {

inline RankedPlayer rankedPlayer(int playerId, int position) {
  return {playerId, position, L"Player " + std::to_wstring(playerId), Money(100, 1), false};
}

inline std::vector<int> playerIds(const TsArray<RankedPlayer>& players) {
  std::vector<int> ids;
  for (const RankedPlayer& player : players) ids.push_back(player.getPlayerId());
  return ids;
}

inline LobbyPlayerInfo lobbyPlayer(int playerId) {
  ByteStream body;
  body << playerId;
  TsString(L"Player " + std::to_wstring(playerId)).write(body);
  body << std::int8_t{0};
  LobbyPlayerInfo player;
  player.read(body);
  return player;
}

/// A VIP table of nine players with 100 to 200 chips.
inline LobbyTableInfo lobbyTable(int tableId) {
  ByteStream body;
  body << tableId;
  TsString(L"Table " + std::to_wstring(tableId)).write(body);
  body << std::int16_t{9} << std::int8_t{1};
  MoneyInfo(Money(100, 1)).write(body);
  MoneyInfo(Money(200, 1)).write(body);
  LobbyTableInfo table;
  table.read(body);
  return table;
}

}  // namespace Tessel
