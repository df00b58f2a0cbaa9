#include "platform/arx/EdPrompt.h"

#include <gtest/gtest.h>

#include "platform/arx/Activity.h"
#include "tests/support/TestHost.h"

TEST(Prompt, AnAnswerIsTruncatedToTheBufferAndTerminated) {
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

TEST(Prompt, AHugeValueDoesNotHideTheQuestion) {
    TestHost host;
    host.Answer({L"x"});
    CString answer;
    const CString prompt = L"Name <" + CString(std::wstring(1'000'000, L'v')) + L">: ";
    EXPECT_EQ(acedGetString(0, prompt, answer), RTNORM);
    EXPECT_LT(host.Output().size(), 3000U);
    EXPECT_TRUE(host.Output().ends_with("v>: "));
}

TEST(Prompt, DoesNotAskWithoutABuffer) {
    TestHost host; // throws at an unexpected prompt
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

TEST(Prompt, AChoiceIsFoundByKeywordTextOrUniquePrefix) {
    const ChoicePrompt prompt{
        L"Match", {{L"All", L"Alle"}, {L"Any", L"Eine"}, {L"No", L"Nein"}, {L"Even", L"A"}}, 1};
    EXPECT_EQ(PromptText(prompt).Str(), L"Match [Alle/Eine/Nein/A] <Eine>: ");
    constexpr int kNone = -1;
    const std::pair<const wchar_t*, int> cases[] = {
        {L"", 1},    {L"  ", 1},        {L"all", 0},   {L"_all", 0},   {L"ALLE", 0},
        {L"any", 1}, {L" _Any ", 1},    {L"ei", 1},    {L"ein", 1},    {L"ne", 2},
        {L"n", 2},   {L"_n", 2},        {L"a", 3},     {L"_a", kNone}, {L"_al", 0},
        {L"ev", 3},  {L"_eine", kNone}, {L"_", kNone}, {L"x", kNone},  {L"allesamt", kNone},
    };
    for (const auto& [answer, choice] : cases) {
        EXPECT_EQ(static_cast<int>(FindChoice(prompt, answer).value_or(kNone)), choice) << answer;
    }
}

TEST(Prompt, AnAnswerThatIsNotAChoiceIsReportedOnce) {
    TestHost host;
    host.Answer({L"perhaps", L"y", L"\x1B", L"", L"2.5"});
    EXPECT_FALSE(acedAskYes(L"Replace it?"));
    EXPECT_EQ(host.TakeOutput(), "Replace it? [Yes/No] <No>: \"perhaps\" is not one of Yes/No.\n");
    EXPECT_TRUE(acedAskYes(L"?"));
    EXPECT_FALSE(acedAskYes(L"?"));
    EXPECT_FALSE(acedAskYes(L"?"));
    std::size_t choice = 7;
    CString other;
    EXPECT_EQ(acedGetChoice({L"Factor or", {YesChoice()}, 0, true}, choice, other), RTERROR);
    EXPECT_EQ(other.Str(), L"2.5");
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
