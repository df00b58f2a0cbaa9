// A value of one of the kinds that dialogs and entities keep.
#pragma once

#include <variant>

#include "platform/win/StringArray.h"
#include "siblings/giscore/Api.h"

namespace Orvane::Data {

/// Kinds of content by the numbers under which they are persisted.
enum enmDataType : int {
    DataTypeNone = 0,
    DataTypeDouble = 5001,
    DataTypeInt = 5003,
    DataTypeText = 5005,
    DataTypeLong = 5010,
    DataTypeTextList = 5023,
};

/// Takes any kind in and gives it out as any other; a conversion never fails. Texts become
/// numbers as far as they can be read as one, numbers become the nearest one of the other
/// kind, and a list is one text with ";" between its pieces. An empty box is 0 or no text.
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
    /// Reals in the shortest form that reads back as the same number.
    operator CString() const;
    /// The pieces of a list; none if the box holds anything else.
    const CStringArray& GetStringArray() const;

private:
    std::variant<std::monostate, double, int, CString, long, CStringArray> m_value;
};

} // namespace Orvane::Data
