#include <herald/HeraldUtils/DateUtils.h>
#include <herald/HeraldUtils/ResourceTexts.h>
#include <herald/platform/keystone/Exceptions.h>
#include <herald/platform/keystone/Format.h>

#include <iterator>

namespace Tessel::DateUtils {

namespace {

constexpr const wchar_t* FILE_NAME = L"HeraldUtils/DateUtils";
constexpr int DAYS[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
constexpr int MONTHS = static_cast<int>(std::size(DAYS));
constexpr int FEBRUARY = 2;
constexpr int DAYS_OF_LEAP_FEBRUARY = 29;

void checkMonth(int month) {
  if (month < 1 || month > MONTHS) throw OutOfBoundsException(FILE_NAME, __LINE__, L"monthNr", 1, MONTHS, month);
}

}  // namespace

int getNumberDaysInMonth(int year, int month) {
  checkMonth(month);
  if (year == 0) return DAYS_OF_LEAP_FEBRUARY;
  if (year % 4 == 0 && month == FEBRUARY) return DAYS_OF_LEAP_FEBRUARY;
  return DAYS[month - 1];
}

std::wstring getMonthString(int month) {
  checkMonth(month);
  return findResourceText(FILE_NAME, L"MonthText", formatText(L"Month%d", month));
}

std::wstring getAMPMString(bool am) { return findResourceText(FILE_NAME, L"AMPMText", am ? L"AM" : L"PM"); }

}  // namespace Tessel::DateUtils
