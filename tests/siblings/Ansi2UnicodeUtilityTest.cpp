#include "siblings/conversion/Ansi2UnicodeUtility.h"

#include <gtest/gtest.h>

#include "platform/win/CodePage.h"

using Orvane::CAnsi2UnicodeUtility;

TEST(Ansi2Unicode, ConvertsBothWays) {
    CAnsi2UnicodeUtility& utility = *CAnsi2UnicodeUtility::Instance();
    EXPECT_STREQ(utility.AnsiToUnicode("gr\xFC\xDF \x80"), L"grüß €");
    EXPECT_STREQ(utility.UnicodeToAnsi(L"grüß € Ж"), "gr\xFC\xDF \x80 ?");
    EXPECT_STREQ(utility.AnsiToUnicode(""), L"");
    std::wstring text; // longer than one conversion chunk
    for (wchar_t c = 1; c < 1000; ++c) {
        text += c;
    }
    EXPECT_EQ(utility.UnicodeToAnsi(text), WideToAnsi(text));
}

TEST(Ansi2Unicode, WorksInTheReservedMemory) {
    CAnsi2UnicodeUtility& utility = *CAnsi2UnicodeUtility::Instance();
    EXPECT_EQ(utility.GetBufferCapacity(), 0U);
    utility.ReserveBufferMemory(1024);
    EXPECT_GE(utility.GetBufferCapacity(), 1024U);
    const wchar_t* const wide = utility.AnsiToUnicode("a");
    const char* const ansi = utility.UnicodeToAnsi(L"a");
    const std::string longest(1024, 'x');
    EXPECT_EQ(utility.AnsiToUnicode(longest), wide);
    EXPECT_EQ(utility.UnicodeToAnsi(AnsiToWide(longest)), ansi);
    EXPECT_EQ(ansi, longest);
    utility.ReleaseBufferMemory();
    EXPECT_EQ(utility.GetBufferCapacity(), 0U);
    EXPECT_EQ(utility.UnicodeToAnsi(AnsiToWide(longest)), longest); // also without reserved buffers
}
