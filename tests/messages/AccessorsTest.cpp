#include <gtest/gtest.h>
#include <herald/herald.h>
#include <tests/support/RecordingSink.h>
#include <tests/support/Told.h>

#include <climits>
#include <functional>
#include <type_traits>

namespace Tessel {

namespace {

// An answer in the notation of values.
template <class Answer>
std::string noted(const Answer& answer) {
  if constexpr (std::is_arithmetic_v<Answer> || std::is_enum_v<Answer>)
    return told(answer);
  else if constexpr (std::is_same_v<Answer, std::wstring>)
    return valuesOf(TsString(answer));
  else
    return valuesOf(answer);
}

template <class Message, class Answer>
void expectCarries(Answer (Message::*accessor)() const) {
  const auto message = golden<Message>();
  EXPECT_EQ(noted<std::remove_cvref_t<Answer>>((message.*accessor)()), valuesOf(message)) << typeName<Message>();
}

/// Each accessor answers all that its message's body holds.
template <class... Accessors>
void expectCarry(Accessors... accessors) {
  (expectCarries(accessors), ...);
}

TEST(Accessors, OfMessagesAnswerTheirBody) {
  expectCarry(&ClientSatIn::getInfo, &ClientSatOut::getInfo, &ClientSlowPlayer::getSlowPlayerInfo,
              &PlayerSatDown::getInfo, &SitDownReply::getInfo, &ReserveMoneyReply::getReplyInfo,
              &PlayerJoined::getPlayerInGameInfo, &PlayerLeft::getPigIDInfo, &PlayerStandUp::getPigIDInfo,
              &ClientNewRound::getNewRoundInfo, &ClientSetDealerToken::getDealer, &ClientBetBlindReq::getBetRequestInfo,
              &ClientBetAnteReq::getBetRequestInfo, &ClientBetReq::getBetRequestInfo, &ClientHurryUp::getPlayer,
              &ClientFoldDone::getPlayer, &ClientCheckDone::getPlayer, &ClientAllInDone::getPlayer,
              &ClientCallDone::getCreditInfo, &ClientBetDone::getCreditInfo, &ClientBetDeadDone::getCreditInfo,
              &ClientBetsToPot::getCreditInfo, &ClientTotalRake::getCreditInfo, &ClientCards::getDealtCardsInfo,
              &ClientMuckCardsReq::getPlayer, &ClientMuckLosingCardsReq::getPlayer, &ClientShowCardsReq::getPlayer,
              &ClientShowAllCards::getCardsInfo, &ClientShowdownHandValue::getHandValueInfo,
              &ClientChangeCards::getChangeCardsInfo, &ClientVoteCast::getInfo, &GameStateInfoMsg::getGameStateInfo,
              &ClientTableInfo::getTableInformation, &ConnectOk::getSelfPlayerInfo, &TreeReply::getRoot,
              &UnSubscribeNode::getSubscriptionInfo, &LobbyInfoMsg::getLobbyInfo, &PingInfo::getPingInfoList,
              &JoinLobbyFailed::getJoinRequest, &JoinGameFailed::getJoinRequest, &JoinWaitingFail::getJoinRequest,
              &JoinWaitingOk::getLobbyInfo, &JoinAvailable::getPokerGameInfo, &MonetaryInfoMsg::getMonetaryInfo,
              &ClientChatMsg::getChatMessage, &ClientGlobalChatMsg::getChatMessage, &VIPInfo::getVIPList,
              &PGGamesSettingsList::getSettingsList, &PGCreateGameReply::getPokerGameInfo,
              &ClientWaitingToSitIn::getPlayerId, &ClientSlowPlayerBack::getPlayerId, &ClientPlayerTimeout::getPlayerID,
              &PlayerIGLeft::getPlayerId, &AllInProtectionStatusMsg::getStatus, &VIPLoginAnnounce::getVIPName,
              &ClientExtendedWelcomeMessage::getMessage, &PGPlayerReqTimedOut::getId, &PGPromotedModerator::getId);
}

TEST(Accessors, OfMessagesAnswerTheirFields) {
  EXPECT_EQ(golden<VIPInfo>().getSize(), 2);
  EXPECT_EQ(golden<AdminNotificationMsg>().getNotification().getText(), L"Wartung 10% um 5 ]");
  EXPECT_EQ(golden<GameList>().getNumberOfGameInfos(), 2);
  EXPECT_ANSWERS(Ping, it.getServerTime(), it.getPing());
  EXPECT_ANSWERS(ClientDiscardCards, it.getDiscardCardsInfo().getSeat(),
                 it.getDiscardCardsInfo().getNrDiscardedCards());
  EXPECT_ANSWERS(ClientWin, it.getPots().size(), it.getPots()[0].getPotType().getValue(),
                 it.getPots()[0].getCreditInfo().getAmount(), it.getPots()[0].getHandValue().getHandValue(),
                 it.getPots()[1].getCreditInfo().getAmount());
  EXPECT_ANSWERS(AllInProbabilityResults, it.getProbabilities().size(), it.getProbabilities()[0].first,
                 it.getProbabilities()[0].second, it.getProbabilities()[1].first, it.getProbabilities()[1].second);
  EXPECT_ANSWERS(ClientOpenTableReq, it.numInfos(), it.getPokerGameInfo(0).getId(), it.getPokerGameInfo(1).getId());
  EXPECT_ANSWERS(ShowCashierOk, it.getAccountBalance(), it.getMinBuyIn(), it.getMaxBuyIn());
  EXPECT_ANSWERS(AccountBalanceInfoMsg, it.getAccountBalanceCount(), it.getAccountBalance(0), it.getAccountBalance(1));
  EXPECT_ANSWERS(AccountBalanceInfoUpdateRelative, it.getAccountBalance());
  EXPECT_ANSWERS(AccountBalanceInfoUpdateAbsolute, it.getAccountBalance());
  EXPECT_ANSWERS(GameListUpdate, it.getNumberOfAddedInfos(), it.getPokerGameInfo(0).getId(), it.getRemovedGamesIds(),
                 it.getChangedGamesIds(), it.getChangedSeats());
}

TEST(Accessors, OfRecordsAnswerTheirFields) {
  EXPECT_ANSWERS(PlayerInfo, it.getId(), it.getNickName(), it.getCity(), it.getPing(), it.getGameID(), it.getTeamName(),
                 it.hasSalonPage(), it.isVIP());
  EXPECT_ANSWERS(PlayerInGameInfo, it.getId(), it.hasSalonPage(), it.isVIP(), it.getMoneyAtTable());
  EXPECT_ANSWERS(PlayerId, it.getId(), it.getSeat());
  EXPECT_ANSWERS(PlayerStateInfo, it.getSeat(), it.getPlayerInGameInfo().getId(), it.getBetsNotInPot(),
                 it.isSittingIn(), it.isSlow());
  EXPECT_ANSWERS(CreditInfo, it.getSeat(), it.getAmount());
  EXPECT_ANSWERS(CardInfo, it.getPlayerId(), it.getSeat(), it.getCard(), it.isHidden(), it.isTableCard());
  EXPECT_ANSWERS(CardsInfo, it.getNrCards(), it.hasWinningCards(), it.isWinningCard(0), it.isWinningCard(1),
                 it.getCardInfo(0).getCard(), it.doesPlayerHaveCards(3), it.doesPlayerHaveCards(2),
                 it.isCommunityCards());
  EXPECT_ANSWERS(ChangeCardsInfo, it.getSeat(), it.getTimeLeft(), it.getTotalTime());
  EXPECT_ANSWERS(DiscardCardsInfo, it.getSeat(), it.getNrDiscardedCards());
  EXPECT_ANSWERS(HandValueInfo, it.getPlayerSeat(), it.getHandType(), it.getHandValue(), it.getHandValueString(),
                 it.getNumberOfSpecifiedCards(), it.getSpecifiedCard(1), it.getSpecifiedCards());
  EXPECT_ANSWERS(PlayerActionsInfo, it.getSeat(), it.getCheckCallValue(), it.getBetType(), it.getNrBets(), it.getBet(0),
                 it.getBet(1), it.isFirstBetPlaced());
  EXPECT_ANSWERS(BetRequestInfo, it.getNrReqSeats(), it.getReqSeat(1), it.isSeatRequested(37), it.isSeatRequested(38),
                 it.getNrPlayerActionsInfos(), it.getPlayerActionsInfo(1)->getSeat(), it.getTotalTime(),
                 it.getTimeLeft());
  EXPECT_ANSWERS(NewRoundInfo, it.getHandNumber(), it.getNrOfPlayers(), it.getPlayer(0), it.getPlayer(1));
  EXPECT_ANSWERS(PokerGameStateInfo, it.getPokerRulesInfo().getMonetaryUnitId(), it.getDealerSeat(), it.getPotValue(),
                 it.getCurrentBettingRound(), it.getNrPlayers(), it.getPlayerState(1).getBetsNotInPot(),
                 it.isPlayerAtTable(-9), it.isPlayerAtTable(9), it.getCardsInfo().getNrCards(), it.getHandId(),
                 it.getPokerGameInfo().getId(), it.getCurrentRake());
  EXPECT_ANSWERS(TableInformation, it.getTableName(), it.getDescription(), it.getGameType() != nullptr,
                 it.getAmounts().at(1), it.getRounds().at(0).getAmount2(), it.getRounds().at(1).getAmount1());
  EXPECT_ANSWERS(PlayerSatDownInfo, it.getPlayerInGameInfo().getId(), it.getSeat());
  EXPECT_ANSWERS(ReserveMoneyReplyInfo, it.isStatusFail(), it.isStatusOk(), it.getPlayerInGameInfo().getId());
  EXPECT_ANSWERS(ClientSatInInfo, it.getPlayerID(), it.isNewSitIn(), it.isResittingIn());
  EXPECT_ANSWERS(SlowPlayerInfo, it.getPlayerID(), it.getStatus());
  EXPECT_ANSWERS(VoteCastInfo, it.getPlayerID(), it.getStatus(), it.getNumberOfVotes());
  EXPECT_ANSWERS(JoinRequest, it.getGameID(), it.getPlayerID());
  EXPECT_ANSWERS(GameInfo, it.getId(), it.getName(), it.getNrPlayers(), it.getMaxNrPlayers(), it.getNrPlayersWatching(),
                 it.getMonetaryUnitId(), it.getPort(), it.getType(), it.isFull());
  EXPECT_ANSWERS(PokerRulesInfo, it.getGameDescription(), it.getMaxRake(), it.getBigBlind(), it.getNrChipStackValues(),
                 it.getChipStackValue(0), it.getChipStackValue(1), it.getMinChipValue(), it.getAnte(),
                 it.getSmallBlind(), it.getSmallBet(), it.getBigBet(), it.getTournamentBuyIn(), it.getTournamentFee());
  EXPECT_ANSWERS(PokerLobbyInfo, it.getId(), it.getNrPlayers(), it.getPlayers()[1].getId(), it.getNrPlayersWaiting(),
                 it.getPlayersWaiting()[0].getNickName(), it.getName(), it.getPokerRules().getMonetaryUnitId(),
                 it.getAveragePot(), it.getHandsPerHour(), it.getPlayersFlop());
  EXPECT_ANSWERS(PingInfoInfo, it.getNick(), it.getPing(), it.getMoneyAtTable());
  EXPECT_ANSWERS(PGPlayerReqToJoinGame, it.getPlayerInfo().getId(), it.getRequestText());
  EXPECT_ANSWERS(VIPPlayerInfo, it.getPlayerId(), it.isPlaying(), it.getGameKind(), it.getGameId(), it.getVIPType(),
                 it.getVIPName(), it.getVIPStatus());
  EXPECT_ANSWERS(ChatMessage, it.getNickname(), it.getMessage());
  EXPECT_ANSWERS(GameIdInfo, it.getNrIds(), it.getId(0));
  EXPECT_ANSWERS(PGSettingsInfo, it.getSettingId(), it.getDescription());
  EXPECT_ANSWERS(PingInfoList, it.getNrInfos(), it.getPingInfo(1).getNick(), it.getGameId());
  EXPECT_ANSWERS(TreeNodeInfo, it.getId(), it.getNameId(), it.getDefaultName(), it.getPort(), it.getNumSubNodes());
  EXPECT_ANSWERS(InfoVector, it.size(), it.getTypeString());
  EXPECT_ANSWERS(MonetaryInfo, it.getMonetaryUnitCount(), it.getMonetaryTypeCount(), it.getCurrencyCount());
  EXPECT_ANSWERS(MonetaryUnitInfo, it.getId(), it.getMonetaryTypeId(), it.getCurrencyId());
  EXPECT_ANSWERS(MonetaryTypeInfo, it.getId(), it.getName(), it.getProperties(), it.getSortingPriority(), it.isFree(),
                 it.isRefillable(), it.isReal());
  EXPECT_ANSWERS(CurrencyInfo, it.getId(), it.getPrefix(), it.getPostfix(), it.getCutOffAmount(),
                 it.getSortingPriority());
}

TEST(Accessors, OfDefaultRecords) {
  EXPECT_EQ(told(TesselInt().getValue(), TesselByte().getIntValue(), TesselBool().getValue()), "-1 -1 0");
  EXPECT_EQ(told(MoneyInfo().getMoney(), InfoList<TesselInt>().getNrInfos()), "0/0 0");
  EXPECT_EQ(told(PlayerId().getId(), PlayerId().getSeat(), PlayerActionsInfo().getBetType()), "0 0 3");
  EXPECT_EQ(valuesOf(JoinGameFailed()), "-1 -1");
  const PlayerInGameInfo player(1, L"n", L"c", Money(5, 6), 2, 3, L"t");
  EXPECT_EQ(valuesOf(player), "1 \"n\" \"c\" 2 3 0 \"t\" 6 5");
}

TEST(Accessors, OfConstructedRecords) {
  EXPECT_EQ(valuesOf(DealtCardsInfo(DealtCardsInfoDealType{4}, golden<CardsInfo>())),
            "4 " + *goldenCase("CardsInfo").values);
  EXPECT_EQ(valuesOf(ClientSatInInfo(7, ClientSatInStatus::RESITTING_IN)), "7 1");
  EXPECT_EQ(valuesOf(PokerSelfPlayerInfo(5, golden<SelfPlayerInfo>())), *goldenCase("SelfPlayerInfo").values + " 5");
  const PGSettings wanted(9, 6, PGSettings::JoinType{1}, L"ab", PokerGameInfo::GameSpeed{2});
  EXPECT_EQ(told(wanted.getSettingId(), wanted.getMaxNumPlayers(), wanted.getJoinType(),
                 wanted.getDescription().getString(), wanted.getSpeed()),
            "9 6 1 ab 2");
  const auto settings = read<PGSettingsInfo>("00000001 02 01 0001 41 0003 0000000000000005 000000000000000A");
  EXPECT_EQ(told(settings.getSettingId(), settings.getGameType()->getValue(), settings.getLimitType()->getValue(),
                 settings.getDescription(), settings.getLimits().getLowerLimit(), settings.getLimits().getUpperLimit(),
                 settings.getLimits().getMonetaryUnitId()),
            "1 2 1 A 5 10 3");
}

TEST(Accessors, OfRecordsTakeValues) {
  PingInfoInfo ping;
  ping.setNick(L"n");
  ping.setPing(-1);
  ping.setMoneyAtTable(Money(2, 3));
  EXPECT_EQ(valuesOf(ping), "\"n\" -1 3 2");
  auto game = golden<GameInfo>();
  game.setNrPlayersWatching(-4);
  EXPECT_EQ(game.getNrPlayersWatching(), -4);
  AmountInfo amount;
  TesselInt number;
  TesselByte small;
  TesselBool flag;
  TesselIntBitMask mask(0);
  amount.setAmount(LLONG_MIN), number.setValue(INT_MIN), small.setValue(-128), flag.setValue(true), mask.setMask(-2);
  EXPECT_EQ(told(amount.getAmount(), number.getValue(), small.getIntValue(), flag.getValue(), mask.getMask()),
            "-9223372036854775808 -2147483648 -128 1 -2");
}

TEST(Accessors, OfRequests) {
  const ServerInTurnAction action(1, 2, 3, InTurnAction::InTurnActionType{4}, 5);
  EXPECT_EQ(told(action.getBetRound(), action.getActionType(), action.getAmount()), "3 4 5");
  EXPECT_EQ(told(Pong(6, 7).getServerTime(), Pong(6, 7).getPing(), ServerSettings(8).getBits(),
                 TournamentRebuyReplyMsg(9, true).isAccepted()),
            "6 7 8 1");
  EXPECT_EQ(valuesOf(SubscribeNodeReq(SubscriptionInfo(12, 1)).getSubscriptionInfo()), "12 1");
  EXPECT_EQ(valuesOf(UnSubscribeNodeReq(SubscriptionInfo(12, 1)).getSubscriptionInfo()), "12 1");
}

TEST(CardInfo, MakesCardsOfWireColorsAndNumbers) {
  const int colors[] = {4, 1, 2, 0, 3};
  for (int color = -2; color <= 4; ++color) {
    for (int number = -2; number <= 14; ++number) {
      SCOPED_TRACE(told(color, number));
      const bool isColor = color >= -1 && color <= 3;
      const int type = number == 1 ? 12 : number >= 2 && number <= 13 ? number - 2 : 13;
      const Card card = CardInfo::createCard(color, number);
      EXPECT_EQ(told(card.getColor(), card.getType()), told(isColor ? colors[color + 1] : 4, type));

      ByteStream in(toBytes("00000007 00000002"));
      in << static_cast<std::int8_t>(color) << static_cast<std::int8_t>(number);
      const bool isCard = isColor && number >= -1 && number != 0 && number <= 13;
      try {
        EXPECT_TRUE(CardInfo().read(in) && isCard);
      } catch (const OutOfBoundsException& failure) {
        EXPECT_FALSE(isCard);
        EXPECT_EQ(failure.getFile(), L"messages/info_objects/CardInfo");
        EXPECT_EQ(failure.getName(), isColor ? L"number" : L"color");
        EXPECT_EQ(told(failure.getLowest(), failure.getHighest(), failure.getIndex()),
                  isColor ? told(-1, 13, number) : told(-1, 3, color));
      }
      EXPECT_TRUE(in.eos());
    }
  }
}

TEST(CardsInfo, IsACommunitySetWhenNoCardIsAPlayers) {
  CardInfo card(1, 2, Card(Card::Color{2}, Card::Type{12}));
  EXPECT_EQ(told(card.getCard(), CardsInfo({card}).isCommunityCards()), "Ah 0");
  card.setHiddenCard(5);
  EXPECT_EQ(told(card.getPlayerId(), card.getSeat(), card.isHidden()), "0 5 1");
  card.setRandomCommunityCard();
  EXPECT_EQ(told(card.isHidden(), CardsInfo({card}).isCommunityCards(), CardsInfo().isCommunityCards()), "0 1 1");
}

TEST(DiscardCardsInfo, IsWrittenWithUpTo127Cards) {
  for (const int count : {127, 128}) {
    const WithRecordingSink recording;
    const auto& reports = recording.sink->reports;
    DiscardCardsInfo discard;
    discard.setDiscardedCards(TsArray<int>(std::vector<int>(static_cast<std::size_t>(count), 5)));
    TsArray<int> cards = {3};
    discard.getDiscardedCards(cards);
    EXPECT_EQ(told(cards.size(), cards.at(count - 1)), told(count, 5));
    ByteStream out;
    EXPECT_EQ(discard.write(out), count == 127);
    ASSERT_EQ(reports.size(), count == 127 ? 0u : 1u);
    if (count == 128) {
      EXPECT_EQ(reports[0].getText(), L"A list of 128 items is too long for its count.");
    }
  }
}

TEST(InfoList, StartsAfreshWithEachRead) {
  const WithRecordingSink recording;
  auto texts = read<InfoList<TsString>>("0002 0001 61 0001 62");
  ByteStream again(toBytes("0001 0001 FF"));
  EXPECT_TRUE(texts.read(again));
  EXPECT_EQ(valuesOf(texts), "(1 \"\")") << "the text that is no text has nothing of the one before";
}

TEST(InfoVector, AppendsWhatItReads) {
  auto vector = golden<InfoVector>();
  ByteStream again(goldenCase("InfoVector").bytes);
  EXPECT_TRUE(vector.read(again));
  ASSERT_EQ(vector.size(), 4);
  EXPECT_EQ(valuesOf(vector[3]), valuesOf(vector[1]));
}

TEST(DealtCardsInfo, KnowsTheDealTypesZeroToNine) {
  for (int type = -128; type <= 127; ++type) {
    ByteStream in;
    in << static_cast<std::int8_t>(type) << 0 << false;
    EXPECT_EQ(told(read<DealtCardsInfo>(in.bytes()).getDealType().getValue()),
              told(type >= 0 && type <= 9 ? type : -1));
  }
}

TEST(PlayerActionsInfo, MayWhatItsBitsSay) {
  for (int bit = 0; bit < 6; ++bit) {
    bool flags[6] = {};
    flags[bit] = true;
    const PlayerActionsInfo built(3, flags[0], flags[1], flags[2], flags[3], flags[4], flags[5], 7, true, BetType{1},
                                  {});
    EXPECT_EQ(told(built.mayFold(), built.mayCheckFold(), built.mayCheckCall(), built.mayCallAny(), built.mayBetRaise(),
                   built.mayBetRaiseAny()),
              told(flags[0], flags[1], flags[2], flags[3], flags[4], flags[5]));
    ByteStream in;
    in << std::int8_t{3} << static_cast<std::int8_t>(1 << bit) << std::int64_t{7} << std::int8_t{-12} << std::int8_t{0};
    auto actions = read<PlayerActionsInfo>(in.bytes());
    EXPECT_FALSE(actions == built);
    actions.setFirstBetPlaced(true);
    EXPECT_TRUE(actions == built);
  }
  for (int code = -128; code <= 127; ++code)
    EXPECT_EQ(told(PlayerActionsInfo::convertBetType(code)), told(code >= -13 && code <= -11 ? -11 - code : 3));
}

TEST(BetRequestInfo, AnswersTheFirstRecordOfASeat) {
  const auto request = read<BetRequestInfo>("00 02 05 00 0000000000000001 00 00 05 00 0000000000000002 00 00 01 02");
  EXPECT_EQ(request.getPlayerActionsInfoForSeat(5), request.getPlayerActionsInfo(0));
  EXPECT_EQ(request.getPlayerActionsInfoForSeat(6), nullptr);
}

TEST(TableRecords, TestTheirCodes) {
  for (int code = -1; code <= 13; ++code) {
    SCOPED_TRACE(code);
    ByteStream in;
    in << static_cast<std::int8_t>(code) << std::int16_t{0} << std::int64_t{2};
    const auto reply = read<SitDownReplyInfo>(in.bytes());
    const bool hasMoney = code >= 6 && code <= 8;
    EXPECT_EQ(told(reply.isSatDown(), reply.isRefusedDueToMoney(), reply.isRefusedDueToSystem(), reply.getMoney()),
              told(code == 0, hasMoney, code == 12, Money(hasMoney ? 2 : 0, 0)));
    const auto discard = read<ClientDiscardCards>(in.bytes());
    EXPECT_EQ(told(discard.cardsWasChanged(), discard.cardsWasChangedAutomatically()), told(code != 1, code == 2));
    const auto join = read<JoinRequestStatus>(in.bytes());
    EXPECT_EQ(told(join.isOk(), join.isRefusedDenied(), join.isRefusedNoAnswer()),
              told(code == 0, code == 1, code == 2));
    ByteStream behindPlayer(toBytes("00000007"));
    behindPlayer << static_cast<std::int8_t>(code);
    const auto satOut = read<ClientSatOutInfo>(behindPlayer.bytes());
    EXPECT_EQ(told(satOut.getPlayerID(), satOut.isNotEnoughFunds(), satOut.isWillBeSatOut()),
              told(7, code == 0, code == 1));
  }
}

// Per round, bit 0 is its flag A and bit 1 its flag B.
TEST(TableInformation, DerivesItsLimitType) {
  const struct {
    bool tableFlag;
    std::vector<int> rounds;
    int limitType;
  } cases[] = {{false, {}, 0},     {true, {}, 3},  {true, {0, 1}, 1}, {false, {2}, 2}, {false, {1, 2}, 2},
               {false, {2, 1}, 2}, {true, {3}, 2}, {true, {0}, 3},    {false, {0}, 0}, {false, {0, 1, 0}, 1}};
  for (const auto& [tableFlag, rounds, limitType] : cases) {
    ByteStream in(toBytes("0000 00 0007 0000000000000001"));
    in << tableFlag << true << 2 << 0 << std::int64_t{3} << 4;
    in.append(toBytes("0000 0000000000000005 0000000000000006 0000000000000007 0000000000000008"));
    in << static_cast<std::int32_t>(rounds.size());
    for (const int flags : rounds)
      in << std::int64_t{9} << std::int64_t{10} << ((flags & 1) != 0) << ((flags & 2) != 0);
    EXPECT_EQ(told(read<TableInformation>(in.bytes()).getLimitType()->getValue()), told(limitType));
  }
  ByteStream out;
  EXPECT_FALSE(TableInformation().write(out));
  EXPECT_EQ(out.GetSize(), 0);
}

TEST(TableInformation, IsMadeOfItsValues) {
  using Round = TableInformation::RoundBetInfo;
  const auto money = [](int amount) { return Money(amount, 1000 + amount); };
  const TableInformation table(
      TsString(L"Bord"), TsString(L"text"), GameTypeFactory::createGameType(GameTypes::AllowedGameType::OMAHA),
      LimitTypeFactory::createLimitType(LimitTypes::AllowedLimitType::POT_LIMIT), 83, money(-84), money(90), money(-91),
      money(92), money(-88), money(-93), {money(86), money(-87)},
      {Round(money(94), money(-95), false, true), Round(money(96), money(97), true, false)}, 85, 2, 2, 89, false, true);
  EXPECT_EQ(valuesOf(table),
            "\"Bord\" 1 83 -84 0 1 85 (2 86 -87) -88 89 \"text\" 90 -91 92 -93 (2 94 -95 0 1 96 97 1 0)");
  EXPECT_EQ(told(table.getMoney(1), table.getMoney(2), table.getMoney(3), table.getMoney(4), table.getMoney(5),
                 table.getMoney(6), table.getAmounts().at(1), table.getRounds().at(1).getAmount1(),
                 table.getRounds().at(0).getAmount2()),
            "-84/916 -88/912 90/1090 -91/909 92/1092 -93/907 -87/913 96/1096 -95/905");
  EXPECT_EQ(told(table.getValue1(), table.getValue2(), table.getFlagA(), table.getFlagB(),
                 table.getGameType()->getValue(), table.getLimitType()->getValue()),
            "85 89 0 1 1 1");
  for (const int outside : {0, 7}) EXPECT_THROW(table.getMoney(outside), OutOfBoundsException);
}

TEST(InfoArray, IsReadWholeOrThrows) {
  ByteStream in(toBytes("00000001 00000002"));
  EXPECT_EQ(readInfoArray<TesselInt>(in, 0), nullptr);
  const std::unique_ptr<TesselInt[]> numbers(readInfoArray<TesselInt>(in, 2));
  EXPECT_EQ(told(numbers[0].getValue(), numbers[1].getValue(), infoArraySize(numbers.get(), 2)), "1 2 8");
  EXPECT_THROW(infoArraySize(numbers.get(), 0), KeystoneException);
  EXPECT_THROW(infoArraySize<TesselInt>(nullptr, 1), KeystoneException);
  ByteStream noPlayers(toBytes("00000001 00000000"));
  EXPECT_THROW(delete[] readInfoArray<NewRoundInfo>(noPlayers, 1), KeystoneException);
}

TEST(IndexedAccessors, RefuseWhatLiesOutside) {
  const auto list = read<InfoList<TesselInt>>("0001 00000005");
  const auto none = read<InfoList<TesselInt>>("FFFE");
  TesselIntBitMask mask(0);
  const struct {
    std::wstring source;
    int count;
    std::function<void(int)> get;
  } cases[] = {
      {L"CardsInfo", 2, [](int i) { golden<CardsInfo>().getCardInfo(i); }},
      {L"CardsInfo", 2, [](int i) { golden<CardsInfo>().isWinningCard(i); }},
      {L"BetRequestInfo", 2, [](int i) { golden<BetRequestInfo>().getReqSeat(i); }},
      {L"BetRequestInfo", 2, [](int i) { golden<BetRequestInfo>().getPlayerActionsInfo(i); }},
      {L"PlayerActionsInfo", 2, [](int i) { golden<PlayerActionsInfo>().getBet(i); }},
      {L"HandValueInfo", 2, [](int i) { golden<HandValueInfo>().getSpecifiedCard(i); }},
      {L"PokerGameStateInfo", 2, [](int i) { golden<PokerGameStateInfo>().getPlayerState(i); }},
      {L"PokerRulesInfo", 2, [](int i) { golden<PokerRulesInfo>().getChipStackValue(i); }},
      {L"GameIdInfo", 2, [](int i) { golden<GameIdInfo>().getId(i); }},
      {L"TreeNodeInfo", 2, [](int i) { golden<TreeNodeInfo>().getSubNode(i); }},
      {L"InfoList", 1, [&](int i) { list[i]; }},
      {L"InfoList", -2, [&](int i) { none[i]; }},
      {L"InfoVector", 2, [](int i) { golden<InfoVector>()[i]; }},
      {L"TesselIntBitMask", 32, [&](int i) { mask.setBit(i, false); }},
      {L"TesselIntBitMask", 32, [&](int i) { EXPECT_TRUE(mask.getBit(i)); }},
  };
  for (const auto& [source, count, get] : cases) {
    SCOPED_TRACE(UTFEncoder::toUTF8(source));
    for (int i = 0; i < count; ++i) EXPECT_NO_THROW(get(i));
    for (const int i : {-1, count, INT_MIN, INT_MAX}) {
      try {
        get(i);
        ADD_FAILURE() << i;
      } catch (const OutOfBoundsException& failure) {
        EXPECT_EQ(failure.getFile(), L"messages/info_objects/" + source);
        EXPECT_EQ(told(failure.getLowest(), failure.getHighest(), failure.getIndex()), told(0, count - 1, i));
        if (source.starts_with(L"Info")) {
          EXPECT_EQ(failure.getName(), L"i");
        }
        if (count == 32) {
          EXPECT_EQ(failure.getName(), L"bitNumber");
        }
      }
    }
  }
  EXPECT_EQ(mask.getMask(), -1);
}

}  // namespace

}  // namespace Tessel
