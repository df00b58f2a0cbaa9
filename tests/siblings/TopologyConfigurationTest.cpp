#include "siblings/giscore/topology/TopologyConfiguration.h"

#include <gtest/gtest.h>

#include "siblings/giscore/systems/SystemManager.h"
#include "tests/support/TestHost.h"

using namespace Orvane;

namespace {

CString Number(int id) {
    CString text;
    text.Format(L"<%d>", id);
    return text;
}

/// The whole configuration as a text, for comparison.
std::string Describe(const CTopologyConfiguration& configuration) {
    CString text;
    for (const CTopology& topology : configuration.GetTopologyVector()) {
        text.AppendFormat(L"%d on=%d functions=%d %s:", topology.GetTopologyType(),
                          topology.GetOnOff(), topology.GetHasFunctions(), topology.GetNameUI());
        for (const CTopologyFunction& function : topology.GetTopologyFunctionVector()) {
            text.AppendFormat(L" f%d=%s", function.GetId(), function.GetName());
        }
        for (const CTopologyEntityType& type : topology.GetEntityTypeVector()) {
            text.AppendFormat(L" e%d=%s", type.GetType(), type.GetName());
        }
        text += L"\n";
    }
    return WideToUtf8(text.View());
}

} // namespace

TEST(TopologyConfiguration, ReadsAFile) {
    const TempFolder folder;
    folder.Write("t.ini", "[Polygon]\non=0\nname=Areas\nentity.16=42\n"
                          "[line]\nfunction.10=A\nFUNCTION.7=900\nentity.2=Pipe\nentity.1=Node\n");
    const CTopologyConfiguration configuration(folder.Wide("t.ini"), Number);
    EXPECT_EQ(Describe(configuration), "2 on=0 functions=0 Areas: e16=<42>\n"
                                       "1 on=1 functions=1 line: f10=A f7=<900> e2=Pipe e1=Node\n");
    EXPECT_TRUE(configuration.GetProblems().empty());
    const CTopology* const pLine = configuration.GetTopologyByTopologyType(TopologyLine);
    ASSERT_NE(pLine, nullptr);
    EXPECT_EQ(pLine->GetTopologyFunctionById(7)->GetName().Str(), L"<900>");
    EXPECT_EQ(pLine->GetTopologyFunctionById(8), nullptr);
    EXPECT_EQ(configuration.GetTopologyByTopologyType(TopologyPoint), nullptr);
}

TEST(TopologyConfiguration, ABadLineIsLeftOutAndNamed) {
    const std::pair<const char*, const wchar_t*> cases[] = {
        {"[circle]\n", L":1: unknown topology \"circle\""},
        {"[line]\n[LINE]\n", L":2: duplicate section \"LINE\""},
        {"[line]\nfunction.x=A\n", L":2: unknown key \"function.x\""},
        {"[line]\nfunction.=A\n", L":2: unknown key \"function.\""},
        {"[line]\nfunction.0=A\n", L":2: the number of a function must be greater than 0"},
        {"[line]\nfunction.-1=A\n", L":2: the number of a function must be greater than 0"},
        {"[line]\nfunction.99999999999=A\n", L":2: unknown key"},
        {"[line]\nfunction.1=A\nfunction.1=B\n", L":3: duplicate function 1"},
        {"[line]\nentity.3=A\n", L":2: unknown entity type 3"},
        {"[line]\nentity.1=A\nentity.1=A\n", L":3: duplicate entity type 1"},
        {"[line]\non=yes\n", L":2: \"yes\" is neither 0 nor 1"},
        {"[line]\nname=\n", L":2: \"name\" has no value"},
        {"[line]\nfoo=1\n", L":2: unknown key \"foo\""},
        {"[line]\nrubbish\n", L":2: not a \"key=value\" line"},
    };
    const TempFolder folder;
    for (const auto& [content, problem] : cases) {
        // Add a valid topology, so that the file is not replaced by the default.
        folder.Write("t.ini", content + std::string("[scheme]\nname=Good\n"));
        const CTopologyConfiguration configuration(folder.Wide("t.ini"), Number);
        ASSERT_EQ(configuration.GetProblems().size(), 1U) << content;
        EXPECT_NE(configuration.GetProblems()[0].Find(problem), -1)
            << WideToUtf8(configuration.GetProblems()[0].View());
        EXPECT_NE(configuration.GetTopologyByTopologyType(TopologyScheme), nullptr) << content;
    }
}

TEST(TopologyConfiguration, WithoutATopologyTheDeliveredOnesStand) {
    const TempFolder folder;
    folder.Write("empty.ini", "");
    std::filesystem::create_directory(folder / "folder.ini");
    const CTopologyConfiguration delivered(
        L"" TESSALY_SOURCE_DIR "/share/support/TopologyConfiguration.ini", Number);
    EXPECT_TRUE(delivered.GetProblems().empty());
    EXPECT_NE(delivered.GetTopologyByTopologyType(TopologyLine)->GetTopologyFunctionById(10000),
              nullptr);
    const std::pair<const char*, bool> files[] = {
        {"none.ini", false}, {"empty.ini", true}, {"folder.ini", true}};
    for (const auto& [name, hasProblem] : files) {
        const CTopologyConfiguration configuration(folder.Wide(name), Number);
        EXPECT_EQ(Describe(configuration), Describe(delivered)) << name;
        EXPECT_EQ(!configuration.GetProblems().empty(), hasProblem) << name;
    }
}
