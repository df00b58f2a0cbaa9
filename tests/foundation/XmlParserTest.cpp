#include <chrono>
#include <gtest/gtest.h>

#include "platform/win/CodePage.h"
#include "tests/support/Rows.h"
#include "workspacecore/foundation/XmlParser.h"

namespace Orvane {
namespace {

/// A text and its parsed index.
class Parsed {
public:
    explicit Parsed(std::wstring text, bool bIgnoreCase = false) : m_text(std::move(text)) {
        m_index.Reserve(8);
        m_index[0] = {};
        m_strError = XmlParser(m_text, m_index, m_nPosFree, bIgnoreCase).Run();
    }

    const XmlNodePos& operator[](int nRecord) const { return m_index[nRecord]; }
    int Elements() const { return m_nPosFree - 1; }
    std::string Error() const { return WideToUtf8(m_strError.View()); }
    bool IllFormed() const { return (m_index[0].flags & XML_FLAG_ILL_FORMED) != 0; }

    /// The elements as "r(a/ b(c) d!~)": "/" a single tag, "!" no end tag, "~" an error in the
    /// content.
    std::string Shape(int nParent = 0) const {
        std::string shape;
        for (int nRecord = m_index[nParent].child; nRecord != 0; nRecord = m_index[nRecord].next) {
            const XmlNodePos& node = m_index[nRecord];
            shape += shape.empty() ? "" : " ";
            shape += static_cast<char>(m_text[static_cast<std::size_t>(node.start) + 1]);
            shape += (node.flags & XML_FLAG_EMPTY) != 0 ? "/" : "";
            shape += (node.flags & XML_FLAG_NO_END_TAG) != 0 ? "!" : "";
            shape += (node.flags & XML_FLAG_CONTENT_ERROR) != 0 ? "~" : "";
            if (node.child != 0) {
                (shape += "(").append(Shape(nRecord)) += ")";
            }
        }
        return shape;
    }

private:
    std::wstring m_text;
    XmlIndex m_index;
    int m_nPosFree = 1;
    CString m_strError;
};

std::wstring Repeat(std::wstring_view text, int nTimes) {
    std::wstring result;
    for (int i = 0; i < nTimes; ++i) {
        result += text;
    }
    return result;
}

struct ShapeCase {
    const wchar_t* text;
    const char* shape;
    const char* error;
};

TEST(XmlParser, KeepsWhatAnIllFormedTextHolds) {
    const ShapeCase cases[] = {
        {L"<r><a><b/></a><c></c></r>", "r(a(b/) c)", ""},
        {L"<r>text<a/> <!-- <no/> --><![CDATA[<no/>]]><?no <no/>?></r>", "r(a/)", ""},
        // Unclosed tags pass their children on to their parent, in order.
        {L"<r><a><b></r>", "r(a! b!)",
         "End tag 'r' at offset 10 does not match start tag 'b' at offset 6"},
        {L"<r><a><b/><c>x<d><e/></d><f></r>", "r(a! b/ c! d(e/) f!)",
         "End tag 'r' at offset 29 does not match start tag 'f' at offset 25"},
        {L"<r><a></a><b><c/><d/></r>", "r(a b! c/ d/)",
         "End tag 'r' at offset 22 does not match start tag 'b' at offset 10"},
        {L"<r><a><b></a><c/></r>", "r(a(b!) c/)",
         "End tag 'a' at offset 10 does not match start tag 'b' at offset 6"},
        {L"<r><a>", "r! a!", "Element 'a' at offset 3 not ended"},
        {L"<a b=c/>", "a!", "Element 'a' at offset 0 not ended"},
        // An unmatched end tag marks the enclosing element.
        {L"<r><a></b></a><c></r>", "r(a~ c!)", "No start tag for end tag 'b' at offset 6"},
        {L"<r><a></x><b></r>", "r~(a!~ b!)", "No start tag for end tag 'x' at offset 6"},
        {L"<r></x>", "r!~", "No start tag for end tag 'x' at offset 3"},
        {L"</a><r/>", "r/", "No start tag for end tag 'a' at offset 0"},
        {L"<r></ r></r>", "r~", "No start tag for end tag '' at offset 3"},
        {L"<r><1/><a/></r>", "r~(a/)", "Incorrect tag name character at offset 3"},
    };
    for (const ShapeCase& c : cases) {
        const Parsed parsed(c.text);
        EXPECT_EQ(parsed.Shape(), c.shape) << WideToUtf8(c.text);
        EXPECT_EQ(parsed.Error(), c.error) << WideToUtf8(c.text);
        EXPECT_EQ(parsed.IllFormed(), *c.error != '\0') << WideToUtf8(c.text);
    }
}

TEST(XmlParser, ComparesTheNamesOfTags) {
    const Rows<const wchar_t*, bool, bool> cases = {
        {L"<aa></aa>", false, true},    {L"<aa></aa \n>", false, true},
        {L"<aa></aa b>", false, true},  {L"<aa></a>", false, false},
        {L"<aa></aaa>", false, false},  {L"<aa></AA>", false, false},
        {L"<aa></AA>", true, true},     {L"<\u00E9\u0416></\u00C9\u0436>", true, true},
        {L"<aa></aa[2]>", false, true}, {L"<a=b></a=b>", false, true},
    };
    for (const auto& [text, ignoreCase, matches] : cases) {
        EXPECT_EQ(!Parsed(text, ignoreCase).IllFormed(), matches) << WideToUtf8(text);
    }
}

TEST(XmlParser, FindsTheEndOfTokens) {
    const Rows<const wchar_t*, const char*> wellFormed = {
        {L"<a b=\"x>y\" c='\">' d=\"'>\"/>", "a/"},
        {L"<a b='x>y; long enough for wide steps' c='\">\">\">' d=\"'>'>'>'>\"/>", "a/"},
        {L"<a b=\"0123456789abcdef>0123456789abcdef>\" c=\"\" d=\"\" e=\"\"/>", "a/"},
        {L"<a\"></a\">", "a"},
        {L"<a/>", "a/"},
        {L"<a\t\r\n/>", "a/"},
        {L"<a b='c'/>", "a/"},
        {L"<a b=c //></a>", "a"},
        {L"<a b/></a>", "a"},
        {L"<a//></a>", "a"},
        {L"<!DOCTYPE a [<!ELEMENT a (b)> '>]' <x>]><a/>", "a/"},
        {L"<!ENTITY x '><!ATTLIST y><!NOTATION <z><a/>", "a/"},
        {L"<!--><a/><!-- --><!-- -- > ->-->", "a/"},
        {L"<?><a/><?x ?x>?>", "a/"},
        {L"<a><![C]]>]]<![CDATA[]>]]]]></a>", "a"},
        {L"<{|}~/>", "{/"},
        {L"\xFEFF<a/>\n", "a/"},
    };
    for (const auto& [text, shape] : wellFormed) {
        const Parsed parsed(text);
        EXPECT_EQ(parsed.Shape(), shape) << WideToUtf8(text);
        EXPECT_EQ(parsed.Error(), "") << WideToUtf8(text);
    }
}

TEST(XmlParser, NamesTheTokenInError) {
    const Rows<const wchar_t*, const char*, const char*> cases = {
        {L"<", "", "tag at offset 0 unterminated"},
        {L" <!", "", "tag at offset 1 unterminated"},
        {L"<!-", "", "tag at offset 0 unterminated"},
        {L"<![", "", "tag at offset 0 unterminated"},
        {L"<a b='>", "", "Element tag at offset 0 unterminated"},
        {L"<a></a", "a!~", "Element end tag at offset 3 unterminated"},
        {L"<?a >", "", "Processing instruction at offset 0 unterminated"},
        {L"<!-- ->", "", "Comment at offset 0 unterminated"},
        {L"<![CDATA[ ]>", "", "CDATA Section at offset 0 unterminated"},
        {L"<!DOCTYPE <x>", "", "Doctype at offset 0 unterminated"},
        {L"<!ENTITY ''", "", "Doctype at offset 0 unterminated"},
        {L"<!-x><a/>", "a/", "Incorrect comment tag at offset 0"},
        {L"<!-><a/>", "a/", "Incorrect comment tag at offset 0"},
        {L"<![x]]><a/>", "a/", "Incorrect tag at offset 0"},
        {L"<!x<a/>", "a/", "Incorrect ! tag at offset 0"},
        {L"<<a/>", "a/", "Incorrect tag name character at offset 0"},
        {L"<><a/>", "a/", "Incorrect tag name character at offset 0"},
        {L"<1", "", "Incorrect tag name character at offset 0"},
    };
    for (const auto& [text, shape, error] : cases) {
        const Parsed parsed(text);
        EXPECT_EQ(parsed.Error(), error) << WideToUtf8(text);
        EXPECT_EQ(parsed.Shape(), shape) << WideToUtf8(text);
    }
    for (const wchar_t c : L";=?@[\\]^`-.09\x01") {
        const Parsed parsed(std::wstring(L"<") + c + L"x /><a/>");
        // A question mark opens an instruction; neither it nor the end of the list is an error.
        EXPECT_EQ(parsed.Error(), c == L'?' ? "Processing instruction at offset 0 unterminated"
                                            : "Incorrect tag name character at offset 0")
            << static_cast<int>(c);
    }
}

TEST(XmlParser, RecordsThePlacesOfTags) {
    const Parsed parsed(L" <a><bb c=\"d\">x</bb ><e/><f></a>");
    const Rows<int, int, int, int, int, int> expected = {
        {1, 1, 31, 3, 4, 0}, {2, 4, 17, 10, 6, 1}, {3, 21, 4, 4, 0, 1}, {4, 25, 3, 3, 0, 1}};
    for (const auto& [record, start, length, startTag, endTag, level] : expected) {
        const XmlNodePos& node = parsed[record];
        EXPECT_EQ(node.start, start) << record;
        EXPECT_EQ(node.length, length) << record;
        EXPECT_EQ(node.StartTagLength(), startTag) << record;
        EXPECT_EQ(node.EndTagLength(), endTag) << record;
        EXPECT_EQ(node.Level(), level) << record;
        EXPECT_EQ(node.IsEmpty(), endTag == 0) << record;
    }
}

TEST(XmlParser, ReadsLongTagsThroughTheNarrowFields) {
    const auto startTag = [](int nLength) {
        return L"<a b='" + std::wstring(static_cast<std::size_t>(nLength) - 8, L'x') + L"'>";
    };
    for (const int nLength : {0x0FFFFF, 0x100000, 0x12ABCD, 0x3FFFFF, 0x400005}) {
        const Parsed parsed(startTag(nLength) + L"<b/></a>");
        EXPECT_EQ(parsed.Shape(), "a(b/)");
        EXPECT_EQ(parsed[1].length, nLength + 8);
        EXPECT_EQ(parsed[1].StartTagLength(), nLength & 0x2FFFFF);
        EXPECT_EQ(parsed[1].EndTagLength(), 4);
    }
    for (const int nLength : {511, 512, 1023, 1024}) {
        const Parsed parsed(L"<r><a></a" +
                            std::wstring(static_cast<std::size_t>(nLength) - 4, L' ') +
                            L"><b/></r>");
        EXPECT_EQ(parsed.Shape(), "r(a b/)");
        EXPECT_EQ(parsed[2].length, nLength + 3);
        EXPECT_EQ(parsed[2].StartTagLength(), 3);
        EXPECT_EQ(parsed[2].EndTagLength(),
                  nLength < 512 ? nLength : nLength % 1024 - (nLength < 1024) * 1024);
    }
}

TEST(XmlParser, NestsDeeperThanLevelsCount) {
    constexpr int kDepth = 70000;
    const Parsed parsed(Repeat(L"<a>", kDepth) + Repeat(L"</a>", kDepth));
    EXPECT_EQ(parsed.Error(), "");
    EXPECT_EQ(parsed.Elements(), kDepth);
    EXPECT_EQ(parsed[65535].Level(), 65534);
    EXPECT_EQ(parsed[kDepth].Level(), 65535);
    EXPECT_EQ(parsed[kDepth].flags, XML_FLAG_LEVEL_MASK | XML_FLAG_FIRST);
}

struct HostileCase {
    const char* name;
    std::wstring text;
    int elements;
};

/// In quadratic time each of these would take minutes.
TEST(XmlParser, TakesItsTimeFromTheLengthOfTheText) {
    constexpr int kMany = 200000;
    const HostileCase cases[] = {
        {"end tags that end nothing", Repeat(L"<a>", kMany) + Repeat(L"</b>", kMany), kMany},
        {"end tags with places", Repeat(L"<a>", kMany) + Repeat(L"</b[=[=]>", kMany), kMany},
        {"nothing is ended", Repeat(L"<a>", kMany), kMany},
        {"only the outermost is ended", L"<r>" + Repeat(L"<a><b/>", kMany) + L"</r>",
         2 * kMany + 1},
        {"pairs that cross", Repeat(L"<a><b></a>", kMany), 2 * kMany},
        {"pairs in a deep place", Repeat(L"<a>", kMany) + Repeat(L"<b></c></b>", kMany), 2 * kMany},
        {"tokens in error", Repeat(L"<", kMany) + Repeat(L"<!-x>", kMany), 0},
        {"quotes", L"<a" + Repeat(L" b='\"' c=\"'\"", kMany) + L"/>", 1},
    };
    for (const HostileCase& c : cases) {
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(Parsed(c.text).Elements(), c.elements) << c.name;
        EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10)) << c.name;
    }
}

} // namespace
} // namespace Orvane
