// Whether values fulfil a query.
#pragma once

#include <functional>
#include <string>

#include "platform/arx/DbAttributes.h"
#include "siblings/giscore/query/QueryDefinition.h"

namespace Orvane::Query {

/// The value of an attribute; a null value if there is none.
using ValueOf = std::function<AcDbValue(AcDbNameId)>;

/// The conditions of a query, made ready for asking many entities. The kind of entity is for
/// the caller to look at.
///
/// A text that is a number counts as one. Numbers compare by size, texts letter by letter
/// without regard to case, and a number against a text only as equal or not. A value that is
/// not there, or an empty text, is empty: it equals nothing but an empty value.
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

/// A value as people read it: a number in its shortest form, an empty text for none. UTF-8.
GISCORE_API std::string ValueText(const AcDbValue& value);
/// The number that a value is, be it as a text.
GISCORE_API std::optional<double> ValueNumber(const AcDbValue& value);

} // namespace Orvane::Query
