// Queries: syntax of conditions, and matching values.
#include <gtest/gtest.h>
#include <map>

#include "platform/win/CodePage.h"
#include "siblings/giscore/query/QueryMatcher.h"

using namespace Orvane;
using namespace Orvane::Query;

namespace {

/// Whether a condition holds for an entity with this value of A and with B = "pipe".
bool Fulfils(const wchar_t* condition, const AcDbValue& value, const wchar_t* also = nullptr,
             bool any = false) {
    CQueryDefinition query(L"1", L"query");
    std::vector<Condition> conditions{ParseCondition(condition).value()};
    if (also) {
        conditions.push_back(ParseCondition(also).value());
    }
    query.SetConditions(conditions);
    query.SetMatchAny(any);
    return QueryMatcher(query).Matches([&](AcDbNameId name) {
        return name == AcDbIntern("A")   ? value
               : name == AcDbIntern("B") ? AcDbValue("pipe")
                                         : AcDbValue();
    });
}

} // namespace

TEST(QueryMatcher, ComparesNumbersBySizeAndTextsByLetters) {
    const AcDbValue none;
    struct {
        const wchar_t* condition;
        AcDbValue value;
        bool expected;
    } const cases[] = {
        {L"A = 300", 300, true},
        {L"A = 300", 300.5, false},
        {L"A = 3e2", "300.0", true},
        {L"A = Pipe", "pIPE", true},
        {L"A = 300", "300 mm", false},
        {L"A = 300", none, false},
        {L"A = \"\"", none, true},
        {L"A <> 300", 300, false},
        {L"A <> 300", "PVC", true},
        {L"A <> 300", none, true},
        {L"A < 90", 100, false},
        {L"A < 90", "9", true},
        {L"A < 90", "abc", false},
        {L"A < abc", 5, false},
        {L"A < 90", none, false},
        {L"A <= abc", none, false},
        {L"A <= 90", 90.0, true},
        {L"A > 90", std::int64_t{91}, true},
        {L"A >= m", "PVC", true},
        {L"A >= m", "cast iron", false},
        {L"A > 0", std::numeric_limits<double>::quiet_NaN(), false},
        {L"A contains ROn", "cast iron", true},
        {L"A contains 5", 150.0, true},
        {L"A contains x", none, false},
        {L"A empty", none, true},
        {L"A empty", "", true},
        {L"A empty", 0, false},
        {L"a empty", 7, true},
    };
    for (const auto& test : cases) {
        EXPECT_EQ(Fulfils(test.condition, test.value), test.expected)
            << WideToUtf8(test.condition) << " of \"" << ValueText(test.value) << "\"";
    }
}

TEST(QueryMatcher, AllOrAnyOfTheConditions) {
    EXPECT_TRUE(Fulfils(L"A > 1", 2, L"B = pipe"));
    EXPECT_FALSE(Fulfils(L"A > 1", 1, L"B = pipe"));
    EXPECT_TRUE(Fulfils(L"A > 1", 1, L"B = pipe", true));
    EXPECT_FALSE(Fulfils(L"A > 1", 1, L"B = pump", true));
    CQueryDefinition everything(L"1", L"everything");
    everything.SetMatchAny(true);
    EXPECT_TRUE(QueryMatcher(everything).Matches([](AcDbNameId) { return AcDbValue(); }));
}

TEST(QueryCondition, IsReadAsPeopleWriteIt) {
    struct {
        const wchar_t* text;
        const wchar_t* again; ///< null: not a condition
    } const cases[] = {
        {L"DIAMETER>=300", L"DIAMETER >= 300"},
        {L" Pipe type  =  cast iron ", L"Pipe type = cast iron"},
        {L"A <>", L"A <> \"\""},
        {L"A = \" x \"", L"A = \" x \""},
        {L"NAME Contains a<b", L"NAME contains a<b"},
        {L"NAME empty", L"NAME empty"},
        {L"NAME empty x", nullptr},
        {L"NAME contains", nullptr},
        {L"= 3", nullptr},
        {L"DIAMETER != 300", nullptr},
        {L"DIAMETER ! = 300", nullptr},
        {L"DIAMETER == 300", nullptr},
        {L"DIAMETER => 300", nullptr},
        {L"DIAMETER := 300", nullptr},
        {L"DIAMETER >=", nullptr},
        {L"A = \"=x\"", L"A = \"=x\""},
        {L"A = x=y", L"A = x=y"},
        {L"NAME", nullptr},
        {L"", nullptr},
    };
    for (const auto& test : cases) {
        const auto condition = ParseCondition(test.text);
        ASSERT_EQ(condition.has_value(), test.again != nullptr) << WideToUtf8(test.text);
        if (condition) {
            EXPECT_EQ(WideToUtf8(ConditionText(*condition).View()), WideToUtf8(test.again));
            EXPECT_EQ(ParseCondition(ConditionText(*condition)), condition);
        }
    }
}
