// Changes of the model of a tournament among more and more players.

#include <benchmark/benchmark.h>
#include <herald/SpecificTournamentModel/SpecificTournamentController.h>
#include <herald/messages/info_objects/TsString.h>
#include <herald/platform/keystone/ByteStream.h>

namespace {

using namespace Tessel;

LobbyPlayerInfo player(int id) {
  ByteStream body;
  body << id;
  static_cast<void>(TsString(L"Player").write(body));
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

void replaceRanking(benchmark::State& state) {
  SpecificTournamentModel model(1);
  SpecificTournamentController controller(model);
  TsArray<RankedPlayer> players;
  for (int place = 1; place <= state.range(0); ++place)
    players.add(RankedPlayer(place, place, L"Player", Money(1500, 1), false));
  for (auto _ : state) controller.tourRankInfo(players);
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(changeTenPlayers)->Name("model/changeTenPlayers")->Arg(100)->Arg(10'000)->Arg(1'000'000);
BENCHMARK(replaceRanking)->Name("model/replaceRanking")->Arg(100)->Arg(32'767);

}  // namespace
