#include <gtest/gtest.h>
#include <sstream>

#include "siblings/logging/LogEngine.h"
#include "tests/support/TestHost.h"
#include "workspacecore/trace/Trace.h"

namespace Orvane::Workspace {

// Not in the unnamed namespace: the test is about qualified names.
class CTraceSample {
public:
    template <class T>
    static const T* const& Overloaded(const T* const& value) {
        WS_TRACE_TEXT("in a template");
        return value;
    }
    int operator()(int) {
        WS_TRACE_TEXT("in an operator");
        return 1;
    }
    void Throws() {
        WS_TRACE_SCOPE();
        throw std::runtime_error("left");
    }
};

void AFunctionWithANameOfMoreThanFortyCharactersInIt() {
    WS_TRACE_TEXT("long");
}

namespace {

class TraceTest : public testing::Test {
protected:
    void SwitchOn(const char* file = "trace.log") {
        CLogEngine::SetLogging(1, m_folder.Native(file));
    }
    std::vector<std::string> Lines() const {
        std::vector<std::string> lines;
        std::istringstream text(m_folder.Read("trace.log"));
        for (std::string line; std::getline(text, line);) {
            lines.push_back(line);
        }
        return lines;
    }
    /// Trace texts without their prefixes.
    std::vector<std::string> Texts() const {
        std::vector<std::string> texts;
        for (const std::string& line : Lines()) {
            texts.push_back(line.substr(line.find("], ", line.find("): [")) + 3));
        }
        return texts;
    }

    TestHost m_host;
    TempFolder m_folder;
};

TEST_F(TraceTest, NothingIsMadeOrEvaluatedWhileLoggingIsOff) {
    CLogEngine::SetLogging(0, m_folder.Native("trace.log"));
    int evaluated = 0;
    {
        WS_TRACE_SCOPE();
        WS_TRACE_TEXT(++evaluated);
        WS_TRACE_VALUE("n", ++evaluated);
        WS_TRACE_FORMAT(L"%d", ++evaluated);
        EXPECT_FALSE(WS_TRACE_VERIFY(evaluated != 0, "evaluated"));
        EXPECT_TRUE(Trace::OpenScopes().empty());
    }
    EXPECT_EQ(evaluated, 0);
    EXPECT_FALSE(m_folder.Has("trace.log"));
}

TEST_F(TraceTest, LinesHaveThePrefixOfTheirSite) {
    SwitchOn();
    const int line = __LINE__ + 1;
    WS_TRACE_TEXT("text");
    char number[8];
    std::snprintf(number, sizeof number, "%05d", line);
    ASSERT_EQ(Lines().size(), 1U);
    const std::string text = Lines()[0];
    EXPECT_NE(text.find("] TraceTest.cpp" + std::string(19, ' ') + "(" + number + "): ["),
              std::string::npos)
        << text;
    EXPECT_TRUE(text.ends_with("::TestBody], text")) << text;
}

TEST_F(TraceTest, FunctionNamesAreQualifiedAndWhole) {
    SwitchOn();
    AFunctionWithANameOfMoreThanFortyCharactersInIt();
    const char* const text = "x";
    CTraceSample::Overloaded(text);
    CTraceSample()(1);
    const char* const expected[] = {
        "[Orvane::Workspace::AFunctionWithANameOfMoreThanFortyCharactersInIt], long",
        "[Orvane::Workspace::CTraceSample::Overloaded], in a template",
        "[Orvane::Workspace::CTraceSample::operator()], in an operator"};
    const auto lines = Lines();
    ASSERT_EQ(lines.size(), std::size(expected));
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_NE(lines[i].find(expected[i]), std::string::npos) << lines[i];
    }
}

TEST_F(TraceTest, TextsOfAllKinds) {
    SwitchOn();
    int object = 0;
    const void* pointer = &object;
    std::ostringstream address;
    address << pointer;
    WS_TRACE_TEXT(L"wide \u00E8");
    WS_TRACE_TEXT(static_cast<const wchar_t*>(nullptr));
    WS_TRACE_TEXT(CString(L"name \u00E8\u4E2D"));
    WS_TRACE_TEXT(42);
    WS_TRACE_VALUE("lpszFileName", L"C:\\a.dwg");
    WS_TRACE_VALUE("lpszFileName", static_cast<const wchar_t*>(nullptr));
    WS_TRACE_VALUE("pDoc", pointer);
    EXPECT_FALSE(WS_TRACE_VERIFY(object, "object"));
    EXPECT_TRUE(WS_TRACE_VERIFY(pointer, "pointer"));
    WS_TRACE_FORMAT(L"Module = %s, %s", CString(L"a.arx"), L"ON");
    const std::vector<std::string> expected = {"wide \u00E8",
                                               "Error: Bad pointer",
                                               "name \u00E8\u4E2D",
                                               "42",
                                               "lpszFileName = 'C:\\a.dwg'",
                                               "lpszFileName = 'Error: Bad pointer'",
                                               "pDoc = '" + address.str() + "'",
                                               "Failed verification:  'object'",
                                               "Module = a.arx, ON"};
    EXPECT_EQ(Texts(), expected);
}

TEST_F(TraceTest, ScopesNestAndCloseOnExceptions) {
    SwitchOn();
    {
        WS_TRACE_SCOPE();
        EXPECT_EQ(Trace::OpenScopes().size(), 1U);
        EXPECT_THROW(CTraceSample().Throws(), std::runtime_error);
        EXPECT_EQ(Trace::OpenScopes().size(), 1U);
    }
    EXPECT_TRUE(Trace::OpenScopes().empty());
    const auto texts = Texts();
    ASSERT_EQ(texts.size(), 4U);
    EXPECT_EQ(texts[1], "Entering function , Orvane::Workspace::CTraceSample::Throws");
    EXPECT_EQ(texts[2], "Exiting function , Orvane::Workspace::CTraceSample::Throws");
    EXPECT_EQ(texts[0].substr(8), texts[3].substr(7)) << "same name";
    const auto numberOf = [](const std::string& line) {
        return line.substr(line.find('('), line.find(')') - line.find('('));
    };
    EXPECT_EQ(numberOf(Lines()[1]), numberOf(Lines()[2])) << "the line of the opening";
}

TEST_F(TraceTest, SiteFileIsCutBehindTheLastBackslash) {
    SwitchOn();
    for (const char* file : {"C:\\src\\WsManager.cpp", "src/WsManager.cpp", "WsManager.cpp"}) {
        Trace::WriteLine({file, 83, "f", 3}, "x");
    }
    const auto lines = Lines();
    EXPECT_NE(lines[0].find("] WsManager.cpp                   (00083): [f               ], x"),
              std::string::npos)
        << lines[0];
    EXPECT_NE(lines[1].find("] src/WsManager.cpp "), std::string::npos);
    EXPECT_NE(lines[2].find("] WsManager.cpp "), std::string::npos);
}

TEST_F(TraceTest, AnEarlierRunsTextStays) {
    m_folder.Write("trace.log", "earlier\n");
    SwitchOn();
    WS_TRACE_TEXT("later");
    ASSERT_EQ(Lines().size(), 2U);
    EXPECT_EQ(Lines()[0], "earlier");
}

TEST_F(TraceTest, WithoutAFileTheTraceGoesToStandardOutputForGood) {
    testing::internal::CaptureStdout();
    SwitchOn("no/such/folder/trace.log");
    WS_TRACE_TEXT("first");
    SwitchOn("trace.log");
    WS_TRACE_TEXT("second");
    const std::string output = testing::internal::GetCapturedStdout();
    EXPECT_NE(output.find("], first\n"), std::string::npos);
    EXPECT_NE(output.find("], second\n"), std::string::npos);
    EXPECT_FALSE(m_folder.Has("trace.log"));
}

} // namespace
} // namespace Orvane::Workspace
