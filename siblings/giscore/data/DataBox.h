// A value of any of the types that dialogs and entities store.
#pragma once

#include <variant>

#include "platform/win/StringArray.h"
#include "siblings/giscore/Api.h"

namespace Orvane::Data {

/// Content types; the numbers are persisted.
enum enmDataType : int {
    DataTypeNone = 0,
    DataTypeDouble = 5001,
    DataTypeInt = 5003,
    DataTypeText = 5005,
    DataTypeLong = 5010,
    DataTypeTextList = 5023,
};

/// Stores any type and converts to any other; a conversion never fails. The numeric prefix of a
/// text counts as a number, reals are truncated and clamped to the range of an integer type, and
/// a list becomes one text joined by ";". An empty box converts to 0 or an empty text.
class GISCORE_API CDataBox {
public:
    CDataBox() = default;
    CDataBox(double value) : m_value(value) {}
    CDataBox(int value) : m_value(value) {}
    CDataBox(long value) : m_value(value) {}
    CDataBox(const wchar_t* value) : m_value(CString(value)) {}
    CDataBox(CString value) : m_value(std::move(value)) {}
    CDataBox(CStringArray value) : m_value(std::move(value)) {}

    /// An enmDataType.
    int GetDataType() const;
    bool IsNull() const { return GetDataType() == DataTypeNone; }

    void SetValue(double value) { m_value = value; }
    void SetValue(int value) { m_value = value; }
    void SetValue(long value) { m_value = value; }
    void SetValue(const wchar_t* value) { m_value = CString(value); }
    void SetValue(CStringArray value) { m_value = std::move(value); }

    operator double() const;
    operator int() const;
    operator long() const;
    /// Reals in the shortest form that round-trips.
    operator CString() const;
    /// The items of a list; empty if the box holds anything else.
    const CStringArray& GetStringArray() const;

private:
    std::variant<std::monostate, double, int, CString, long, CStringArray> m_value;
};

} // namespace Orvane::Data
