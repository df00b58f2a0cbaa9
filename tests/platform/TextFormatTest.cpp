#include "platform/win/TextFormat.h"

#include <clocale>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "platform/win/CodePage.h"
#include "platform/win/String.h"

namespace {

struct Case {
    std::wstring result;
    const wchar_t* expected;
};

void Check(std::initializer_list<Case> cases) {
    for (const Case& c : cases) {
        EXPECT_EQ(WideToUtf8(c.result), WideToUtf8(c.expected));
    }
}

enum Colour : int { Red = 3 };
enum class Small : std::uint8_t { Most = 255 };

} // namespace

TEST(FormatText, Texts) {
    const std::string narrow = "Grün";
    Check({
        {FormatText(L"%s|%ls|%S", L"Ä", CString(L"b"), L"c"), L"Ä|b|c"},
        {FormatText(L"%hs|%s", narrow, "é"), L"Grün|é"},
        {FormatText(L"%-4s|%4s|%.2s|%5.1s|", L"ab", L"ab", L"abc", L"xyz"), L"ab  |  ab|ab|    x|"},
        {FormatText(L"%*s|%-*s|%.*s", 3, L"a", 3, L"b", 1, L"cd"), L"  a|b  |c"},
        {FormatText(L"%*s|", -3, L"a"), L"a  |"},
        {FormatText(L"%s", static_cast<const wchar_t*>(nullptr)), L"(null)"},
        {FormatText(L"100 %% %c%c", L'Ω', 'z'), L"100 % Ωz"},
    });
}

TEST(FormatText, WholeNumbers) {
    Check({
        {FormatText(L"%d %i %u", -1, 7, 8U), L"-1 7 8"},
        {FormatText(L"%5.5i", 83), L"00083"},
        {FormatText(L"(%5.5i)", -83), L"(-00083)"},
        {FormatText(L"%5d|%-5d|%05d|%+d|% d", 42, 42, -42, 42, 42), L"   42|42   |-0042|+42| 42"},
        {FormatText(L"%-05d|", 42), L"42   |"},
        {FormatText(L"%x %X %02X %o", 0xABC, 0xABC, 5, 8), L"abc ABC 05 10"},
        {FormatText(L"%#x", 255), L"0xff"},
        {FormatText(L"%X %X", -1, static_cast<short>(-1)), L"FFFFFFFF FFFF"},
        {FormatText(L"%u", -1), L"4294967295"},
        {FormatText(L"%ld %lld %zu", 1L << 40, std::numeric_limits<long long>::min(), sizeof(int)),
         L"1099511627776 -9223372036854775808 4"},
        {FormatText(L"%u", std::numeric_limits<std::uint64_t>::max()), L"18446744073709551615"},
        {FormatText(L"%d:%d:%d", Red, Small::Most, true), L"3:255:1"},
    });
}

TEST(FormatText, RealNumbers) {
    const double nan = std::nan("");
    Check({
        {FormatText(L"%f %.2f %.0f", 1.5, 2.345, 0.5), L"1.500000 2.35 0"},
        {FormatText(L"%10.2f|%-8.1f|%08.3f", 3.14159, 2.0, -1.5), L"      3.14|2.0     |-001.500"},
        {FormatText(L"%g %g %e", 0.0001, 1e20, 12345.0), L"0.0001 1e+20 1.234500e+04"},
        {FormatText(L"%+f %+f % g", 0.5, -0.0, 2.0), L"+0.500000 -0.000000  2"},
        {FormatText(L"%.1f", std::numeric_limits<double>::max()).substr(0, 5), L"17976"},
        {FormatText(L"%05f|%5f", nan, INFINITY), L"  nan|  inf"},
    });
}

TEST(FormatText, MismatchedArgumentsAreVisible) {
    Check({
        {FormatText(L"%s"), L"<?>"},
        {FormatText(L"%d %s", L"text", 5), L"<?> <?>"},
        {FormatText(L"%f|%d", 1, 1.0), L"<?>|<?>"},
        {FormatText(L"%y %"), L"<?> <?>"},
        {FormatText(L"one", 1, 2), L"one"},
    });
}

TEST(FormatText, LimitsTheWidth) {
    EXPECT_LE(FormatText(L"%999999999d", 1).size(), 200000U);
    EXPECT_LE(FormatText(L"%*d", std::numeric_limits<int>::max(), 1).size(), 200000U);
    EXPECT_LE(FormatText(L"%*d", std::numeric_limits<int>::min(), 1).size(), 200000U);
    EXPECT_LE(FormatText(L"%.*f", std::numeric_limits<int>::max(), 1.0).size(), 200000U);
}

TEST(FormatText, DoesNotDependOnTheLocale) {
    // If the locale is not installed, this tests nothing but does not fail.
    const std::string before = std::setlocale(LC_ALL, nullptr);
    std::setlocale(LC_ALL, "de_DE.UTF-8");
    EXPECT_EQ(FormatText(L"%.2f %s", 1.25, L"Ä"), L"1.25 Ä");
    std::setlocale(LC_ALL, before.c_str());
}
