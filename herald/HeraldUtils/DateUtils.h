#pragma once
#include <herald/platform/keystone/Export.h>

#include <string>

/// Dates in the user's language.
namespace Tessel::DateUtils {

/// Months are 1 to 12; another throws `OutOfBoundsException`. Every fourth year is a leap year, without a rule for
/// centuries; the year 0 answers 29 for every month.
HERALD_API int getNumberDaysInMonth(int year, int month);

/// The month's name; throws for a month outside 1 to 12. A text that the resources do not have is reported, and the
/// answer is empty, here and below.
HERALD_API std::wstring getMonthString(int month);

HERALD_API std::wstring getAMPMString(bool am);

}  // namespace Tessel::DateUtils
