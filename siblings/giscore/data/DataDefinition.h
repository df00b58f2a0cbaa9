// Definition of a value that entities can have.
#pragma once

#include <vector>

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"

namespace Orvane::Data {

struct CDataDefinition {
    enum class Type { Number, Text };

    CString m_strName;  ///< key under which values are stored
    CString m_strLabel; ///< display text
    CString m_strUnit;  ///< unit of a number; may be empty
    Type m_type = Type::Number;
};

/// Reads definitions from a file of the folder "support": one section per value, named after it,
/// with the keys label, unit and type (number or text). Problems are reported to
/// CModuleConfiguration. A missing file defines nothing.
GISCORE_API std::vector<CDataDefinition> ReadDataDefinitions(const wchar_t* fileName);

} // namespace Orvane::Data
