#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/win/CodePage.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "workspacecore/foundation/XmlDocument.h"

namespace Orvane {
namespace {

using namespace std::string_literals;

class XmlDocumentFile : public testing::Test {
protected:
    bool Load(const std::string& content) {
        m_folder.Write("a.xml", content);
        return m_doc.Load(m_folder.Wide("a.xml"));
    }
    std::string Error() const { return WideToUtf8(m_doc.GetError().View()); }

    TempFolder m_folder;
    XmlDocument m_doc;
};

TEST_F(XmlDocumentFile, ReportsWhatItHasRead) {
    const Rows<std::string, bool, const char*> cases = {
        {"<a/>", true, "4 bytes to 4 wide chars"},
        {"<a b='\xC3\xA9\xF0\x9F\x98\x80'/>", true, "15 bytes to 11 wide chars"},
        {"", false, "0 bytes to 0 wide chars, Empty document"},
        {"<a>", false, "3 bytes to 3 wide chars, Element 'a' at offset 0 not ended"},
        {"\xEF\xBB\xBF<a/>", true, "7 bytes to 5 wide chars"},
        {"<a b='\xFF\xC3'/>", true, "11 bytes to 11 wide chars"},
        {"<a>\xF0\x9F", false, "5 bytes to 5 wide chars, Element 'a' at offset 0 not ended"},
    };
    for (const auto& [content, wellFormed, error] : cases) {
        EXPECT_EQ(Load(content), wellFormed) << content;
        EXPECT_EQ(Error(), error);
        EXPECT_EQ(m_doc.GetDoc().Str(), Utf8ToWide(content));
    }
}

TEST_F(XmlDocumentFile, ReadsTheSameWhereverThePiecesOfAFileEnd) {
    std::string content = "<a b='";
    while (content.size() < 700000) {
        // Coprime lengths, so characters of every size straddle any chunk boundary.
        content += "abc\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xE2\x82\xFFplain text in between";
    }
    content += "'/>";
    for (const char* pszShift : {"", " ", "  ", "   "}) {
        ASSERT_TRUE(Load(pszShift + content)) << Error();
        EXPECT_TRUE(m_doc.GetDoc().Str() == Utf8ToWide(pszShift + content));
    }
}

TEST_F(XmlDocumentFile, KeepsItsTextIfThereIsNothingToRead) {
    m_doc.SetDoc(L"<a n='1'><b/></a>");
    m_doc.FindElem();
    EXPECT_FALSE(m_doc.Load(m_folder.Wide("missing.xml")));
    EXPECT_EQ(Error(), "No such file or directory");
    EXPECT_FALSE(m_doc.Load(m_folder.Wide("")));
    EXPECT_EQ(Error(), "Is a directory");
    ASSERT_EQ(mkfifo(m_folder.Native("pipe").c_str(), 0600), 0);
    alarm(30); // opened for reading it would wait for its other end
    EXPECT_FALSE(m_doc.Load(m_folder.Wide("pipe")));
    EXPECT_EQ(Error(), "not a regular file");
    EXPECT_EQ(m_doc.GetDoc(), L"<a n='1'><b/></a>");
    EXPECT_EQ(m_doc.GetAttrib(L"n"), L"1");
}

TEST_F(XmlDocumentFile, RefusesWhatOffsetsCannotReach) {
    Load("<a/>");
    m_folder.Write("large.xml", "<a>");
    std::filesystem::resize_file(m_folder / "large.xml", 1ULL << 31);
    EXPECT_FALSE(m_doc.Load(m_folder.Wide("large.xml")));
    EXPECT_EQ(Error(),
              "Document of 2147483648 bytes exceeds the limit of 2147483647, Empty document");
    EXPECT_EQ(m_doc.GetDoc(), L"");
    EXPECT_FALSE(m_doc.FindElem());
}

TEST_F(XmlDocumentFile, WritesTheTextAsItStands) {
    const Rows<const wchar_t*, std::string, const char*> cases = {
        {L"<a/>", "<a/>", "4 wide chars to 4 bytes"},
        {L"<a b='\u00E9\u20AC\U0001F600'/>", "<a b='\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80'/>",
         "12 wide chars to 18 bytes"},
        {L"\xFEFF<a>\r\n", "\xEF\xBB\xBF<a>\r\n", "6 wide chars to 8 bytes"},
        {L"", "", "0 wide chars to 0 bytes"},
    };
    for (const auto& [text, content, report] : cases) {
        m_doc.SetDoc(text);
        EXPECT_TRUE(m_doc.Save(m_folder.Wide("out.xml")));
        EXPECT_EQ(Error(), report);
        EXPECT_EQ(m_folder.Read("out.xml"), content);
    }
}

TEST_F(XmlDocumentFile, TellsWhyItCouldNotWrite) {
    m_doc.SetDoc(L"<a/>");
    EXPECT_FALSE(m_doc.Save(m_folder.Wide("missing/out.xml")));
    EXPECT_EQ(Error(), "No such file or directory");
    EXPECT_FALSE(m_doc.Save(L"/dev/full"));
    EXPECT_EQ(Error(), "No space left on device");
    m_doc.SetDoc(std::wstring(100000, L'x').c_str());
    EXPECT_FALSE(m_doc.Save(L"/dev/full"));
    EXPECT_EQ(Error(), "No space left on device");
}

} // namespace
} // namespace Orvane
