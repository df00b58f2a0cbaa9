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
    IsEmpty, ///< the value is not looked at
};

/// As it is written: "=", "<>", "<", "<=", ">", ">=", "contains", "empty".
GISCORE_API const wchar_t* OperatorText(Operator op);
/// Without regard to case; nothing for any other text.
GISCORE_API std::optional<Operator> OperatorOf(const CString& text);

struct Condition {
    CString attribute; ///< its name in the drawing, case sensitive
    Operator op = Operator::Equal;
    CString value;
    friend bool operator==(const Condition&, const Condition&) = default;
};

/// Conditions on attributes, of which an entity has to fulfil all, or any. Names no system,
/// so it can be asked of each. Without conditions every entity of the kind fulfils it.
class GISCORE_API CQueryDefinition : public CRepositoryItem {
public:
    CQueryDefinition(const wchar_t* guid, const wchar_t* name)
        : CRepositoryItem(L"QUERY", guid, name) {}
    ~CQueryDefinition() override;

    /// The kind of entities that are asked for; EntityNone for every kind.
    enmEntityType GetQueriedType() const { return m_enmQueriedType; }
    void SetQueriedType(enmEntityType type) { m_enmQueriedType = type; }
    /// Whether one fulfilled condition is enough.
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

/// A condition as people write it, "DIAMETER >= 300" or "NAME empty"; the reverse of
/// ConditionText. A value may stand in double quotes. Nothing if it is none.
GISCORE_API std::optional<Condition> ParseCondition(const CString& text);
GISCORE_API CString ConditionText(const Condition& condition);

} // namespace Orvane::Query
