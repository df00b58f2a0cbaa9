// Queries: they select entities.
#pragma once

#include "siblings/giscore/repository/IRepositoryFamily.h"

namespace Orvane::Repository {

/// Running one highlights the entities in the view with the colour of the general setting
/// "PT_MARK_COLOR", notifies the publisher "SELECTION_COMPLETED" with the selection set as the
/// first hint, and prints the count.
class QueryFamily final : public IRepositoryFamily {
public:
    boost::shared_ptr<CRepositoryItem> CreateItem(const wchar_t* guid,
                                                  const wchar_t* name) override;
    bool EditContent(CRepositoryItem& item, const System::CGisSystem* pSystem) override;
    std::optional<int> Run(const CRepositoryItem& item, System::CGisSystem& system,
                           const Query::CQueryDefinition* pOnly) override;
};

} // namespace Orvane::Repository
