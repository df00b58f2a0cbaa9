#include "platform/win/String.h"

#include <gtest/gtest.h>

#include "platform/win/CodePage.h"
#include "tests/support/Rows.h"

TEST(CString, PositionsOutsideTheTextAreClamped) {
    const CString text = L"abcdef";
    const Rows<const char*, CString, const wchar_t*> cases = {
        {"Left, negative", text.Left(-1), L""},
        {"Left, too many", text.Left(99), L"abcdef"},
        {"Right", text.Right(2), L"ef"},
        {"Right, negative", text.Right(-3), L""},
        {"Right, too many", text.Right(7), L"abcdef"},
        {"Mid, after the end", text.Mid(6), L""},
        {"Mid, negative", text.Mid(-2, 2), L"ab"},
        {"Mid, too many", text.Mid(4, 99), L"ef"},
        {"Mid, negative count", text.Mid(2, -1), L""},
        {"a repeated character, negative count", CString(L'x', -1), L""},
    };
    for (const auto& [what, part, expected] : cases) {
        EXPECT_EQ(part.Str(), expected) << what;
    }
    EXPECT_EQ(text.Find(L"cd", -5), 2);
    EXPECT_EQ(text.Find(L"cd", 3), -1);
    EXPECT_EQ(text.Find(L'f', 99), -1);
    EXPECT_EQ(text.ReverseFind(L'x'), -1);
}

TEST(CString, NullIsAnEmptyText) {
    const wchar_t* const null = nullptr;
    EXPECT_TRUE(CString(null).IsEmpty());
    EXPECT_EQ(CString(L"a").Compare(null), 1);
    EXPECT_EQ((CString(L"a") + null).Str(), L"a");
    EXPECT_EQ(CString().CompareNoCase(null), 0);
}

TEST(CString, CompareNoCaseComparesByCharacter) {
    const Rows<const wchar_t*, const wchar_t*, int> cases = {
        {L"Straße", L"STRAßE", 0}, {L"ÄÖÜ", L"äöü", 0},     {L"Žižka", L"žIŽKA", 0},
        {L"Ωμέγα", L"ωΜέγΑ", 0},   {L"Труба", L"ТРУБА", 0}, {L"abc", L"abd", -1},
        {L"abc", L"ab", 1},        {L"_", L"a", -1},        {L"×", L"÷", -1},
    };
    for (const auto& [left, right, sign] : cases) {
        const int result = CString(left).CompareNoCase(right);
        EXPECT_EQ((result > 0) - (result < 0), sign) << WideToUtf8(left);
    }
}

TEST(CString, UpperAndLowerCaseAreInverse) {
    for (wchar_t c = 1; c < 0x500; ++c) {
        if (ToLower(c) != c) {
            EXPECT_EQ(ToUpper(ToLower(c)), c) << static_cast<int>(c);
            EXPECT_EQ(ToLower(ToLower(c)), ToLower(c)) << static_cast<int>(c);
        }
        if (ToUpper(c) != c) {
            EXPECT_EQ(ToLower(ToUpper(c)), c) << static_cast<int>(c);
        }
    }
}

TEST(CString, TrimRemovesWhiteSpaceAtBothEndsOnly) {
    EXPECT_EQ(CString(L" \t\r\n a b \v").Trim().Str(), L"a b");
    EXPECT_EQ(CString(L" \n ").Trim().Str(), L"");
}

TEST(CString, ReplaceDoesNotMatchInsertedText) {
    CString text = L"aaa";
    EXPECT_EQ(text.Replace(L"a", L"aa"), 3);
    EXPECT_EQ(text.Str(), L"aaaaaa");
    EXPECT_EQ(text.Replace(L"", L"x"), 0);
    EXPECT_EQ(text.Replace(L"aaaa", L""), 1);
    EXPECT_EQ(text.Str(), L"aa");
    EXPECT_EQ(text.Replace(text.View(), L"b"), 1);
    EXPECT_EQ(text.Str(), L"b");
}

TEST(CString, FormatMayUseTheTextItself) {
    CString text = L"x";
    text.Format(L"%s%s", text, text);
    text.AppendFormat(L"-%s", text);
    EXPECT_EQ(text.Str(), L"xx-xx");
}
