#include <herald/HeraldUtils/CurrentServerTimeModel.h>
#include <herald/HeraldUtils/UserAccountModel.h>
#include <herald/messages/BettingEvents.h>
#include <herald/messages/ClientMessageFactory.h>
#include <herald/platform/keystone/ByteStream.h>
#include <herald/platform/keystone/Exceptions.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>

using namespace Tessel;

namespace {

constexpr std::int16_t BET_DONE = 12;
constexpr std::int64_t AMOUNT = 2500;

bool decodesAndCasts() {
  constexpr std::array<std::uint8_t, 13> BODY = {0, 0, 0, 7, 3, 0, 0, 0, 0, 0, 0, 0x09, 0xC4};
  ByteStream stream(BODY);
  const std::unique_ptr<ClientMessage> message(ClientMessageFactory::byteArrayToMessage(BET_DONE, stream));
  const auto* bet = dynamic_cast<const ClientBetDone*>(message.get());
  return bet != nullptr && bet->getCreditInfo().getAmount() == AMOUNT;
}

bool catchesAcrossTheBorder() {
  ByteStream empty;
  std::int32_t number = 0;
  try {
    empty >> number;
  } catch (const KeystoneException&) {
    return true;
  }
  return false;
}

/// Uses the models of the process from a constructor that may run before the library's own, as in a static build.
class UserBeforeMain {
 public:
  UserBeforeMain() {
    UserAccountModel::getUserAccountModel().newPriorityList({Money(AMOUNT, UNIT)});
    CurrentServerTimeModel::setCurrentServerTime(TsTime(AMOUNT));
  }
  static bool findsWhatItSet() {
    return UserAccountModel::getUserAccountModel().getAccount(UNIT) == Money(AMOUNT, UNIT)
           && CurrentServerTimeModel::getTime() >= TsTime(AMOUNT);
  }

 private:
  static constexpr int UNIT = 1;
};

const UserBeforeMain USER_BEFORE_MAIN;

}  // namespace

int main() {
  if (!decodesAndCasts()) return std::puts("consumer: the message was not decoded as expected"), 1;
  if (!catchesAcrossTheBorder()) return std::puts("consumer: no exception came across the border"), 1;
  if (!UserBeforeMain::findsWhatItSet()) return std::puts("consumer: what was set before main is lost"), 1;
  std::puts("consumer: ok");
  return 0;
}
