#include "platform/arx/EdPrompt.h"

#include <gtest/gtest.h>

#include "platform/arx/Activity.h"
#include "tests/support/TestHost.h"

TEST(Prompt, AnAnswerIsCutToTheBufferAndEnded) {
    TestHost host;
    wchar_t buffer[4] = L"###";
    host.Answer({L"abcdef", L"", L"\x1B"});
    EXPECT_EQ(acedGetString(0, L"? ", buffer, 4), RTNORM);
    EXPECT_STREQ(buffer, L"abc");
    EXPECT_EQ(acedGetString(0, L"? ", buffer, 4), RTNORM);
    EXPECT_STREQ(buffer, L"");
    EXPECT_EQ(acedGetString(0, L"? ", buffer, 4), RTCAN);
    EXPECT_EQ(host.Output(), "? ? ? ");
}

TEST(Prompt, WithoutABufferNobodyIsAsked) {
    TestHost host; // throws at a prompt without an answer
    wchar_t one = L'x';
    EXPECT_EQ(acedGetString(0, L"?", nullptr, 5), RTERROR);
    EXPECT_EQ(acedGetString(0, L"?", &one, 0), RTERROR);
    host.Answer({L"long"});
    EXPECT_EQ(acedGetString(0, nullptr, &one, 1), RTNORM);
    EXPECT_EQ(one, L'\0');
}

TEST(Prompt, PrintedTextsAreFormatted) {
    TestHost host;
    acutPrintf(L"\n%s: %d", L"Länge", 3);
    acutPrint(L"%d");
    EXPECT_EQ(host.Output(), "\nLänge: 3%d");
}

TEST(Activity, AnExceptionNamesTheInnermostActivity) {
    EXPECT_TRUE(TakeInterruptedActivity().IsEmpty());
    try {
        const ActivityScope outer(L"Outer.arx", L"hook 1");
        const ActivityScope inner(L"Inner.arx", L"hook 2");
        throw std::runtime_error("x");
    } catch (const std::runtime_error&) {
    }
    EXPECT_EQ(TakeInterruptedActivity().Str(), L"Inner.arx: hook 2");
    EXPECT_TRUE(TakeInterruptedActivity().IsEmpty());
    { const ActivityScope quiet(L"Quiet.arx", L"hook"); }
    EXPECT_TRUE(TakeInterruptedActivity().IsEmpty());
}
