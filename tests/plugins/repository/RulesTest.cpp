// Rules of the families: command ids, classes, label patterns and positions, paths.
#include <cmath>
#include <gtest/gtest.h>

#include "platform/win/CodePage.h"
#include "plugins/repository/LabelPattern.h"
#include "plugins/repository/LabelPlaces.h"
#include "plugins/repository/LongitudinalProfile.h"
#include "plugins/repository/RepositoryCommandId.h"
#include "plugins/repository/RepositoryPrompts.h"
#include "plugins/repository/ThemeClasses.h"
#include "siblings/giscore/query/QueryMatcher.h"

using namespace Orvane;
using namespace Orvane::Network;
using namespace Orvane::Repository;

TEST(RepositoryCommandIds, NameVerbFamilyAndKind) {
    struct {
        const wchar_t* id;
        std::optional<RepositoryCommandId> expected;
    } const cases[] = {
        {L"ADD_QUERY", {{Verb::Add, L"QUERY", EntityNone}}},
        {L"EDIT_THEME_16", {{Verb::Edit, L"THEME", EntityPolygon}}},
        {L"DEL_A_B_2", {{Verb::Delete, L"A_B", EntitySection}}},
        {L"REN_A_B", {{Verb::Rename, L"A_B", EntityNone}}},
        {L"SETASDEFAULT_LABEL_1", {{Verb::SetAsDefault, L"LABEL", EntityNode}}},
        {L"SENDTO_QUERY", {{Verb::SendTo, L"QUERY", EntityNone}}},
        {L"RPODROP_QUERY", {{Verb::ItemDrop, L"QUERY", EntityNone}}},
        {L"RUN_2", {{Verb::Run, L"2", EntityNone}}},
        {L"RUN_X_99999999999", {{Verb::Run, L"X_99999999999", EntityNone}}},
        {L"ADD_", std::nullopt},
        {L"add_QUERY", std::nullopt},
        {L"ADDQUERY", std::nullopt},
        {L"SYSTEM_ADD", std::nullopt},
        {L"", std::nullopt},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(ParseRepositoryCommandId(test.id), test.expected) << WideToUtf8(test.id);
    }
}

namespace {

std::vector<ThemeValue> Values(std::initializer_list<AcDbValue> values) {
    std::vector<ThemeValue> all;
    for (const AcDbValue& value : values) {
        all.push_back({Query::ValueText(value), Query::ValueNumber(value)});
    }
    return all;
}

/// "label:count/color" for each class, and the classes of the values.
std::string Describe(const ThemeResult& result) {
    std::string text;
    for (const ThemeClass& entry : result.classes) {
        text += entry.label + ":" + std::to_string(entry.count) + "/" +
                std::to_string(entry.color) + " ";
    }
    text += "|";
    for (const int number : result.classOf) {
        text += " " + std::to_string(number);
    }
    return text;
}

} // namespace

TEST(ThemeClasses, AClassForEachValueOrForRanges) {
    const AcDbValue none;
    struct {
        const char* name;
        ThemeRule rule;
        std::vector<ThemeValue> values;
        const char* expected;
    } const cases[] = {
        {"numbers before texts, by size",
         {ThemeMode::Unique, 5, {}, {1, 2, 3}},
         Values({"b", 100, "90", none, 90.0, "a", ""}),
         "90:2/1 100:1/2 a:1/3 b:1/1 | 3 1 0 -1 0 2 -1"},
        {"a break begins a class",
         {ThemeMode::Ranges, 5, {100, 200}, {1, 2}},
         Values({99.9, 100, 200, "150", "x", none}),
         "x < 100:1/1 100 <= x < 200:2/2 200 <= x:1/1 | 0 1 2 1 -1 -1"},
        {"equally many values",
         {ThemeMode::Ranges, 3, {}, {1}},
         Values({5, 1, 3, 2, 6, 4}),
         "x < 3:2/1 3 <= x < 5:2/1 5 <= x:2/1 | 2 0 1 0 2 1"},
        {"fewer different values than classes",
         {ThemeMode::Ranges, 4, {}, {1}},
         Values({7, 7, 7, 9}),
         "x < 9:3/1 9 <= x:1/1 | 0 0 0 1"},
        {"one value", {ThemeMode::Ranges, 4, {}, {1}}, Values({7, 7}), "x:2/1 | 0 0"},
        {"no values", {ThemeMode::Ranges, 4, {}, {1}}, Values({none}), "x:0/1 | -1"},
        {"no classes", {ThemeMode::None, 4, {}, {1}}, Values({1, 2}), "| -1 -1"},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(Describe(Classify(test.values, test.rule)), test.expected) << test.name;
    }
}

TEST(ThemeClasses, RareValuesShareTheLastClass) {
    std::vector<ThemeValue> values;
    for (int i = 0; i < 100; ++i) {
        for (int n = 0; n < (i < 10 ? 3 : 1); ++n) {
            values.push_back({std::to_string(i), i});
        }
    }
    const ThemeResult result = Classify(values, {});
    ASSERT_EQ(result.classes.size(), kMostUniqueClasses + 1);
    EXPECT_EQ(result.classes[9].count, 3U);
    EXPECT_EQ(result.classes.back().count, 70U);
    EXPECT_EQ(result.classOf.back(), static_cast<int>(kMostUniqueClasses));
    EXPECT_EQ(result.CountWithout(), 0U);
}

TEST(ThemeClasses, RulesThatMakeNoSenseAreFound) {
    const double nan = std::nan("");
    for (const ThemeRule& rule :
         {ThemeRule{ThemeMode::Ranges, 0, {}, {}}, ThemeRule{ThemeMode::Ranges, 13, {}, {}},
          ThemeRule{ThemeMode::Ranges, 5, {1, 1}, {}}, ThemeRule{ThemeMode::Ranges, 5, {2, 1}, {}},
          ThemeRule{ThemeMode::Ranges, 5, {1, nan}, {}}, ThemeRule{ThemeMode::Unique, 5, {}, {0}},
          ThemeRule{ThemeMode::Unique, 5, {}, {1, 256}}}) {
        EXPECT_TRUE(ThemeRuleFault(rule));
    }
    EXPECT_FALSE(ThemeRuleFault({ThemeMode::Ranges, 12, {-1, 0, 1}, {1, 255}}));
}

TEST(LabelPattern, PutsAttributesIntoATextAndFindsFaults) {
    const AcDbValue none;
    const auto valueOf = [&](AcDbNameId name) {
        return name == AcDbIntern("NAME")   ? AcDbValue("Ä1")
               : name == AcDbIntern("D")    ? AcDbValue(12.345)
               : name == AcDbIntern("TEXT") ? AcDbValue("7.5")
                                            : none;
    };
    struct {
        const char* pattern;
        const char* expected;
        bool isGood;
    } const cases[] = {
        {"{NAME}", "Ä1", true},
        {"DN {D} mm", "DN 12.345 mm", true},
        {"{D:1}/{D:0}/{TEXT:2}/{NAME:2}", "12.3/12/7.50/Ä1", true},
        {"{X}: {NAME}", ": Ä1", true},
        {"{X} mm", "", true},
        {"{{{NAME}}}", "{Ä1}", true},
        {"", "", false},
        {"no attribute", "", false},
        {"{{NAME}}", "", false},
        {"{NAME", "", false},
        {"{NAME} }", "Ä1 }", false},
        {"{NAME {D}", "{NAME 12.345", false},
        {"{}", "", false},
        {"{:2}", "", false},
        {"{D:x}", "12.345", false},
        {"{D:10}", "12.345", false},
    };
    for (const auto& test : cases) {
        const LabelPattern pattern(test.pattern);
        EXPECT_EQ(!pattern.Fault(), test.isGood) << test.pattern;
        EXPECT_EQ(pattern.Text(valueOf), test.expected) << test.pattern;
    }
}

TEST(LabelPlaces, AreTheMiddleOfALineAndTheCentreOfAnArea) {
    const double nan = std::nan("");
    struct {
        std::vector<AcGePoint3d> line;
        AcGePoint3d middle;
    } const lines[] = {
        {{{0, 0}, {10, 0}}, {5, 0}},          {{{0, 0}, {10, 0}, {10, 20}}, {10, 5}},
        {{{3, 4}, {3, 4}}, {3, 4}},           {{{3, 4}}, {3, 4}},
        {{{nan, 0}, {0, 0}, {4, 0}}, {2, 0}},
    };
    for (const auto& test : lines) {
        const auto middle = MiddleOf(test.line);
        ASSERT_TRUE(middle);
        EXPECT_NEAR(std::hypot(middle->x - test.middle.x, middle->y - test.middle.y), 0, 1e-9);
    }
    EXPECT_FALSE(MiddleOf({}));
    EXPECT_FALSE(MiddleOf(std::vector<AcGePoint3d>{{nan, nan}}));

    const double far = 5e6;
    const auto centre =
        CentreOf({{{{far, far}, {far + 1, far}, {far, far + 1}}, false},
                  {{{far, far}, {far, far + 6}, {far + 6, far + 6}, {far + 6, far}}, false},
                  {{{far, far}, {far + 100, far}, {far, far + 100}}, true}});
    ASSERT_TRUE(centre);
    EXPECT_NEAR(centre->x, far + 3, 1e-6) << "of the largest outline, holes left out";
    EXPECT_NEAR(centre->y, far + 3, 1e-6);
    const auto flat = CentreOf({{{{0, 0}, {2, 0}, {4, 0}}, false}});
    ASSERT_TRUE(flat);
    EXPECT_EQ(flat->x, 2);
    EXPECT_FALSE(CentreOf({}));
}

namespace {

/// Nodes on a line at the given x, connected by sections.
struct Sketch {
    std::vector<Point> nodes;
    std::vector<std::int32_t> starts;
    std::vector<std::int32_t> ends;
    NetworkGeometry Geometry() const {
        NetworkGeometry geometry;
        geometry.nodes = nodes;
        geometry.startNodes = starts;
        geometry.endNodes = ends;
        return geometry;
    }
};

} // namespace

TEST(ShortestPath, GoesByDrawnLengthInEitherDirection) {
    //     3
    //   /   \      the path over 3 has fewer sections, that over 1 and 2 is shorter
    // 0 -1- 2 - 4    5 (apart)
    const double nan = std::nan("");
    const Sketch sketch{{{0, 0}, {5, 0}, {10, 0}, {5, 50}, {20, 0}, {nan, nan}},
                        {1, 2, 0, 3, 4, kMissingNode, 2, 2},
                        {0, 1, 3, 2, 2, 5, 5, 2}};
    struct {
        std::int32_t from;
        std::int32_t to;
        std::vector<std::int32_t> nodes;
        std::vector<double> chainages;
    } const cases[] = {
        {0, 4, {0, 1, 2, 4}, {0, 5, 10, 20}},
        {4, 0, {4, 2, 1, 0}, {0, 10, 15, 20}},
        {3, 3, {3}, {0}},
        {0, 5, {0, 1, 2, 5}, {0, 5, 10, 10}},
    };
    for (const auto& test : cases) {
        const auto path = ShortestPath(sketch.Geometry(), test.from, test.to);
        ASSERT_TRUE(path) << test.from << " to " << test.to;
        EXPECT_EQ(path->nodes, test.nodes);
        EXPECT_EQ(path->chainages, test.chainages);
        EXPECT_EQ(path->sections.size() + 1, path->nodes.size());
    }
    const Sketch apart{{{0, 0}, {1, 0}}, {0}, {kMissingNode}};
    EXPECT_FALSE(ShortestPath(apart.Geometry(), 0, 1));
}

TEST(ProfileLines, LeaveOutWhatNoStationHas) {
    EXPECT_EQ(ProfileLines({{0, "A", 10.0, {}}, {50, "Ö", 9.0, {}}, {50, "C", {}, {}}}),
              (std::vector<std::string>{
                  "    chainage     ground   slope %  node", "        0.00      10.00            A",
                  "       50.00       9.00     -2.00  Ö", "       50.00          -         -  C"}));
    EXPECT_EQ(ProfileLines({{0, "A", 12.0, 10.0}, {10, "B", 12.0, 9.5}})[2],
              "       10.00      12.00       9.50     -5.00  B");
    EXPECT_EQ(ProfileLines({{0, "A", {}, {}}})[1], "        0.00  A");
}

TEST(Prompts, NumbersStandBetweenBlanks) {
    using Numbers = std::vector<double>;
    EXPECT_EQ(NumbersOf(L"1  2.5 -3e2 "), (Numbers{1, 2.5, -300}));
    EXPECT_EQ(NumbersOf(L""), Numbers{});
    EXPECT_EQ(NumbersOf(L"1,2"), std::nullopt);
    EXPECT_EQ(NumbersOf(L"1 x"), std::nullopt);
    EXPECT_EQ(NumbersText({1, 2.5, -300}), L"1 2.5 -300");
}
