// Themes: colour entities by an attribute.
#pragma once

#include "plugins/repository/ThemeClasses.h"
#include "siblings/giscore/repository/IRepositoryFamily.h"

namespace Orvane::Repository {

class ThemeDefinition final : public CRepositoryItem {
public:
    ThemeDefinition(const wchar_t* guid, const wchar_t* name)
        : CRepositoryItem(L"THEME", guid, name) {}

    CString attribute; ///< ignored by themes without classes
    ThemeRule rule;

protected:
    void WriteContent(XmlElement& root) const override;
    CString ReadContent(const XmlElement& root) override;
};

/// Running one sets the colours of the entities themselves, so they are saved and undone with the
/// drawing, and prints the legend with counts. Entities without a value take the colour of their
/// layer.
class ThemeFamily final : public IRepositoryFamily {
public:
    boost::shared_ptr<CRepositoryItem> CreateItem(const wchar_t* guid,
                                                  const wchar_t* name) override;
    bool EditContent(CRepositoryItem& item, const System::CGisSystem* pSystem) override;
    std::optional<int> Run(const CRepositoryItem& item, System::CGisSystem& system,
                           const Query::CQueryDefinition* pOnly) override;
    bool ShowDefault(const CRepositoryItem& item, System::CGisSystem& system) override;
};

} // namespace Orvane::Repository
