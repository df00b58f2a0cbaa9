// Splitting, repositories, data definitions, selections.
#include <gtest/gtest.h>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/data/DataConfiguration.h"
#include "siblings/giscore/repository/RepositoryFactory.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/utility/Utility.h"
#include "siblings/giscoreadds/IInfoTooltip.h"
#include "siblings/giscoreadds/InfoTooltipRegistry.h"
#include "siblings/giscoreadds/SelectionSet.h"
#include "siblings/networkcore/LinearDataManager.h"
#include "tests/support/TestHost.h"

using namespace Orvane;

TEST(SplitString, KeepsEmptyPieces) {
    const std::pair<const wchar_t*, std::vector<const wchar_t*>> cases[] = {
        {L"", {}},
        {L"a", {L"a"}},
        {L"a\\b/c", {L"a", L"b", L"c"}},
        {L"\\a", {L"", L"a"}},
        {L"a/", {L"a", L""}},
        {L"/\\", {L"", L"", L""}},
    };
    for (const auto& [text, expected] : cases) {
        CStringArray pieces;
        pieces.Add(L"old");
        Utility::CUtility::SplitString(text, L"\\/", pieces);
        ASSERT_EQ(pieces.GetCount(), static_cast<int>(expected.size())) << WideToUtf8(text);
        for (int i = 0; i < pieces.GetCount(); ++i) {
            EXPECT_EQ(pieces[i].Str(), expected[static_cast<std::size_t>(i)]) << WideToUtf8(text);
        }
    }
}

TEST(SplitString, MaySplitAPieceOfTheArrayItself) {
    CStringArray pieces;
    pieces.Add(L"1#2#3");
    Utility::CUtility::SplitString(pieces[0], L"#", pieces);
    ASSERT_EQ(pieces.GetCount(), 3);
    EXPECT_EQ(pieces[2].Str(), L"3");
}

namespace {

/// Records its reloads; may register another factory.
struct Factory final : CRepositoryFactory {
    explicit Factory(std::string& l, char n) : log(l), name(n) {}
    void ReloadRepository(int mode) override {
        log += name + std::to_string(mode);
        if (pBrings) {
            CRepositoryManager::Instance()->RegisterRepositoryFactory(L"BROUGHT", pBrings);
        }
    }
    std::string& log;
    char name;
    Factory* pBrings = nullptr;
};

} // namespace

TEST(Repositories, AreReloadedInTheOrderOfRegistration) {
    std::string log;
    Factory a(log, 'a');
    Factory b(log, 'b');
    Factory c(log, 'c');
    Factory brought(log, 'n');
    b.pBrings = &brought;
    CRepositoryManager& manager = *CRepositoryManager::Instance();
    manager.RegisterRepositoryFactory(L"QUERY", &a);
    manager.RegisterRepositoryFactory(L"LABEL", &b);
    manager.RegisterRepositoryFactory(L"LABEL", nullptr);
    manager.RegisterRepositoryFactory(L"query", &c); // replaces the first one
    manager.ReloadRepositories(2);
    EXPECT_EQ(log, "c2b2n2");
    EXPECT_EQ(manager.GetRepositoryfactory(L"Query"), &c);
    EXPECT_EQ(manager.GetRepositoryfactory(L"Brought"), &brought);
    EXPECT_EQ(manager.GetRepositoryfactory(L"none"), nullptr);
    EXPECT_EQ(manager.GetRepositoryItemFactory(L"Query"), nullptr);
}

TEST(DataConfiguration, CoordinatesFollowThePrecision) {
    Data::CDataConfiguration& data = *Data::CDataConfiguration::Instance();
    const std::pair<int, const wchar_t*> cases[] = {
        {0, L"1235"}, {2, L"1234.57"}, {-3, L"1235"}, {10, L"1234.5670000000"}};
    for (const auto& [decimals, expected] : cases) {
        data.SetFloatToStrPrecision_Point(decimals);
        EXPECT_EQ(data.PointToStr(1234.567).Str(), expected) << decimals;
    }
    data.SetFloatToStrPrecision_Point(99);
    EXPECT_EQ(data.GetFloatToStrPrecision_Point(), 15);
}

TEST(DataDefinitions, AreReadAgainWithTheirProblems) {
    const TestHost host;
    host.Support().Write("LinearData.ini", "[covering]\nlabel=Cover\nunit=m\n"
                                           "[note]\ntype=Text\n[bad]\ntype=date\nfoo=1\n");
    Data::CLinearDataManager& linear = *Data::CLinearDataManager::Instance();
    linear.RefreshLinearDataDefinitions();
    const auto& definitions = linear.GetLinearDataDefinitions();
    ASSERT_EQ(definitions.size(), 3U);
    EXPECT_EQ(definitions[0].m_strLabel.Str(), L"Cover");
    EXPECT_EQ(definitions[0].m_strUnit.Str(), L"m");
    EXPECT_EQ(definitions[1].m_strLabel.Str(), L"note");
    EXPECT_EQ(definitions[1].m_type, Data::CDataDefinition::Type::Text);
    EXPECT_EQ(definitions[2].m_type, Data::CDataDefinition::Type::Number);
    const std::vector<CString> problems = CModuleConfiguration::Instance()->GetProblems();
    ASSERT_EQ(problems.size(), 2U);
    EXPECT_NE(problems[0].Find(L"LinearData.ini:7: neither number nor text"), -1);
    EXPECT_NE(problems[1].Find(L"LinearData.ini:8: unknown key \"foo\""), -1);

    std::filesystem::remove(host.Support() / "LinearData.ini");
    linear.RefreshLinearDataDefinitions();
    EXPECT_TRUE(linear.GetLinearDataDefinitions().empty());
    EXPECT_TRUE(CModuleConfiguration::Instance()->GetProblems().empty());
}

TEST(SelectionSet, HoldsEachEntityOnceInTheOrderOfChoice) {
    Selection::CSelectionSet set;
    using Ids = std::vector<AcDbObjectId>;
    const AcDbObjectId two(2);
    const AcDbObjectId five(5);
    const AcDbObjectId nine(9);
    EXPECT_TRUE(set.Add(five, EntityNode));
    EXPECT_TRUE(set.Add(nine, EntitySection));
    EXPECT_TRUE(set.Add(two, EntityNode));
    EXPECT_FALSE(set.Add(five, EntityNode));
    EXPECT_EQ(set.GetNodes(), (Ids{five, two}));
    EXPECT_EQ(set.GetSections(), Ids{nine});
    EXPECT_TRUE(set.Remove(five));
    EXPECT_FALSE(set.Remove(five));
    EXPECT_FALSE(set.Contains(five));
    EXPECT_TRUE(set.Add(five, EntityPolygon));
    EXPECT_EQ(set.GetNodes(), Ids{two});
    EXPECT_EQ(set.GetPolygons(), Ids{five});
    set.Clear();
    EXPECT_TRUE(set.IsEmpty());
    EXPECT_FALSE(set.Contains(two));
}
