// A query over the entities of a system, kept as a repository item.
#pragma once

#include <optional>
#include <vector>

#include "siblings/giscore/repository/RepositoryItem.h"

namespace Orvane::Query {

enum class Operator {
    Equal,
    NotEqual,
    Less,
    LessOrEqual,
    Greater,
    GreaterOrEqual,
    Contains,
    IsEmpty, ///< ignores the value
};

/// As written in a condition: "=", "<>", "<", "<=", ">", ">=", "contains", "empty".
GISCORE_API const wchar_t* OperatorText(Operator op);
/// Case-insensitive; nullopt for any other text.
GISCORE_API std::optional<Operator> OperatorOf(const CString& text);

struct Condition {
    CString attribute; ///< attribute name in the drawing, case-sensitive
    Operator op = Operator::Equal;
    CString value;
    friend bool operator==(const Condition&, const Condition&) = default;
};

/// Conditions on attributes; an entity must meet all of them, or any. Not tied to a system, so it
/// can run on each. Without conditions every entity of the queried kind matches.
class GISCORE_API CQueryDefinition : public CRepositoryItem {
public:
    CQueryDefinition(const wchar_t* guid, const wchar_t* name)
        : CRepositoryItem(L"QUERY", guid, name) {}
    ~CQueryDefinition() override;

    /// The kind of entity to search; EntityNone for all kinds.
    enmEntityType GetQueriedType() const { return m_enmQueriedType; }
    void SetQueriedType(enmEntityType type) { m_enmQueriedType = type; }
    /// Whether meeting one condition is enough.
    bool GetMatchAny() const { return m_bMatchAny; }
    void SetMatchAny(bool any) { m_bMatchAny = any; }
    const std::vector<Condition>& GetConditions() const { return m_conditions; }
    void SetConditions(std::vector<Condition> conditions) { m_conditions = std::move(conditions); }

protected:
    void WriteContent(XmlElement& root) const override;
    CString ReadContent(const XmlElement& root) override;

private:
    enmEntityType m_enmQueriedType = EntityNone;
    bool m_bMatchAny = false;
    std::vector<Condition> m_conditions;
};

/// Parses a condition as users write it, "DIAMETER >= 300" or "NAME empty"; the inverse of
/// ConditionText. A value may be in double quotes. Returns nullopt if it is not a valid
/// condition.
GISCORE_API std::optional<Condition> ParseCondition(const CString& text);
GISCORE_API CString ConditionText(const Condition& condition);

} // namespace Orvane::Query
