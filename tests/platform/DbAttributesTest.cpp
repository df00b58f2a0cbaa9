#include "platform/arx/DbAttributes.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

namespace {

using Kind = AcDbValue::Kind;

/// A value with all that can be told of it, for comparing and for messages.
std::string Describe(const AcDbValue& value) {
    switch (value.kind()) {
    case Kind::Null:
        return "null";
    case Kind::Real:
        return "real " + std::to_string(*value.asReal());
    case Kind::Integer:
        return "integer " + std::to_string(*value.asInteger());
    default:
        return "text " + std::string(value.asText());
    }
}

std::vector<std::pair<AcDbNameId, std::string>> ContentOf(const AcDbAttributes& attributes) {
    std::vector<std::pair<AcDbNameId, std::string>> content;
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const auto [name, value] = attributes.at(i);
        content.emplace_back(name, Describe(value));
    }
    return content;
}

const AcDbNameId kA = AcDbIntern("a");
const AcDbNameId kB = AcDbIntern("b");

} // namespace

TEST(AttributeNames, AreTheSameNumberForTheSameTextOnly) {
    EXPECT_EQ(AcDbIntern(std::string("pipe")), AcDbIntern("pipe"));
    EXPECT_NE(AcDbIntern("Pipe"), AcDbIntern("pipe"));
    EXPECT_EQ(AcDbNameOf(AcDbIntern("Gefälle")), "Gefälle");
    EXPECT_EQ(AcDbNameOf(AcDbIntern("")), "");
    EXPECT_EQ(AcDbNameOf(AcDbNameId{0xFFFFFFFF}), "");
}

TEST(AttributeNames, StayWhereTheyAreWhileOthersCome) {
    const std::string_view name = AcDbNameOf(AcDbIntern("stays"));
    for (int i = 0; i < 5000; ++i) {
        AcDbIntern("another" + std::to_string(i));
    }
    EXPECT_EQ(name.data(), AcDbNameOf(AcDbIntern("stays")).data());
}

TEST(AttributeValues, NumbersAreConvertedWhenNothingIsLost) {
    const double infinity = std::numeric_limits<double>::infinity();
    const struct {
        AcDbValue value;
        std::optional<double> real;
        std::optional<std::int64_t> integer;
    } cases[] = {
        {AcDbValue(), {}, {}},
        {"7", {}, {}},
        {7, 7.0, 7},
        {-0.5, -0.5, {}},
        {3.0, 3.0, 3},
        {infinity, infinity, {}},
        {std::int64_t{INT64_MAX}, 9223372036854775808.0, INT64_MAX},
        {9223372036854775808.0, 9223372036854775808.0, {}},
        {-9223372036854775808.0, -9223372036854775808.0, INT64_MIN},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(Describe(row.value));
        EXPECT_EQ(row.value.asReal(), row.real);
        EXPECT_EQ(row.value.asInteger(), row.integer);
    }
    EXPECT_FALSE(AcDbValue(std::nan("")).asInteger());
}

TEST(Attributes, GiveBackWhatWasSet) {
    using namespace std::string_view_literals;
    const std::string big(100'000, 'x');
    const AcDbValue values[] = {AcDbValue(),
                                1.25,
                                -1,
                                std::int64_t{INT64_MIN},
                                "",
                                "eight ch",
                                "nine char",
                                "with\0NUL"sv,
                                "longer with\0NUL"sv,
                                "Straße",
                                std::string_view(big)};
    for (const AcDbValue& value : values) {
        AcDbAttributes attributes;
        attributes.set(kA, "something long that has to go");
        attributes.set(kA, value);
        EXPECT_EQ(attributes.size(), 1U);
        EXPECT_TRUE(attributes.has(kA));
        EXPECT_EQ(Describe(attributes.get(kA)), Describe(value));
        EXPECT_EQ(attributes.get(kA).kind(), value.kind());
    }
}

TEST(Attributes, TakeTheirOwnTextsAsValues) {
    for (const char* const text : {"short", "a text that is not kept in place"}) {
        AcDbAttributes attributes;
        attributes.set(kA, text);
        for (int i = 0; i < 20; ++i) { // through several growths
            attributes.set(AcDbIntern("copy" + std::to_string(i)), attributes.get(kA));
        }
        attributes.set(kA, attributes.get(kA));
        for (std::size_t i = 0; i < attributes.size(); ++i) {
            EXPECT_EQ(attributes.at(i).value.asText(), text);
        }
    }
}

TEST(Attributes, HaveNoItemBehindTheLast) {
    AcDbAttributes attributes;
    EXPECT_THROW(attributes.at(0), std::out_of_range);
    attributes.reserve(10);
    attributes.set(kA, 1);
    EXPECT_THROW(attributes.at(1), std::out_of_range);
    EXPECT_TRUE(attributes.get(kB).isNull());
    EXPECT_FALSE(attributes.remove(kB));
}

TEST(Attributes, CopiesAreDeepAndMovesLeaveNothing) {
    AcDbAttributes original;
    original.set(kA, "a text of some length");
    original.set(kB, 2);
    AcDbAttributes copy(original);
    original.set(kA, "another text altogether");
    EXPECT_EQ(copy.get(kA).asText(), "a text of some length");
    const AcDbAttributes moved(std::move(copy));
    EXPECT_EQ(moved.get(kA).asText(), "a text of some length");
    copy = original;
    EXPECT_EQ(ContentOf(copy), ContentOf(original));
}

TEST(Attributes, BehaveAsAListOfPairs) {
    std::mt19937 random(4711);
    std::vector<std::pair<AcDbNameId, std::string>> model;
    AcDbAttributes attributes;
    const auto find = [&](AcDbNameId name) {
        return std::find_if(model.begin(), model.end(),
                            [&](const auto& entry) { return entry.first == name; });
    };
    for (int step = 0; step < 20'000; ++step) {
        const AcDbNameId name = AcDbIntern("n" + std::to_string(random() % 12));
        const auto hit = find(name);
        const std::string text(random() % 20, static_cast<char>('a' + random() % 26));
        const AcDbValue values[] = {AcDbValue(), int(random() % 100), 0.5, std::string_view(text)};
        const AcDbValue& value = values[random() % std::size(values)];
        if (random() % 3 == 0) {
            EXPECT_EQ(attributes.remove(name), hit != model.end());
            if (hit != model.end()) {
                model.erase(hit);
            }
        } else {
            attributes.set(name, value);
            hit == model.end() ? void(model.emplace_back(name, Describe(value)))
                               : void(hit->second = Describe(value));
        }
        if (random() % 50 == 0) {
            attributes = AcDbAttributes(attributes);
        }
        ASSERT_EQ(ContentOf(attributes), model) << "step " << step;
    }
}
