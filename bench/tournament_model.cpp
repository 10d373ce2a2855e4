// A batch of ten changes among more and more registered players.

#include <benchmark/benchmark.h>
#include <herald/SpecificTournamentModel/SpecificTournamentController.h>
#include <herald/messages/info_objects/TsString.h>
#include <herald/platform/keystone/ByteStream.h>

namespace {

using namespace Tessel;

LobbyPlayerInfo player(int id) {
  ByteStream body;
  body << id;
  TsString(L"Player").write(body);
  body << std::int8_t{0};
  LobbyPlayerInfo player;
  player.read(body);
  return player;
}

void changeTenPlayers(benchmark::State& state) {
  constexpr int BATCH = 10;
  const auto registered = static_cast<int>(state.range(0));
  SpecificTournamentModel model(1);
  SpecificTournamentController controller(model);
  TsArray<LobbyPlayerInfo> all;
  for (int id = 0; id < registered; ++id) all.add(player(id));
  controller.updateRegisteredPlayers(all, {});
  TsArray<LobbyPlayerInfo> batch;
  for (int i = 0; i < BATCH; ++i) batch.add(player(i * (registered / BATCH)));
  for (auto _ : state) controller.updateRegisteredPlayers(batch, {});
}

BENCHMARK(changeTenPlayers)->Arg(100)->Arg(10'000)->Arg(1'000'000);

}  // namespace
