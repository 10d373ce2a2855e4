#include "Person.h"

#include <herald/HeraldUtils/CurrentServerTimeModel.h>
#include <herald/HeraldUtils/UserAccountModel.h>
#include <herald/mailboxes/TournamentLobbyControllerMessages.h>
#include <herald/platform/keystone/Format.h>
#include <herald/platform/keystone/Money.h>

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

using namespace Tessel;

namespace CardRoom {

namespace {

constexpr int EURO = 1;
constexpr int WIDEST = 110;
constexpr auto BOLD = L"\033[1m";
constexpr auto DIM = L"\033[2m";
constexpr auto RED = L"\033[31m";
constexpr auto GREEN = L"\033[32m";
constexpr auto PLAIN = L"\033[0m";

std::wstring right(const std::wstring& text, std::size_t width) {
  return text.size() < width ? std::wstring(width - text.size(), L' ') + text : text;
}

std::wstring left(std::wstring text, std::size_t width) {
  text.resize(width, L' ');
  return text;
}

// Euros are counted in cents, chips in chips.
std::wstring amount(std::int64_t value, int unit) {
  if (unit != EURO) return formatText(L"%d", value);
  const std::wstring cents = formatText(L"%d", value % 100);
  return formatText(L"€%d.%s", value / 100, cents.size() < 2 ? L"0" + cents : cents);
}

std::wstring face(const Card& card) {
  if (card.isHidden()) return formatText(L"%s▒▒%s", DIM, PLAIN);
  constexpr const wchar_t* SUITS[] = {L"♣", L"♦", L"♥", L"♠"};
  const int suit = static_cast<int>(card.getColor());
  const bool isRed = card.getColor() == Card::Color::DIAMONDS || card.getColor() == Card::Color::HEARTS;
  return formatText(L"%s%s%s%s", isRed ? RED : BOLD, card.toCString().substr(0, 1), SUITS[suit], PLAIN);
}

std::wstring faces(const std::vector<Card>& cards, std::size_t places) {
  std::wstring text;
  for (std::size_t i = 0; i < std::max(cards.size(), places); ++i)
    text += (i < cards.size() ? face(cards[i]) : L"  ") + std::wstring(L" ");
  return text;
}

std::wstring clockOf(const TableModel& table) {
  using namespace std::chrono;
  constexpr int WIDTH = 10;
  const auto seconds = duration_cast<std::chrono::seconds>(table.deadline - steady_clock::now()).count();
  const int left = static_cast<int>(std::clamp(seconds, std::int64_t{0}, std::int64_t{99}));
  const int filled = std::clamp(left * WIDTH / std::max(table.secondsToAct, 1), 0, WIDTH);
  return std::wstring(static_cast<std::size_t>(filled), L'█')
         + std::wstring(static_cast<std::size_t>(WIDTH - filled), L'░') + formatText(L" %d s", left);
}

std::wstring timeText() {
  constexpr std::int64_t DAY = 86'400;
  const std::int64_t seconds = CurrentServerTimeModel::getTime().getSeconds() % DAY;
  const auto two = [](std::int64_t number) { return std::wstring(number < 10 ? L"0" : L"") + std::to_wstring(number); };
  return two(seconds / 3600) + L":" + two(seconds / 60 % 60) + L":" + two(seconds % 60);
}

}  // namespace

void Person::inLobby(Client&) { choice_.reset(); }

void Person::toMove(Client&, const PlayerActionsInfo& actions) {
  choice_ = Choice{actions.getCheckCallValue(), actions.mayBetRaise() && actions.getNrBets() > 0};
  if (!choice_->mayRaise) return;
  choice_->smallestRaise = actions.getBet(0);
  choice_->largestRaise = actions.getBet(actions.getNrBets() - 1);
}

void Person::handEnded(Client&) { choice_.reset(); }

void Person::follows(SpecificTournamentModel* tournament) {
  subscription_ = tournament == nullptr ? Subscription() : Subscription(*tournament, *this);
  tournament_ = tournament;
  level_.clear();
  players_.clear();
  rank_.clear();
}

void Person::visit(const TournamentLevelInformationUpdateObject&) {
  const TournamentLevelInformation level = tournament_->getLevelInformation();
  level_ = formatText(L"level %d", level.getLevelNumber());
  if (level.hasBlinds())
    level_ += formatText(L", blinds %d/%d", level.getBlinds().getSmallBlind().getAmount(),
                         level.getBlinds().getBigBlind().getAmount());
}

void Person::visit(const TournamentBaseUpdateObject&) {
  const TournamentBaseModel basic = tournament_->getBasicInformation();
  players_ = formatText(L"%d of %d players", basic.getNumberOfPlayersRemaining(), basic.getNumberOfEntrants());
}

void Person::visit(const TournamentPlayerRankingUpdateObject&) {
  const TournamentPlayerRankingModel ranking = tournament_->getPlayerRankingInformation();
  if (ranking.hasUserRanking()) rank_ = formatText(L"you are %d.", ranking.getUserRanking().getPosition());
}

bool Person::press(Client& client, char key) {
  if (key == 'q') return false;
  if (client.table().isOpen)
    move(client, key);
  else
    choose(client, key);
  return true;
}

void Person::move(Client& client, char key) {
  if (key == 'l') return client.leaveTable();
  if (!choice_) return;
  const Choice choice = *choice_;
  if (key == 'f')
    client.fold();
  else if (key == 'c')
    client.checkOrCall(choice.toCall);
  else if (key == 'r' && choice.mayRaise)
    client.bet(choice.smallestRaise);
  else if (key == 'a' && choice.mayRaise)
    client.allIn(choice.largestRaise);
  else
    return;
  choice_.reset();
}

// What the user asks of the lobby goes through its mailbox.
void Person::choose(Client& client, char key) {
  constexpr int NODE = 11;
  if (key == 't')
    for (const auto& [id, tournament] : client.lobby().tournaments)
      if (tournament.isOpen) return client.commands().post(std::make_unique<TLCRegisterForTournament>(id, L""));
  if (key == 'b') return client.commands().post(std::make_unique<LCRequestAccountBalance>());
  const int number = key - '1';
  if (number < 0 || number >= static_cast<int>(client.lobby().games.size())) return;
  client.commands().post(std::make_unique<LCGotoTable>(NODE, std::next(client.lobby().games.begin(), number)->first));
}

std::vector<std::wstring> Person::screen(const Client& client, Terminal::Size size) const {
  std::vector<std::wstring> lines = {header(client), L""};
  const std::vector<std::wstring> middle = client.table().isOpen ? table(client) : lobby(client);
  lines.insert(lines.end(), middle.begin(), middle.end());
  lines.resize(static_cast<std::size_t>(std::max(size.rows - 3, static_cast<int>(lines.size()))));
  lines.push_back(choices(client));
  lines.push_back(DIM + client.news());
  lines.push_back(DIM + client.status());
  const int margin = std::max(0, (size.columns - WIDEST) / 2);
  for (std::wstring& line : lines) line.insert(0, static_cast<std::size_t>(margin), L' ');
  return lines;
}

std::wstring Person::header(const Client& client) const {
  const Money account = UserAccountModel::getUserAccountModel().getAccount(EURO);
  const std::wstring where = client.table().isOpen ? client.table().name : L"Card room";
  return formatText(L"%s%s%s%s%s", BOLD, left(where, 30), PLAIN,
                    right(L"account " + amount(account.getAmount(), EURO), 30), right(timeText(), 18));
}

std::vector<std::wstring> Person::lobby(const Client& client) const {
  std::vector<std::wstring> lines = {formatText(L"%s     table            players%s", DIM, PLAIN)};
  int number = 1;
  for (const auto& [id, game] : client.lobby().games)
    lines.push_back(formatText(L"  %d  %s %d of %d", number++, left(game.name, 16), game.players, game.seats));
  lines.emplace_back();
  lines.push_back(formatText(L"%s     tournament       entrants%s", DIM, PLAIN));
  for (const auto& [id, tournament] : client.lobby().tournaments)
    lines.push_back(formatText(L"  %s  %s %d %s", tournament.isOpen ? L"t" : L" ", left(tournament.name, 16),
                               tournament.entrants, tournament.isOpen ? L"open" : L"playing"));
  if (tournament_ != nullptr) {
    lines.emplace_back();
    lines.emplace_back(L"  You have entered a tournament, which begins when it is full.");
  }
  return lines;
}

std::vector<std::wstring> Person::table(const Client& client) const {
  constexpr std::size_t BOARD = 5;
  const TableModel& table = client.table();
  std::vector<std::wstring> lines;
  lines.push_back(formatText(L"  hand %d     pot %s%s%s", table.hand, BOLD, amount(table.pot, table.unit), PLAIN));
  lines.push_back(tournament_ == nullptr ? L"" : formatText(L"  %s  %s  %s", level_, players_, rank_));
  lines.push_back(L"  board   " + faces(table.board, BOARD));
  lines.emplace_back();
  lines.push_back(formatText(L"%s     player                 stack         bet   cards%s", DIM, PLAIN));
  for (int number = 0; number < table.seatCount; ++number) {
    const auto found = table.seats.find(number);
    if (found == table.seats.end()) {
      lines.push_back(formatText(L"%s     (free)%s", DIM, PLAIN));
      continue;
    }
    const TableModel::Seat& seat = found->second;
    const bool isToAct = table.toAct == number;
    const bool isMe = seat.player == client.me().getId();
    const std::wstring bet = seat.bet == 0 ? L"" : amount(seat.bet, table.unit);
    const std::wstring cards = seat.isInHand ? faces(seat.cards, 2) : L"      ";
    const std::wstring last = isToAct ? clockOf(table) : seat.isSittingIn ? seat.lastMove : L"sits out";
    lines.push_back(formatText(
        L" %s%s %s%s%s%s %s  %s %s%s%s", isToAct ? L">" : L" ", table.dealer == number ? L"D" : L" ",
        isMe ? GREEN : PLAIN, left((isMe ? L"*" : L" ") + seat.nick, 17), PLAIN,
        right(amount(seat.stack, table.unit), 12), right(bet, 11), cards, isToAct ? GREEN : DIM, last, PLAIN));
  }
  return lines;
}

std::wstring Person::choices(const Client& client) const {
  if (!client.table().isOpen) return L"[1-9] go to a table   [t] enter a tournament   [b] balance   [q] quit";
  if (!choice_) return L"[l] leave the table   [q] quit";
  const int unit = client.table().unit;
  std::wstring text = formatText(L"%sYour move:%s  [f] fold   ", BOLD, PLAIN);
  text += choice_->toCall == 0 ? L"[c] check" : formatText(L"[c] call %s", amount(choice_->toCall, unit));
  if (choice_->mayRaise)
    text += formatText(L"   [r] raise: %s   [a] all in: %s", amount(choice_->smallestRaise, unit),
                       amount(choice_->largestRaise, unit));
  return text;
}

}  // namespace CardRoom
