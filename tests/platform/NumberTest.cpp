#include "platform/win/Number.h"

#include <gtest/gtest.h>
#include <limits>

#include "platform/win/CodePage.h"

TEST(Number, TextToInt) {
    constexpr int kMost = std::numeric_limits<int>::max();
    constexpr int kLeast = std::numeric_limits<int>::min();
    const std::pair<const wchar_t*, int> cases[] = {
        {L"", 0},
        {L"0", 0},
        {L" \t\n-12x9", -12},
        {L"+7", 7},
        {L"+-7", 0},
        {L"- 7", 0},
        {L"x7", 0},
        {L"0x10", 0},
        {L"2147483647", kMost},
        {L"2147483648", kMost},
        {L"-2147483648", kLeast},
        {L"-2147483649", kLeast},
        {L"99999999999999999999999999", kMost},
        {L"-99999999999999999999999999", kLeast},
        {L"000000000000000000000000012", 12},
        {L"１２", 0},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(TextToInt(text), expected) << WideToUtf8(text);
    }
}

TEST(Number, TextToDoubleStopsAtTheFirstInvalidCharacter) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const std::pair<const wchar_t*, double> cases[] = {
        {L"", 0},
        {L" -1.5m", -1.5},
        {L"+.5", 0.5},
        {L"1,5", 1},
        {L"1e3e3", 1000},
        {L"x1", 0},
        {L"1e999", kInfinity},
        {L"-1e999", -kInfinity},
        {L"1e-999", 0},
        {L"4.9e-324", 5e-324},
    };
    for (const auto& [text, expected] : cases) {
        EXPECT_EQ(TextToDouble(text), expected) << WideToUtf8(text);
    }
}

TEST(Number, RealToTextReadsBackAsTheSameNumber) {
    for (const double value : {0.1, 1.0 / 3, -1e300, 5e-324, 123456789.125, 1e22, 0.0,
                               std::numeric_limits<double>::max()}) {
        EXPECT_EQ(TextToReal(WideToUtf8(RealToText(value))), value);
    }
    EXPECT_EQ(RealToText(0.1), L"0.1");
    EXPECT_EQ(RealToText(25), L"25");
}
