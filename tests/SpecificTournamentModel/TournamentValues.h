#pragma once
#include <gtest/gtest.h>
#include <herald/messages/info_objects/LobbyPlayerInfo.h>
#include <herald/messages/info_objects/LobbyTableInfo.h>
#include <herald/platform/keystone/RankedPlayer.h>
#include <herald/platform/keystone/TsArray.h>
#include <tests/support/WireBytes.h>

#include <functional>
#include <string>
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
  using namespace WireBytes;
  ByteStream body;
  return decode<LobbyPlayerInfo>(body << playerId << L"Player" << byte(0));
}

/// A VIP table of nine players with 100 to 200 chips.
inline LobbyTableInfo lobbyTable(int tableId) {
  using namespace WireBytes;
  ByteStream body;
  return decode<LobbyTableInfo>(body << tableId << L"Table" << number16(9) << byte(1) << Money(100, 1)
                                     << Money(200, 1));
}

/// The action fails with this exception of this model class.
template <class Failure>
void expectFailure(const std::function<void()>& action, const std::wstring& source, int line, const std::wstring& text,
                   const std::wstring& detail = L"") {
  try {
    action();
    ADD_FAILURE() << "no failure of line " << line;
  } catch (const Failure& failure) {
    EXPECT_EQ(failure.getFile(), L"SpecificTournamentModel/" + source);
    EXPECT_EQ(failure.getLine(), line);
    EXPECT_EQ(failure.getText(), text);
    EXPECT_EQ(failure.getDetail(), detail);
  }
}

}  // namespace Tessel
