// Tests values against a query.
#pragma once

#include <functional>
#include <string>

#include "platform/arx/DbAttributes.h"
#include "siblings/giscore/query/QueryDefinition.h"

namespace Orvane::Query {

/// Returns the value of an attribute; a null value if there is none.
using ValueOf = std::function<AcDbValue(AcDbNameId)>;

/// The conditions of a query, prepared for testing many entities. The caller checks the kind of
/// entity.
///
/// A text that reads as a number counts as one. Numbers compare by value, texts
/// case-insensitively, and a number and a text only for equality. A missing value and an empty
/// text are both empty and equal only to an empty value.
class GISCORE_API QueryMatcher {
public:
    explicit QueryMatcher(const CQueryDefinition& query);
    bool Matches(const ValueOf& valueOf) const;

private:
    struct Test {
        AcDbNameId attribute;
        Operator op;
        CString text;
        std::optional<double> number;
    };
    static bool Fulfils(const Test& test, const AcDbValue& value);

    std::vector<Test> m_tests;
    bool m_bMatchAny;
};

/// Display form of a value: the shortest form of a number, an empty text for null. UTF-8.
GISCORE_API std::string ValueText(const AcDbValue& value);
/// The numeric value, also of a text that reads as a number.
GISCORE_API std::optional<double> ValueNumber(const AcDbValue& value);

} // namespace Orvane::Query
