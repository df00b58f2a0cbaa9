#include "siblings/giscore/query/QueryMatcher.h"

#include <algorithm>
#include <cmath>
#include <compare>

#include "platform/win/CodePage.h"
#include "platform/win/Number.h"

namespace Orvane::Query {

namespace {

/// Numbers compare by value, texts alphabetically; nullopt for a number and a text.
std::optional<std::partial_ordering> Order(const std::optional<double>& leftNumber,
                                           const CString& left,
                                           const std::optional<double>& rightNumber,
                                           const CString& right) {
    if (leftNumber && rightNumber) {
        return *leftNumber <=> *rightNumber;
    }
    if (leftNumber || rightNumber) {
        return std::nullopt;
    }
    return left.CompareNoCase(right) <=> 0;
}

} // namespace

std::string ValueText(const AcDbValue& value) {
    const auto real = value.asReal();
    if (!real) {
        return std::string(value.asText());
    }
    return std::isnan(*real) ? std::string() : WideToUtf8(RealToText(*real));
}

std::optional<double> ValueNumber(const AcDbValue& value) {
    const auto real = value.asReal();
    const auto number = real ? real : TextToReal(value.asText());
    return number && std::isfinite(*number) ? number : std::nullopt;
}

QueryMatcher::QueryMatcher(const CQueryDefinition& query) : m_bMatchAny(query.GetMatchAny()) {
    for (const Condition& condition : query.GetConditions()) {
        m_tests.push_back({AcDbIntern(WideToUtf8(condition.attribute.View())), condition.op,
                           condition.value, TextToReal(WideToUtf8(condition.value.View()))});
    }
}

bool QueryMatcher::Matches(const ValueOf& valueOf) const {
    const auto fulfils = [&](const Test& test) { return Fulfils(test, valueOf(test.attribute)); };
    return m_bMatchAny && !m_tests.empty() ? std::any_of(m_tests.begin(), m_tests.end(), fulfils)
                                           : std::all_of(m_tests.begin(), m_tests.end(), fulfils);
}

bool QueryMatcher::Fulfils(const Test& test, const AcDbValue& value) {
    const CString text = Utf8ToWide(ValueText(value));
    if (test.op == Operator::Contains) {
        return CString(text).MakeUpper().Find(CString(test.text).MakeUpper().View()) >= 0;
    }
    if (test.op == Operator::IsEmpty) {
        return text.IsEmpty();
    }
    const auto order = Order(ValueNumber(value), text, test.number, test.text);
    const bool isEqual = order && std::is_eq(*order);
    const bool isOrdered = order && !text.IsEmpty();
    switch (test.op) {
    case Operator::Equal:
        return isEqual;
    case Operator::NotEqual:
        return !isEqual;
    case Operator::Less:
        return isOrdered && std::is_lt(*order);
    case Operator::LessOrEqual:
        return isOrdered && std::is_lteq(*order);
    case Operator::Greater:
        return isOrdered && std::is_gt(*order);
    case Operator::GreaterOrEqual:
        return isOrdered && std::is_gteq(*order);
    default:
        return false;
    }
}

} // namespace Orvane::Query
