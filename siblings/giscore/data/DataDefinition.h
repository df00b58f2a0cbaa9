// The description of a value that entities can have.
#pragma once

#include <vector>

#include "platform/win/String.h"
#include "siblings/giscore/Api.h"

namespace Orvane::Data {

struct CDataDefinition {
    enum class Type { Number, Text };

    CString m_strName;  ///< by which values are kept
    CString m_strLabel; ///< as the user reads it
    CString m_strUnit;  ///< of numbers; empty if there is none
    Type m_type = Type::Number;
};

/// Reads definitions from a file of the folder "support": a section each, named after
/// the value, with the keys label, unit and type (number or text). What is wrong with the
/// file is noted with CModuleConfiguration. A file that is not there defines nothing.
GISCORE_API std::vector<CDataDefinition> ReadDataDefinitions(const wchar_t* fileName);

} // namespace Orvane::Data
