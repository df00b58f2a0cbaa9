#include "siblings/giscore/data/DataBox.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <concepts>
#include <limits>
#include <type_traits>

#include "platform/win/Number.h"

namespace Orvane::Data {

namespace {

/// Truncates and clamps to the range of the type.
template <class Whole>
Whole ToWhole(std::floating_point auto value) {
    // Converted to double, the largest long is one too large.
    constexpr auto kLeast = static_cast<double>(std::numeric_limits<Whole>::min());
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= -kLeast) {
        return std::numeric_limits<Whole>::max();
    }
    return value <= kLeast ? std::numeric_limits<Whole>::min() : static_cast<Whole>(value);
}

template <class Whole>
Whole ToWhole(std::integral auto value) {
    return static_cast<Whole>(std::clamp<long>(value, std::numeric_limits<Whole>::min(),
                                               std::numeric_limits<Whole>::max()));
}

CString Join(const CStringArray& pieces) {
    CString text;
    for (int i = 0; i < pieces.GetCount(); ++i) {
        if (i > 0) {
            text += L';';
        }
        text += pieces[i];
    }
    return text;
}

/// Passes numbers to one function and values that have to be parsed, as a text, to the other.
template <class Value, class FromNumber, class FromText>
auto Convert(const Value& value, FromNumber fromNumber, FromText fromText) {
    return std::visit(
        [&](const auto& content) {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, std::monostate>) {
                return fromNumber(0);
            } else if constexpr (std::is_arithmetic_v<Content>) {
                return fromNumber(content);
            } else if constexpr (std::is_same_v<Content, CString>) {
                return fromText(content);
            } else {
                return fromText(Join(content));
            }
        },
        value);
}

} // namespace

int CDataBox::GetDataType() const {
    // In the order of the variant's alternatives.
    static constexpr std::array kTypes = {DataTypeNone, DataTypeDouble, DataTypeInt,
                                          DataTypeText, DataTypeLong,   DataTypeTextList};
    static_assert(kTypes.size() == std::variant_size_v<decltype(m_value)>);
    return kTypes[m_value.index()];
}

CDataBox::operator double() const {
    return Convert(
        m_value, [](auto number) { return static_cast<double>(number); },
        [](const CString& text) { return TextToDouble(text.Str()); });
}

CDataBox::operator int() const {
    return Convert(
        m_value, [](auto number) { return ToWhole<int>(number); },
        [](const CString& text) { return TextToInt(text.View()); });
}

CDataBox::operator long() const {
    return Convert(
        m_value, [](auto number) { return ToWhole<long>(number); },
        [](const CString& text) { return TextToLong(text.View()); });
}

CDataBox::operator CString() const {
    if (IsNull()) {
        return CString();
    }
    const auto write = [](auto number) {
        if constexpr (std::is_floating_point_v<decltype(number)>) {
            return CString(RealToText(number));
        } else {
            return CString(std::to_wstring(number));
        }
    };
    return Convert(m_value, write, [](const CString& text) { return text; });
}

const CStringArray& CDataBox::GetStringArray() const {
    static const CStringArray kNone;
    const auto* const pieces = std::get_if<CStringArray>(&m_value);
    return pieces ? *pieces : kNone;
}

} // namespace Orvane::Data
