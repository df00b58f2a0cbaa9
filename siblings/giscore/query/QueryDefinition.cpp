#include "siblings/giscore/query/QueryDefinition.h"

#include "siblings/giscore/utility/GisTexts.h"
#include "siblings/giscore/utility/XmlElement.h"

namespace Orvane::Query {

namespace {

/// Indexed by Operator.
constexpr const wchar_t* kOperators[] = {L"=", L"<>", L"<",        L"<=",
                                         L">", L">=", L"contains", L"empty"};

constexpr const wchar_t* kQueriedType = L"of";
constexpr const wchar_t* kMatch = L"match";
constexpr const wchar_t* kCondition = L"condition";
constexpr const wchar_t* kAttribute = L"attribute";
constexpr const wchar_t* kOperator = L"operator";
constexpr const wchar_t* kValue = L"value";

CString WithoutQuotes(CString text) {
    text.Trim();
    const int length = text.GetLength();
    const bool isQuoted = length >= 2 && text.GetAt(0) == L'"' && text.GetAt(length - 1) == L'"';
    return isQuoted ? text.Mid(1, length - 2) : text;
}

/// The longest symbolic operator at the start of a text.
std::optional<Operator> SignAt(std::wstring_view text) {
    std::optional<Operator> found;
    std::size_t length = 0;
    for (std::size_t i = 0; i < std::size(kOperators); ++i) {
        const std::wstring_view sign = kOperators[i];
        if (sign[0] < L'a' && text.starts_with(sign) && sign.size() > length) {
            found = static_cast<Operator>(i);
            length = sign.size();
        }
    }
    return found;
}

constexpr std::wstring_view kSigns = L"<>=";
constexpr std::wstring_view kForeignEnds = L"!~:&|^";

/// Users of other notations write "!=", ":=", "~=", "==" or "=>". Accepted as is, the extra
/// character would become part of the attribute name or of the value.
bool HasForeignSign(std::wstring_view attribute, std::wstring_view value) {
    return kForeignEnds.find(attribute.back()) != kForeignEnds.npos ||
           (!value.empty() && kSigns.find(value.front()) != kSigns.npos);
}

/// Only "=" and "<>" accept an empty value.
bool NeedsValue(Operator op) {
    return op != Operator::Equal && op != Operator::NotEqual;
}

std::optional<Condition> ParseSigns(const CString& text) {
    const int at = static_cast<int>(text.View().find_first_of(kSigns));
    if (at <= 0) {
        return std::nullopt;
    }
    const auto op = SignAt(text.View().substr(static_cast<std::size_t>(at)));
    const int behind = at + CString(OperatorText(*op)).GetLength();
    const CString attribute = text.Left(at).Trim();
    const CString value = text.Mid(behind).Trim();
    if (attribute.IsEmpty() || HasForeignSign(attribute.View(), value.View()) ||
        (NeedsValue(*op) && value.IsEmpty())) {
        return std::nullopt;
    }
    return Condition{attribute, *op, WithoutQuotes(value)};
}

std::optional<Condition> ParseWords(const CString& text) {
    const int blank = text.Find(L' ');
    if (blank <= 0) {
        return std::nullopt;
    }
    const CString rest = text.Mid(blank).Trim();
    const int end = rest.Find(L' ');
    const auto op = OperatorOf(end < 0 ? rest : rest.Left(end));
    const CString value = end < 0 ? CString() : WithoutQuotes(rest.Mid(end));
    const bool isWord = op == Operator::Contains || op == Operator::IsEmpty;
    // "empty" takes no value, "contains" requires one.
    if (!isWord || (op == Operator::IsEmpty) != (end < 0)) {
        return std::nullopt;
    }
    return Condition{text.Left(blank), *op, value};
}

} // namespace

const wchar_t* OperatorText(Operator op) {
    return kOperators[static_cast<std::size_t>(op)];
}

std::optional<Operator> OperatorOf(const CString& text) {
    for (std::size_t i = 0; i < std::size(kOperators); ++i) {
        if (text.CompareNoCase(kOperators[i]) == 0) {
            return static_cast<Operator>(i);
        }
    }
    return std::nullopt;
}

CQueryDefinition::~CQueryDefinition() = default;

void CQueryDefinition::WriteContent(XmlElement& root) const {
    root.Set(kQueriedType, m_enmQueriedType).Set(kMatch, m_bMatchAny ? L"any" : L"all");
    for (const Condition& condition : m_conditions) {
        root.children.emplace_back(kCondition)
            .Set(kAttribute, condition.attribute)
            .Set(kOperator, OperatorText(condition.op))
            .Set(kValue, condition.value);
    }
}

CString CQueryDefinition::ReadContent(const XmlElement& root) {
    const auto type = root.GetInt(kQueriedType);
    const CString match = root.Get(kMatch);
    if (!type || (match != L"any" && match != L"all")) {
        return MessageText(GisMsg::NoQueriedType);
    }
    m_enmQueriedType = static_cast<enmEntityType>(*type);
    m_bMatchAny = match == L"any";
    m_conditions.clear();
    for (const XmlElement& child : root.children) {
        const auto op = OperatorOf(child.Get(kOperator));
        if (child.name != kCondition || !op || child.Get(kAttribute).IsEmpty()) {
            return MessageText(GisMsg::InvalidCondition);
        }
        m_conditions.push_back({child.Get(kAttribute), *op, child.Get(kValue)});
    }
    return {};
}

std::optional<Condition> ParseCondition(const CString& text) {
    const CString trimmed = CString(text).Trim();
    // Ignore symbols inside the value of "contains".
    const auto words = ParseWords(trimmed);
    return words ? words : ParseSigns(trimmed);
}

CString ConditionText(const Condition& condition) {
    CString left = condition.attribute + L" " + OperatorText(condition.op);
    if (condition.op == Operator::IsEmpty) {
        return left;
    }
    const bool needsQuotes =
        condition.value.IsEmpty() || condition.value != CString(condition.value).Trim() ||
        condition.value.GetAt(0) == L'"' || kSigns.find(condition.value.GetAt(0)) != kSigns.npos;
    return left + L" " + (needsQuotes ? L"\"" + condition.value + L"\"" : condition.value);
}

} // namespace Orvane::Query
