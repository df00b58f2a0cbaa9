#include "platform/arx/DbAttributes.h"
#include "tests/support/Rows.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

namespace {

using Kind = AcDbValue::Kind;

/// Kind and content of a value, for comparisons and messages.
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

TEST(AttributeNames, HaveTheSameNumberOnlyForTheSameText) {
    EXPECT_EQ(AcDbIntern(std::string("pipe")), AcDbIntern("pipe"));
    EXPECT_NE(AcDbIntern("Pipe"), AcDbIntern("pipe"));
    EXPECT_EQ(AcDbNameOf(AcDbIntern("Gefälle")), "Gefälle");
    EXPECT_EQ(AcDbNameOf(AcDbIntern("")), "");
    EXPECT_EQ(AcDbNameOf(AcDbNameId{0xFFFFFFFF}), "");
}

TEST(AttributeNames, StayValidWhileOthersAreAdded) {
    const std::string_view name = AcDbNameOf(AcDbIntern("stays"));
    for (int i = 0; i < 5000; ++i) {
        AcDbIntern("another" + std::to_string(i));
    }
    EXPECT_EQ(name.data(), AcDbNameOf(AcDbIntern("stays")).data());
}

TEST(AttributeValues, NumbersAreConvertedIfLossless) {
    const double infinity = std::numeric_limits<double>::infinity();
    const Rows<AcDbValue, std::optional<double>, std::optional<std::int64_t>> cases = {
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
    for (const auto& [value, real, integer] : cases) {
        SCOPED_TRACE(Describe(value));
        EXPECT_EQ(value.asReal(), real);
        EXPECT_EQ(value.asInteger(), integer);
    }
    EXPECT_FALSE(AcDbValue(std::nan("")).asInteger());
}

TEST(Attributes, TakeTheirOwnTextsAsValues) {
    for (const char* const text : {"short", "a text that is too long to be stored inline"}) {
        AcDbAttributes attributes;
        attributes.set(kA, text);
        for (int i = 0; i < 20; ++i) { // reallocates several times
            attributes.set(AcDbIntern("copy" + std::to_string(i)), attributes.get(kA));
        }
        attributes.set(kA, attributes.get(kA));
        for (std::size_t i = 0; i < attributes.size(); ++i) {
            EXPECT_EQ(attributes.at(i).value.asText(), text);
        }
    }
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
