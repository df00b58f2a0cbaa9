#include "siblings/giscore/data/DataBox.h"

#include <gtest/gtest.h>
#include <limits>

#include "platform/win/CodePage.h"
#include "tests/support/Rows.h"

namespace Orvane::Data {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr int kMostInt = std::numeric_limits<int>::max();
constexpr int kLeastInt = std::numeric_limits<int>::min();
constexpr long kMostLong = std::numeric_limits<long>::max();
constexpr long kLeastLong = std::numeric_limits<long>::min();

CStringArray List(std::initializer_list<const wchar_t*> pieces) {
    CStringArray list;
    for (const wchar_t* piece : pieces) {
        list.Add(piece);
    }
    return list;
}

TEST(DataBox, EveryKindIsGivenOutAsEveryOther) {
    const Rows<CDataBox, int, int, double, long, const wchar_t*> cases = {
        {{}, 0, 0, 0, 0, L""},
        {1.0 / 3, 5001, 0, 1.0 / 3, 0, L"0.3333333333333333"},
        {-2.9, 5001, -2, -2.9, -2, L"-2.9"},
        {1e10, 5001, kMostInt, 1e10, 10000000000L, L"1e+10"},
        {9223372036854775808.0, 5001, kMostInt, 9223372036854775808.0, kMostLong,
         L"9223372036854775808"},
        {-1e300, 5001, kLeastInt, -1e300, kLeastLong, L"-1e+300"},
        {kInfinity, 5001, kMostInt, kInfinity, kMostLong, L"inf"},
        {-7, 5003, -7, -7, -7, L"-7"},
        {kLeastInt, 5003, kLeastInt, kLeastInt, kLeastInt, L"-2147483648"},
        {true, 5003, 1, 1, 1, L"1"},
        {2147483648L, 5010, kMostInt, 2147483648.0, 2147483648L, L"2147483648"},
        {kLeastLong, 5010, kLeastInt, -9223372036854775808.0, kLeastLong, L"-9223372036854775808"},
        {L" 12.75 m", 5005, 12, 12.75, 12, L" 12.75 m"},
        {L"99999999999999999999", 5005, kMostInt, 1e20, kMostLong, L"99999999999999999999"},
        {L"m 12", 5005, 0, 0, 0, L"m 12"},
        {CString(L"1,5"), 5005, 1, 1, 1, L"1,5"},
        {static_cast<const wchar_t*>(nullptr), 5005, 0, 0, 0, L""},
        {List({L"3", L"", L"b"}), 5023, 3, 3, 3, L"3;;b"},
        {List({}), 5023, 0, 0, 0, L""},
    };
    for (const auto& [box, type, asInt, asDouble, asLong, asText] : cases) {
        const std::string name = WideToUtf8(asText) + " of " + std::to_string(type);
        EXPECT_EQ(box.GetDataType(), type) << name;
        EXPECT_EQ(box.IsNull(), type == 0) << name;
        EXPECT_EQ(static_cast<double>(box), asDouble) << name;
        EXPECT_EQ(static_cast<int>(box), asInt) << name;
        EXPECT_EQ(static_cast<long>(box), asLong) << name;
        EXPECT_EQ(static_cast<CString>(box), asText) << name;
    }
    EXPECT_EQ(static_cast<int>(CDataBox(kNoNumber)), 0);
    EXPECT_EQ(static_cast<long>(CDataBox(kNoNumber)), 0);
}

TEST(DataBox, OnlyAListHasPieces) {
    CDataBox box(List({L"1#a#x", L""}));
    ASSERT_EQ(box.GetStringArray().GetCount(), 2);
    EXPECT_EQ(box.GetStringArray()[0], L"1#a#x");
    box.SetValue(L"1;2");
    EXPECT_TRUE(box.GetStringArray().IsEmpty());
    EXPECT_TRUE(CDataBox().GetStringArray().IsEmpty());
}

} // namespace
} // namespace Orvane::Data
