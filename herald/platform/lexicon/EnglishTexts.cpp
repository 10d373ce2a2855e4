#include <herald/platform/lexicon/EnglishTexts.h>

namespace Tessel {

namespace {

constexpr const wchar_t* CONNECTION = L"ServerConnectionErrorMessages";
constexpr const wchar_t* MONTH = L"MonthText";
constexpr const wchar_t* AM_PM = L"AMPMText";
constexpr const wchar_t* BUY_IN = L"BuyInTexts";

constexpr EnglishText TEXTS[] = {
    {CONNECTION, L"CONNECTION_FAILED_AUTH", L"The server did not accept your login."},
    {CONNECTION, L"CONNECTION_REQUESTED", L"Connecting to the server..."},
    {CONNECTION, L"CONNECTION_KEY_SUCCESS", L"A secure connection has been set up. Logging in..."},
    {CONNECTION, L"CONNECTION_UNDEFINED", L"The connection failed for an unknown reason."},
    {CONNECTION, L"CONNECTION_FAILED_NET", L"The server cannot be reached. Please check your internet connection."},
    {CONNECTION, L"CONNECTION_FAILED_KEY_NET", L"The network failed while the secure connection was being set up."},
    {CONNECTION, L"CONNECTION_FAILED_SERVER", L"The server refused the connection. Please try again later."},
    {CONNECTION, L"CONNECTION_FAILED_USER", L"There is no player with this name."},
    {CONNECTION, L"CONNECTION_FAILED_DATA", L"The server sent an answer that could not be understood."},
    {CONNECTION, L"CONNECTION_FAILED_COMMUNICATOR", L"The connection could not be started on this computer."},
    {CONNECTION, L"CONNECTION_CLOSED", L"The connection to the server has been closed."},
    {CONNECTION, L"CONNECTION_ALREADY_CONNECTED", L"You are already connected."},
    {CONNECTION, L"CONNECTION_FAIL_VERSION", L"This version is out of date. Please install the latest one."},
    {CONNECTION, L"CONNECTION_FAIL_PASS", L"The password is wrong."},
    {CONNECTION, L"CONNECTION_FAIL_TWICE", L"You are already logged in from another computer."},
    {CONNECTION, L"CONNECTION_OUT_OF_RECONNECTS", L"The connection was lost and could not be set up again."},
    {CONNECTION, L"CONNECTION_SEND_FAILED_NOT_CONNECTED", L"This cannot be sent while you are not connected."},
    {CONNECTION, L"CONNECTION_FAILED_SERVER_NOT_RESPONDING", L"The server does not respond. Please try again later."},
    {CONNECTION, L"CONNECTION_FAILED_ACCOUNT_DISABLED", L"Your account has been disabled. Please contact support."},

    {MONTH, L"Month1", L"January"},
    {MONTH, L"Month2", L"February"},
    {MONTH, L"Month3", L"March"},
    {MONTH, L"Month4", L"April"},
    {MONTH, L"Month5", L"May"},
    {MONTH, L"Month6", L"June"},
    {MONTH, L"Month7", L"July"},
    {MONTH, L"Month8", L"August"},
    {MONTH, L"Month9", L"September"},
    {MONTH, L"Month10", L"October"},
    {MONTH, L"Month11", L"November"},
    {MONTH, L"Month12", L"December"},

    {AM_PM, L"AM", L"AM"},
    {AM_PM, L"PM", L"PM"},

    {BUY_IN, L"BuyInFormatString", L"{BUYIN} + {FEE}"},
    {BUY_IN, L"InvalidBuyInString", L"Not available"},
};

}  // namespace

std::span<const EnglishText> englishTexts() { return TEXTS; }

}  // namespace Tessel
