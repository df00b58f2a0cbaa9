#include "plugins/repository/ThemeClasses.h"

#include <algorithm>
#include <functional>
#include <map>

#include "platform/win/CodePage.h"
#include "platform/win/Number.h"

namespace Orvane::Repository {

namespace {

// Colours that are distinguishable on light and dark backgrounds.
constexpr int kUniqueColors[] = {1, 3, 5, 30, 6, 4, 40, 94, 200, 142, 22, 82, 220, 112, 52};
/// From blue through green to red.
constexpr int kRamp[] = {170, 160, 140, 130, 110, 90, 70, 50, 40, 30, 20, 10};
constexpr int kOtherColor = 8;

std::string Text(double number) {
    return WideToUtf8(RealToText(number));
}

int UniqueColor(const ThemeRule& rule, std::size_t index) {
    return rule.colors.empty() ? kUniqueColors[index % std::size(kUniqueColors)]
                               : rule.colors[index % rule.colors.size()];
}

int RangeColor(const ThemeRule& rule, std::size_t index, std::size_t count) {
    if (!rule.colors.empty()) {
        return rule.colors[index % rule.colors.size()];
    }
    const std::size_t last = std::size(kRamp) - 1;
    return kRamp[count < 2 ? 0 : std::min(last, index * last / (count - 1))];
}

std::string RangeLabel(const std::vector<double>& breaks, std::size_t index) {
    if (breaks.empty()) {
        return "x";
    }
    const std::string below = index == 0 ? "" : Text(breaks[index - 1]) + " <= ";
    return below + "x" + (index == breaks.size() ? "" : " < " + Text(breaks[index]));
}

/// Numbers by value, then texts alphabetically.
struct LegendOrder {
    bool operator()(const ThemeValue& left, const ThemeValue& right) const {
        if (left.number && right.number && *left.number != *right.number) {
            return *left.number < *right.number;
        }
        return left.number.has_value() != right.number.has_value() ? left.number.has_value()
                                                                   : left.text < right.text;
    }
};

using ValueCounts = std::map<ThemeValue, std::size_t, LegendOrder>;

/// The minimum count of a value to get a class of its own.
std::size_t LeastCount(const ValueCounts& counts) {
    std::vector<std::size_t> sorted;
    for (const auto& [value, count] : counts) {
        sorted.push_back(count);
    }
    std::sort(sorted.begin(), sorted.end(), std::greater<>());
    return sorted.size() > kMostUniqueClasses ? sorted[kMostUniqueClasses - 1] : 0;
}

ThemeResult ClassifyUnique(std::span<const ThemeValue> values, const ThemeRule& rule) {
    ValueCounts counts;
    for (const ThemeValue& value : values) {
        if (!value.text.empty()) {
            ++counts[value];
        }
    }
    ThemeResult result;
    std::map<ThemeValue, int, LegendOrder> classOf;
    const std::size_t least = LeastCount(counts);
    std::size_t others = 0;
    for (const auto& [value, count] : counts) {
        if (count >= least && result.classes.size() < kMostUniqueClasses) {
            classOf[value] = static_cast<int>(result.classes.size());
            result.classes.push_back({value.text, UniqueColor(rule, result.classes.size()), count});
        } else {
            others += count;
        }
    }
    const int otherClass = static_cast<int>(result.classes.size());
    if (others > 0) {
        result.classes.push_back({"...", kOtherColor, others});
    }
    for (const ThemeValue& value : values) {
        const auto hit = classOf.find(value);
        result.classOf.push_back(value.text.empty()     ? kNoClass
                                 : hit == classOf.end() ? otherClass
                                                        : hit->second);
    }
    return result;
}

ThemeResult ClassifyRanges(std::span<const ThemeValue> values, const ThemeRule& rule) {
    std::vector<double> breaks = rule.breaks;
    if (breaks.empty()) {
        std::vector<double> numbers;
        for (const ThemeValue& value : values) {
            if (value.number) {
                numbers.push_back(*value.number);
            }
        }
        breaks = EqualCountBreaks(std::move(numbers), rule.classCount);
    }
    ThemeResult result;
    for (std::size_t i = 0; i <= breaks.size(); ++i) {
        result.classes.push_back(
            {RangeLabel(breaks, i), RangeColor(rule, i, breaks.size() + 1), 0});
    }
    for (const ThemeValue& value : values) {
        int number = kNoClass;
        if (value.number) {
            const auto above = std::upper_bound(breaks.begin(), breaks.end(), *value.number);
            number = static_cast<int>(above - breaks.begin());
            ++result.classes[static_cast<std::size_t>(number)].count;
        }
        result.classOf.push_back(number);
    }
    return result;
}

} // namespace

std::optional<Plugins::Msg> ThemeRuleFault(const ThemeRule& rule) {
    const auto isNoColor = [](int color) { return color < 1 || color > 255; };
    if (std::any_of(rule.colors.begin(), rule.colors.end(), isNoColor)) {
        return Plugins::Msg::ColorRange;
    }
    if (rule.classCount < 1 || rule.classCount > kMostThemeClasses) {
        return Plugins::Msg::ClassCountRange;
    }
    const auto isNotLess = [](double left, double right) { return !(left < right); };
    if (std::adjacent_find(rule.breaks.begin(), rule.breaks.end(), isNotLess) !=
        rule.breaks.end()) {
        return Plugins::Msg::BreaksNotAscending;
    }
    return std::nullopt;
}

std::size_t ThemeResult::CountWithout() const {
    return static_cast<std::size_t>(std::count(classOf.begin(), classOf.end(), kNoClass));
}

ThemeResult Classify(std::span<const ThemeValue> values, const ThemeRule& rule) {
    switch (rule.mode) {
    case ThemeMode::Unique:
        return ClassifyUnique(values, rule);
    case ThemeMode::Ranges:
        return ClassifyRanges(values, rule);
    default:
        return {{}, std::vector<int>(values.size(), kNoClass)};
    }
}

std::vector<double> EqualCountBreaks(std::vector<double> numbers, int count) {
    std::sort(numbers.begin(), numbers.end());
    std::vector<double> breaks;
    for (int i = 1; i < count && !numbers.empty(); ++i) {
        const std::size_t at = numbers.size() * static_cast<std::size_t>(i) / count;
        const double lowest = breaks.empty() ? numbers.front() : breaks.back();
        if (numbers[at] > lowest) {
            breaks.push_back(numbers[at]);
        }
    }
    return breaks;
}

} // namespace Orvane::Repository
