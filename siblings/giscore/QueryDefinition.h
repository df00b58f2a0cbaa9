// A query over the entities of a system, kept as a repository item.
#pragma once

#include "siblings/giscore/RepositoryItem.h"

namespace Orvane::Query {

/// So far a query is its name; what it asks for comes with the query module.
class GISCORE_API CQueryDefinition : public CRepositoryItem {
public:
    CQueryDefinition(const wchar_t* guid, const wchar_t* name)
        : CRepositoryItem(L"QUERY", guid, name) {}
    ~CQueryDefinition() override;
};

} // namespace Orvane::Query
