#include <gtest/gtest.h>
#include <limits>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/networkcore/TopologyStorage.h"
#include "tests/support/TestDrawing.h"

using namespace Orvane;
using namespace Orvane::Topology;

namespace {

class NameRulesTest : public TestDrawing {
protected:
    void Rules(const std::string& content) {
        Host().Support().Write("NameRules.ini", content);
        Storage().RefreshNameRules();
    }
    std::string NewNode(System::CGisSystem& system, std::string_view name = {}) {
        return std::string(
            Storage().GetNodeById(Storage().AddNode(system, {name, {}})).GetNameUtf8());
    }
    std::string NewSection(System::CGisSystem& system) {
        const AcDbObjectId id = Storage().AddSection(system, {{}, {}, {}});
        return std::string(Storage().GetSectionById(id).GetNameUtf8());
    }
};

} // namespace

TEST_F(NameRulesTest, TheMostSpecialRuleCounts) {
    Rules("[default]\nnode=D%d\nsection=E%d\n[line]\nnode=L%d\n[Line.2]\nNode=Ü%03d/x\n");
    System::CGisSystem& water = MakeSystem(L"1", TopologyLine, 1);
    System::CGisSystem& sewer = MakeSystem(L"2", TopologyLine, 2);
    System::CGisSystem& points = MakeSystem(L"3", TopologyPoint, 0);
    EXPECT_EQ(NewNode(water), "L1");
    EXPECT_EQ(NewNode(sewer), "Ü001/x");
    EXPECT_EQ(NewNode(points), "D1");
    EXPECT_EQ(NewSection(water), "E1");
    EXPECT_EQ(NewNode(water), "L2");
}

TEST_F(NameRulesTest, WithoutAFileThereAreRulesToo) {
    System::CGisSystem& system = MakeSystem(L"1");
    EXPECT_EQ(NewNode(system), "N1");
    EXPECT_EQ(NewSection(system), "S1");
    const AcDbObjectId id = Storage().AddPolygon(system, {{}, {}});
    EXPECT_EQ(Storage().GetPolygonById(id).GetName().Str(), L"A1");
}

TEST_F(NameRulesTest, ATakenNameIsPassedOver) {
    System::CGisSystem& system = MakeSystem(L"1");
    System::CGisSystem& other = MakeSystem(L"2");
    NewNode(system, "N2");
    NewNode(other, "N1");
    EXPECT_EQ(NewNode(system), "N1");
    EXPECT_EQ(NewNode(system), "N3");
}

TEST_F(NameRulesTest, ARunThroughAllNumbersBeginsAgain) {
    System::CGisSystem& system = MakeSystem(L"1");
    system.SetCounters({{L"node", std::numeric_limits<int>::max() - 1}});
    EXPECT_EQ(NewNode(system), "N2147483647");
    EXPECT_EQ(NewNode(system), "N1");
    system.SetCounters({{L"node", -5}});
    EXPECT_EQ(NewNode(system), "N2");
}

TEST_F(NameRulesTest, ABadRuleIsNamedAndTheNextOneCounts) {
    const char* const bad[] = {"node=J",    "node=%d%d", "node=%s",   "node=%4d", "node=%0d",
                               "node=100%", "node=",     "node=%00d", "knot=J%d"};
    System::CGisSystem& system = MakeSystem(L"1");
    int number = 0;
    for (const char* line : bad) {
        Rules(std::string("[default]\nnode=D%d\n[line]\n") + line + "\n");
        const auto problems = CModuleConfiguration::Instance()->GetProblems();
        ASSERT_EQ(problems.size(), 1U) << line;
        EXPECT_NE(problems[0].Find(L"NameRules.ini:4: "), -1) << line;
        EXPECT_EQ(NewNode(system), "D" + std::to_string(++number)) << line;
    }
    for (const char* section : {"circle", "line.x", "line.0", "line.", "default.1", ""}) {
        Rules(std::string("[") + section + "]\nnode=J%d\n");
        EXPECT_EQ(CModuleConfiguration::Instance()->GetProblems().size(), 1U) << section;
    }
    Rules("[default]\nnode=D%d\n");
    EXPECT_TRUE(CModuleConfiguration::Instance()->GetProblems().empty());
}

TEST_F(NameRulesTest, CountersGoWithTheSystem) {
    System::CGisSystem& water = MakeSystem(L"1");
    System::CGisSystem& sewer = MakeSystem(L"2");
    Storage().LoadCountersFromSystem(&water);
    EXPECT_EQ(NewNode(water), "N1");
    EXPECT_EQ(NewNode(sewer), "N1"); // has its own counter while another system's is loaded
    EXPECT_EQ(NewNode(water), "N2");
    EXPECT_TRUE(water.GetCounters().empty());
    Storage().SaveCountersToSystem(&sewer); // not loaded, so it keeps its own
    EXPECT_EQ(sewer.GetCounters().at(L"node"), 1);
    Storage().SaveCountersToSystem(&water);
    EXPECT_EQ(water.GetCounters().at(L"node"), 2);

    Storage().LoadCountersFromSystem(&sewer);
    EXPECT_EQ(NewNode(sewer), "N2");
    EXPECT_EQ(NewNode(water), "N3");
    Storage().SaveCountersToSystem(nullptr);
    Storage().LoadCountersFromSystem(nullptr);
    EXPECT_EQ(NewNode(water), "N4");
    EXPECT_EQ(water.GetCounters().at(L"node"), 4);
}

TEST_F(NameRulesTest, TheNextSystemOfTheSameNumberDoesNotInheritCounters) {
    System::CGisSystem& system = MakeSystem(L"1");
    Storage().LoadCountersFromSystem(&system);
    NewNode(system);
    Storage().RemoveSystemEntities(system.GetSystemId());
    Storage().SaveCountersToSystem(&system); // no longer loaded
    EXPECT_TRUE(system.GetCounters().empty());
    EXPECT_EQ(NewNode(system), "N1");
}
