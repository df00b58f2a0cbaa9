#include <gtest/gtest.h>

#include "platform/win/CodePage.h"
#include "workspacecore/foundation/XmlDocument.h"
#include "workspacecore/foundation/XmlField.h"

namespace Orvane {
namespace {

TEST(XmlField, EncodesValues) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {
        {L"", L""},
        {nullptr, L""},
        {L"plain {text}\t1~\x7F", L"plain {text}\t1~\x7F"},
        {L"=", L"=3D"},
        {L"a=3D", L"a=3D3D"},
        {L"<'&\">", L"&lt;&apos;&amp;&quot;&gt;"},
        {L"&amp; &x", L"&amp; &amp;x"},
        {L"\u00E8", L"=EF=BF=A8"},
        {L"\u2026", L"=EF=BE=85"}, // byte 0x85 of the code page
        {L"\u20AC\u00FF", L"=EF=BE=80=EF=BF=BF"},
        {L"\u4E2D", L"?"},
    };
    for (const auto& [value, field] : cases) {
        EXPECT_EQ(EncodeXmlField(value), field) << WideToUtf8(field);
    }
}

TEST(XmlField, DecodesPairsAndSequences) {
    using namespace std::string_view_literals;
    const std::pair<const wchar_t*, std::wstring_view> cases[] = {
        {L"", L""},
        {nullptr, L""},
        {L"&lt;=3D&amp;", L"<=&"},
        {L"=EF=BF=A8=EF=BE=85", L"\u00E8\u2026"},
        {L"\u00E8", L"\u00E8"}, // a letter of the code page, not encoded
        {L"=C3=A8", L"\u00E8"},
        {L"=C2=A9", L"\u00A9"},
        {L"=F0=9F=98=80", L"\0"sv},
        {L"=F8=80=80=83=A8x", L"\u00E8x"},
        {L"=FC=80=80=80=83=A8x", L"\u00E8x"},
        {L"=41=7E", L"A~"},
        {L"=3d=zz", L"0\0"sv}, // lower case digits count as 0
        // A byte that cannot start a sequence only loses its "=".
        {L"=7F=80=BF", L"7F80BF"},
        {L"=FE=FF", L"FEFF"},
        // Decoding stops at an incomplete sequence.
        {L"a=", L"a"},
        {L"a=3", L"a"},
        {L"a=EF=BF", L"a"},
        {L"a=EF=BF=A", L"a"},
        {L"a=FC=80=80=80=83=A", L"a"},
        {L"=EF=BFxA8", L"\u00E8"}, // only the positions of the digits matter
    };
    for (const auto& [field, value] : cases) {
        EXPECT_EQ(DecodeXmlField(field).View(), value) << WideToUtf8(field ? field : L"");
    }
}

TEST(XmlField, BringsBackEveryCharacterOfThePage) {
    std::wstring strAll;
    for (int nByte = 1; nByte < 256; ++nByte) {
        strAll += AnsiToWide(static_cast<unsigned char>(nByte));
    }
    const CString strField = EncodeXmlField(strAll.c_str());
    EXPECT_EQ(DecodeXmlField(strField).Str(), strAll);

    XmlDocument doc;
    ASSERT_TRUE(doc.SetDoc(L"<a b=\"" + strField + L"\"/>"));
    doc.FindElem();
    EXPECT_EQ(DecodeXmlField(doc.GetAttrib(L"b")).Str(), strAll);
}

TEST(XmlField, DecodesEntitiesTwiceBehindAnAttribute) {
    XmlDocument doc;
    doc.SetDoc(L"<a b='&amp;lt;'/>");
    doc.FindElem();
    EXPECT_EQ(DecodeXmlField(doc.GetAttrib(L"b")), L"<");
}

} // namespace
} // namespace Orvane
