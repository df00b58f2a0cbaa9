#include "platform/win/CodePage.h"
#include "tests/support/Rows.h"

#include <gtest/gtest.h>
#include <set>

TEST(CodePage, All256BytesRoundTrip) {
    std::set<wchar_t> characters;
    for (int byte = 0; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        const std::wstring wide = AnsiToWide(one);
        ASSERT_EQ(wide.size(), 1U);
        EXPECT_EQ(WideToAnsi(wide), one) << byte;
        EXPECT_EQ(AnsiToWide(static_cast<unsigned char>(byte)), wide[0]) << byte;
        characters.insert(wide[0]);
    }
    EXPECT_EQ(characters.size(), 256U);
}

TEST(CodePage, ConvertsCharactersInThePage) {
    EXPECT_EQ(AnsiToWide("\x80\x99\xE4\x81"), L"€™ä\x81");
    EXPECT_EQ(WideToAnsi(L"€™äЖ𝄞"), "\x80\x99\xE4??");
    // A control character whose byte has another meaning in the page is not in the page.
    EXPECT_EQ(WideToAnsi(std::wstring{wchar_t{0x80}}), "?");
}

TEST(Utf8, IllFormedSequencesBecomeReplacementCharacters) {
    const std::wstring mark{wchar_t{0xFFFD}};
    const Rows<const char*, std::string, std::wstring> cases = {
        {"longest", "\xF4\x8F\xBF\xBF", {wchar_t{0x10FFFF}}},
        {"beyond the last character", "\xF4\x90\x80\x80", mark + mark + mark + mark},
        {"overlong", "\xC0\xAF", mark + mark},
        {"overlong, three bytes", "\xE0\x80\xAF", mark + mark + mark},
        {"surrogate", "\xED\xA0\x80", mark + mark + mark},
        {"truncated by the end", "a\xE2\x82", L"a" + mark + mark},
        {"truncated by a letter", "\xE2\x82z", mark + mark + L"z"},
        {"lone continuation", "\x80z", mark + L"z"},
        {"invalid bytes", "\xFF\xFE", mark + mark},
        {"NUL is a character", std::string("a\0b", 3), std::wstring(L"a\0b", 3)},
    };
    for (const auto& [what, bytes, expected] : cases) {
        EXPECT_EQ(Utf8ToWide(bytes), expected) << what;
    }
}

TEST(Utf8, EveryScalarValueRoundTrips) {
    for (std::uint32_t code = 1; code <= 0x10FFFF; code += code < 0x3000 ? 1 : 97) {
        const std::wstring one{static_cast<wchar_t>(code)};
        const bool isScalar = code < 0xD800 || code > 0xDFFF;
        const std::wstring back = Utf8ToWide(WideToUtf8(one));
        ASSERT_EQ(back, isScalar ? one : std::wstring{wchar_t{0xFFFD}}) << code;
    }
    EXPECT_EQ(WideToUtf8(std::wstring{wchar_t{0x110000}, wchar_t{-1}}), "\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Utf8, APieceEndsBeforeAnIncompleteSequence) {
    const std::string text = "aä€𝄞b";
    const std::wstring whole = Utf8ToWide(text);
    for (std::size_t cut = 0; cut <= text.size(); ++cut) {
        const std::size_t finished = FinishedUtf8Length(std::string_view(text).substr(0, cut));
        ASSERT_LE(finished, cut);
        EXPECT_EQ(Utf8ToWide(text.substr(0, finished)) + Utf8ToWide(text.substr(finished)), whole)
            << cut;
    }
    // Bytes that can never form a character are not held back.
    EXPECT_EQ(FinishedUtf8Length("a\x80\x80"), 3U);
    EXPECT_EQ(FinishedUtf8Length("a\xFF"), 2U);
}
