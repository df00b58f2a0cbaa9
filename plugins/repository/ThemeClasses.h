// How a theme sorts values into classes, each with a colour.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "plugins/common/Texts.h"

namespace Orvane::Repository {

enum class ThemeMode {
    Unique, ///< a class for each value
    Ranges, ///< classes of numbers
    None,   ///< no classes: entities take the colour of their layer again
};

struct ThemeRule {
    ThemeMode mode = ThemeMode::Unique;
    /// Of ranges without breaks: as many classes of equally many values, as far as there are
    /// different values.
    int classCount = 5;
    /// Of ranges: where a class ends and the next begins; ascending. Empty: from the values.
    std::vector<double> breaks;
    /// Colour indexes from 1 to 255, class by class, from the front again at their end. Empty:
    /// the theme's own choice.
    std::vector<int> colors;
};

inline constexpr int kMostThemeClasses = 12;

/// Empty, or why a rule makes no sense.
std::optional<Plugins::Msg> ThemeRuleFault(const ThemeRule& rule);

/// The value of an entity: an empty text for none, and the number that it is.
struct ThemeValue {
    std::string text;
    std::optional<double> number;
};

struct ThemeClass {
    std::string label; ///< a value, or a range as "100 <= x < 200"
    int color = 0;
    std::size_t count = 0;
};

struct ThemeResult {
    std::vector<ThemeClass> classes; ///< in the order of the legend, none empty of colour
    std::vector<int> classOf;        ///< for each value; kNoClass for those of no class
    std::size_t CountWithout() const;
};
inline constexpr int kNoClass = -1;

/// Values beyond the most frequent ones of kMostUniqueClasses share a last class.
ThemeResult Classify(std::span<const ThemeValue> values, const ThemeRule& rule);
inline constexpr std::size_t kMostUniqueClasses = 30;

/// Breaks between classes of equally many numbers. Strictly ascending, at most count - 1,
/// and none below or at the lowest number.
std::vector<double> EqualCountBreaks(std::vector<double> numbers, int count);

} // namespace Orvane::Repository
