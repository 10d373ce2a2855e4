#include "TournamentScreen.h"

#include <herald/platform/keystone/Format.h>
#include <herald/platform/keystone/UTFEncoder.h>

#include <utility>

using namespace Tessel;

namespace {

constexpr const char* LABELS[] = {"Tournament", "State",   "Level",  "Break", "Entrants", "Prizes",
                                  "Top ten",    "Players", "Tables", "You",   "Rebuys"};
constexpr int LABEL_WIDTH = 12;

std::wstring blindsOf(const TournamentLevelInformation& level) {
  if (level.getLevelNumber() == -1) return L"-";
  std::wstring text = formatText(L"%d", level.getLevelNumber());
  if (level.hasBlinds())
    text += formatText(L" (%s/%s)", level.getBlinds().getSmallBlind().toString(),
                       level.getBlinds().getBigBlind().toString());
  if (level.hasAnte()) text += formatText(L" ante %s", level.getAnte().getAnte().toString());
  return text;
}

std::wstring breakText(const TournamentBreakModel& breaks) {
  if (!breaks.hasValidInfo()) return L"nothing known";
  if (breaks.isOnBreak()) return L"on a break";
  if (!breaks.hasMoreBreaks()) return L"no more breaks";
  return formatText(L"next one of %d seconds", breaks.getNextBreakDuration().getSeconds());
}

std::wstring rankingText(const TournamentPlayerRankingModel& ranking) {
  constexpr int SHOWN = 10;
  std::wstring text;
  for (int rank = 1; rank <= SHOWN; ++rank) {
    RankedPlayer player;
    if (!ranking.getRankedPlayer(rank, player)) continue;
    if (!text.empty()) text += L", ";
    text += formatText(L"%d. %s %s", rank, player.getName(), player.getChipStack().toString());
  }
  return text.empty() ? L"-" : text;
}

std::wstring userText(const SpecificTournamentModel& model) {
  const TournamentPlayerRankingModel ranking = model.getPlayerRankingInformation();
  if (!ranking.hasUserRanking()) return L"not ranked";
  return formatText(L"place %d with %s", ranking.getUserRanking().getPosition(),
                    ranking.getUserRanking().getChipStack().toString());
}

std::wstring rebuyText(const TournamentRebuyModel& rebuys) {
  if (!rebuys.hasRebuys()) return L"none";
  std::wstring text = formatText(L"%s for %s", rebuys.getRebuyAmount().toString(), rebuys.getRebuyCost().toString());
  if (rebuys.hasUserInfo()) text += formatText(L", %d left for you", rebuys.getRemainingUserRebuys());
  if (rebuys.isInAddonPeriod()) text += L", add-on period";
  if (rebuys.isAfterAddonPeriod()) text += L", add-on period over";
  return text;
}

// How many there are, seen under the model's lock.
class Count : public TournamentRegisteredPlayersReader, public TournamentTablesReader {
 public:
  void read(const TournamentRegisteredPlayers& players) override { number = players.getAllPlayerIds().size(); }
  void read(const TournamentTables& tables) override { number = tables.getAllTableIds().size(); }

  int number = 0;
};

}  // namespace

TournamentScreen::TournamentScreen(SpecificTournamentModel& model, std::ostream& out, bool inPlace)
    : model_(model), out_(out), inPlace_(inPlace) {
  if (inPlace_) out_ << "\033[2J";
  for (int part = 0; part < PART_COUNT; ++part) draw(static_cast<Part>(part));
  subscription_ = Subscription(model_, *this);
}

void TournamentScreen::update(const NotificationUpdateObject& update) {
  changes_.post(std::unique_ptr<NotificationUpdateObject>(update.clone()));
}

void TournamentScreen::drawChanges() {
  for (const auto& change : changes_.pickupAll()) accept(*change, *this);
  for (const Part part : std::exchange(changed_, {})) draw(part);
}

void TournamentScreen::draw(Part part) {
  std::wstring text = textOf(part);
  if (text == shown_[part]) return;
  if (inPlace_) out_ << "\033[" << part + 1 << ";1H\033[2K";
  std::string label = LABELS[part];
  label.resize(LABEL_WIDTH, ' ');
  out_ << label << UTFEncoder::toUTF8(text) << (inPlace_ ? "" : "\n") << std::flush;
  shown_[part] = std::move(text);
}

std::wstring TournamentScreen::textOf(Part part) const {
  Count count;
  switch (part) {
    case NAME:
      return model_.getTourSummary().getNameLong();
    case STATE:
      return std::wstring(model_.getTourSummary().getTournamentStatus().getName());
    case LEVEL:
      return blindsOf(model_.getLevelInformation()) + L", next " + blindsOf(model_.getNextLevelInformation());
    case BREAK:
      return breakText(model_.getBreakInformation());
    case ENTRANTS: {
      const TournamentBaseModel basic = model_.getBasicInformation();
      return formatText(L"%d, %d remaining, average stack %d", basic.getNumberOfEntrants(),
                        basic.getNumberOfPlayersRemaining(), basic.getAverageChipStack());
    }
    case PRIZES:
      return model_.getTourSummary().getPrizeStructure().getTotalPrizePool().toString();
    case RANKING:
      return rankingText(model_.getPlayerRankingInformation());
    case PLAYERS:
      model_.readRegisteredPlayers(count);
      return formatText(L"%d registered", count.number);
    case TABLES:
      model_.readTables(count);
      return formatText(L"%d", count.number);
    case USER:
      return userText(model_);
    case REBUY:
      return rebuyText(model_.getRebuyInfo());
    default:
      return {};
  }
}
