// Classifies the values of a theme and assigns colours.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "plugins/common/Texts.h"

namespace Orvane::Repository {

enum class ThemeMode {
    Unique, ///< one class per value
    Ranges, ///< numeric ranges
    None,   ///< no classes: entities get the colour of their layer
};

struct ThemeRule {
    ThemeMode mode = ThemeMode::Unique;
    /// For ranges without breaks: the number of classes with equal counts, limited by the number of
    /// distinct values.
    int classCount = 5;
    /// For ranges: the boundaries between classes, ascending. If empty, they are derived from the
    /// values.
    std::vector<double> breaks;
    /// Colour indexes from 1 to 255 for the classes, repeated if there are more classes. If empty,
    /// the theme chooses them.
    std::vector<int> colors;
};

inline constexpr int kMostThemeClasses = 12;

/// Why a rule is invalid; nothing if it is valid.
std::optional<Plugins::Msg> ThemeRuleFault(const ThemeRule& rule);

/// The value of an entity: the text (empty for no value) and its number, if it is one.
struct ThemeValue {
    std::string text;
    std::optional<double> number;
};

struct ThemeClass {
    std::string label; ///< a value, or a range such as "100 <= x < 200"
    int color = 0;
    std::size_t count = 0;
};

struct ThemeResult {
    std::vector<ThemeClass> classes; ///< in legend order; each has a colour
    std::vector<int> classOf;        ///< by value: its class, or kNoClass
    std::size_t CountWithout() const;
};
inline constexpr int kNoClass = -1;

/// If there are more than kMostUniqueClasses values, the less frequent ones share a last class.
ThemeResult Classify(std::span<const ThemeValue> values, const ThemeRule& rule);
inline constexpr std::size_t kMostUniqueClasses = 30;

/// Breaks between classes of equally many numbers: strictly ascending, at most count - 1, all above
/// the lowest number.
std::vector<double> EqualCountBreaks(std::vector<double> numbers, int count);

} // namespace Orvane::Repository
