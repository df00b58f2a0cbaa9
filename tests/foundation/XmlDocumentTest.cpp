#include <gtest/gtest.h>

#include "platform/win/CodePage.h"
#include "tests/support/Rows.h"
#include "workspacecore/foundation/XmlDocument.h"

namespace Orvane {
namespace {

std::string Narrow(const CString& strText) {
    return WideToUtf8(strText.View());
}

/// All elements in document order, indented by one dot per level.
std::string Walk(XmlDocument& doc, int nLevel = 0) {
    std::string walked;
    while (doc.FindElem()) {
        walked +=
            std::string(static_cast<std::size_t>(nLevel), '.') + Narrow(doc.GetAttrib(L"n")) + " ";
        EXPECT_TRUE(doc.IntoElem());
        walked += Walk(doc, nLevel + 1);
        EXPECT_TRUE(doc.OutOfElem());
    }
    return walked;
}

XmlDocument Doc(const wchar_t* pszText) {
    XmlDocument doc;
    doc.SetDoc(pszText);
    return doc;
}

TEST(XmlDocument, TellsWhetherATextIsWellFormed) {
    const Rows<const wchar_t*, bool, const char*> cases = {
        {nullptr, false, "Empty document"},
        {L"", false, "Empty document"},
        {L"  ", false, "No root element"},
        {L"<!-- a -->", false, "No root element"},
        {L"<a/>", true, ""},
        {L"<?xml version=\"1.0\"?>\n<a><b></b></a>\n", true, ""},
        {L"text<a/>text", true, ""},
        {L"<a/><b/>", false, "Root element has sibling"},
        {L"<a><b></a>", false, "End tag 'a' at offset 7 does not match start tag 'b' at offset 3"},
        {L"</a>", false, "No root element"},
        {L"<a", false, "No root element"},
        {L"<a><b", false, "Element tag at offset 3 unterminated"},
        {L"<a><1b/></a>", false, "Incorrect tag name character at offset 3"},
        {L"<a b=c/>", false, "Element 'a' at offset 0 not ended"},
        {L"<a><b>", false, "Root element has sibling"},
        {L"<a b=\"x>y\"/>", true, ""},
    };
    XmlDocument doc; // one for all: nothing of a text may stay for the next
    for (const auto& [text, wellFormed, error] : cases) {
        EXPECT_EQ(doc.SetDoc(text), wellFormed) << (text ? WideToUtf8(text) : "null");
        EXPECT_EQ(Narrow(doc.GetError()), error);
        EXPECT_EQ(doc.GetDoc(), CString(text));
    }
}

TEST(XmlDocument, AnswersNothingBeforeItHasAText) {
    XmlDocument doc;
    EXPECT_FALSE(doc.FindElem());
    EXPECT_FALSE(doc.IntoElem());
    EXPECT_FALSE(doc.OutOfElem());
    EXPECT_EQ(doc.GetAttrib(L"a"), L"");
    EXPECT_EQ(doc.GetError(), L"");
    XmlDocument copy(doc);
    EXPECT_FALSE(copy.FindElem());
    EXPECT_TRUE(copy.SetDoc(L"<a/>"));
}

TEST(XmlDocument, FindsTheNextSiblingOfAName) {
    const Rows<const wchar_t*, const char*> cases = {
        {nullptr, "1"},      {L"", "1"},         {L"wsCommandRegistry", "1"},
        {L"wsCommand", "2"}, {L"wsCom", ""},     {L"wsCommand[2]", "2"},
        {L"a=b", "3"},       {L"wscommand", ""}, {L"\u00E9\u0416", "4"},
    };
    for (const auto& [name, found] : cases) {
        XmlDocument doc = Doc(L"<r><wsCommandRegistry n='1'/><wsCommand n='2'/><a!b n='3'/>"
                              L"<\u00E9\u0416 n='4'/></r>");
        doc.FindElem();
        doc.IntoElem();
        EXPECT_EQ(doc.FindElem(name), *found != '\0') << found;
        EXPECT_EQ(Narrow(doc.GetAttrib(L"n")), found);
    }
}

TEST(XmlDocument, SearchesOnFromWhereItStands) {
    XmlDocument doc = Doc(L"<r><a n='1'><c n='2'/></a><b n='3'/><a n='4'/></r>");
    EXPECT_FALSE(doc.IntoElem()) << "nothing is current";
    EXPECT_FALSE(doc.OutOfElem());
    ASSERT_TRUE(doc.FindElem(L"r"));
    EXPECT_FALSE(doc.FindElem(L"r"));
    EXPECT_FALSE(doc.OutOfElem()) << "the root element has no parent to go to";
    ASSERT_TRUE(doc.IntoElem());
    EXPECT_EQ(doc.GetAttrib(L"n"), L"") << "inside, but on no child yet";
    EXPECT_FALSE(doc.IntoElem());
    ASSERT_TRUE(doc.FindElem(L"a"));
    EXPECT_FALSE(doc.FindElem(L"c")) << "a child, not a sibling";
    EXPECT_EQ(doc.GetAttrib(L"n"), L"1") << "a vain search moves nothing";
    ASSERT_TRUE(doc.IntoElem());
    ASSERT_TRUE(doc.FindElem(L"c"));
    ASSERT_TRUE(doc.OutOfElem());
    EXPECT_EQ(doc.GetAttrib(L"n"), L"1");
    ASSERT_TRUE(doc.IntoElem());
    EXPECT_EQ(doc.GetAttrib(L"n"), L"2") << "the child that was left is found again";
    ASSERT_TRUE(doc.OutOfElem());
    ASSERT_TRUE(doc.FindElem(L"a"));
    EXPECT_EQ(doc.GetAttrib(L"n"), L"4");
    EXPECT_FALSE(doc.FindElem());
}

TEST(XmlDocument, CutsAttributesOut) {
    const Rows<const wchar_t*, const char*> cases = {
        {L"<a/>", ""},
        {L"<a b=\"c d\"/>", "c d"},
        {L"<a b='c \"d\"'/>", "c \"d\""},
        {L"<a b = \n'c'/>", "c"},
        {L"<a b=c/>", "c/"},
        {L"<a b=c />", "c"},
        {L"<a b=/x/y?z=1></a>", "/x/y?z=1"},
        {L"<a b==c></a>", "=c"},
        {L"<a b=></a>", ""},
        {L"<a b=''/>", ""},
        {L"<a b c='d'/>", "b"},
        {L"<a b></a>", "b"},
        {L"<a x='b' y='b=c' b='d'/>", "d"},
        {L"<a b='1' b='2'/>", "1"},
        {L"<a bb='1' b='2'/>", "2"},
        {L"<a B='1' b='2'/>", "2"},
        {L"<a x = b b=2 />", "2"},
        {L"<a =b b='2'/>", "2"},
        {L"<b x='1'/>", ""},
        {L"<b b='1'/>", "1"},
        {L"<a / b='1'></a>", ""},
        {L"<a ? b='1'></a>", ""},
        {L"<a></a> b='1'", ""},
        {L"<a b='&lt;&#65;&amp;amp;'/>", "<A&amp;"},
        {L"<a b='\u20AC\U0001F600'/>", "\xE2\x82\xAC\xF0\x9F\x98\x80"},
        {L"<a b='=3D'/>", "=3D"},
    };
    for (const auto& [element, value] : cases) {
        XmlDocument doc = Doc(element);
        ASSERT_TRUE(doc.FindElem()) << WideToUtf8(element);
        EXPECT_EQ(Narrow(doc.GetAttrib(L"b")), value) << WideToUtf8(element);
    }
    XmlDocument doc = Doc(L"<a b='1'/>");
    doc.FindElem();
    EXPECT_EQ(doc.GetAttrib(L"b[1]"), L"1");
    EXPECT_EQ(doc.GetAttrib(L""), L"");
    EXPECT_EQ(doc.GetAttrib(nullptr), L"");
}

TEST(XmlDocument, IgnoresCaseOnDemand) {
    XmlDocument doc;
    doc.SetDocFlags(XmlDocument::kIgnoreCase);
    EXPECT_TRUE(doc.SetDoc(L"<Root Name='1'></rOOT>"));
    EXPECT_TRUE(doc.FindElem(L"root"));
    EXPECT_EQ(doc.GetAttrib(L"NAME"), L"1");
    const XmlDocument copy(doc);
    EXPECT_EQ(copy.GetAttrib(L"nAME"), L"1");
}

TEST(XmlDocument, CopiesGoTheirOwnWays) {
    std::wstring strText = L"<r>";
    for (int i = 0; i < 100000; ++i) {
        strText += L"<a n='1'/>";
    }
    strText += L"<b n='2'/></r>";
    XmlDocument doc = Doc(strText.c_str());
    doc.FindElem();
    doc.IntoElem();
    doc.FindElem(L"a");
    XmlDocument copy(doc);
    XmlDocument assigned = Doc(L"<x/><y/>");
    assigned = doc;
    const XmlDocument moved(std::move(doc));
    doc = XmlDocument();
    EXPECT_FALSE(doc.FindElem());
    for (XmlDocument* pCopy : {&copy, &assigned}) {
        EXPECT_EQ(pCopy->GetDoc(), CString(strText));
        EXPECT_TRUE(pCopy->FindElem(L"b"));
        EXPECT_EQ(pCopy->GetAttrib(L"n"), L"2");
        EXPECT_FALSE(pCopy->FindElem());
        EXPECT_TRUE(pCopy->SetDoc(L"<c/>"));
    }
    EXPECT_EQ(moved.GetAttrib(L"n"), L"1") << "the cursor comes along";
}

TEST(XmlDocument, EscapesEntities) {
    constexpr int kQuotes = XmlDocument::kEscapeQuotes;
    constexpr int kKeep = XmlDocument::kEscapeKeepReferences;
    const Rows<const wchar_t*, int, const wchar_t*> cases = {
        {L"<a b='c' & \"d\">", 0, L"&lt;a b='c' &amp; \"d\"&gt;"},
        {L"<a b='c' & \"d\">", kQuotes, L"&lt;a b=&apos;c&apos; &amp; &quot;d&quot;&gt;"},
        {L"&amp;", 0, L"&amp;amp;"},
        {L"&amp;", kKeep, L"&amp;"},
        {L"a&b", kKeep, L"a&amp;b"},
        {L"&x", kKeep, L"&amp;x"},
        {L"&", kKeep, L"&amp;"},
        {L"&;", kKeep, L"&amp;;"},
        {L"&#;&#1;&#x1F;", kKeep, L"&#;&#1;&#x1F;"},
        {L"&1;&-;&.;", kKeep, L"&amp;1;&amp;-;&amp;.;"},
        {L"&a1-.:_Z;&:;&_;", kKeep, L"&a1-.:_Z;&:;&_;"},
        {L"&a#;&a b;&a", kKeep, L"&amp;a#;&amp;a b;&amp;a"},
        {L"&\u00E9\u20AC;", kKeep, L"&\u00E9\u20AC;"},
        {L"&&amp;<", kKeep, L"&amp;&amp;&lt;"},
    };
    for (const auto& [text, flags, escaped] : cases) {
        EXPECT_EQ(XmlDocument::EscapeEntities(text, flags), escaped) << WideToUtf8(text);
    }
}

TEST(XmlDocument, UnescapesEntities) {
    using namespace std::string_view_literals;
    const std::pair<std::wstring_view, std::wstring_view> cases[] = {
        {L"a&lt;&amp;&gt;&apos;&quot;b", L"a<&>'\"b"},
        {L"&amp;lt;", L"&lt;"},
        {L"&foo; &lt &", L"&foo; &lt &"},
        {L"&LT;", L"&LT;"},
        {L"&#65;&#x42;&#x1F600;", L"AB\U0001F600"},
        {L"&#X41;", L"\0&#X41;"sv},
        {L"&#0000065;", L"A"},
        {L"&#00000065;", L"&#00000065;"},
        {L"&#x0000041;&#x00000041;", L"A&#x00000041;"},
        {L"&#65", L"&#65"},
        {L"&#&lt;", L"\0&#<"sv},
        {L"&#&#65;", L"\0&#A"sv},
        {L"&# 65;&#65z;&#+66;", L"AAB"},
        {L"&#0;x", L"\0&#0;x"sv},
        {L"&#;&#x;", L"\0&#;\0&#x;"sv},
    };
    for (const auto& [text, plain] : cases) {
        EXPECT_EQ(XmlDocument::UnescapeEntities(text).View(), plain) << WideToUtf8(text);
    }
    EXPECT_EQ(XmlDocument::UnescapeEntities(std::wstring_view(L"&lt;").substr(0, 3)), L"&lt");
}

TEST(XmlDocument, WrapsCDataAroundItsOwnEndMark) {
    EXPECT_EQ(XmlDocument::WrapCData(L"a<b"), L"<![CDATA[a<b]]>");
    EXPECT_EQ(XmlDocument::WrapCData(L""), L"<![CDATA[]]>");
    EXPECT_EQ(XmlDocument::WrapCData(L"a]]>b]]>"), L"<![CDATA[a]]]]><![CDATA[>b]]]]><![CDATA[>]]>");
    const CString strDoc = L"<a>" + XmlDocument::WrapCData(L"]]></a>]]>") + L"</a>";
    EXPECT_TRUE(XmlDocument().SetDoc(strDoc));
}

} // namespace
} // namespace Orvane
