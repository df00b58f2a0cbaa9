// Labels: texts at entities.
#pragma once

#include "siblings/giscore/repository/IRepositoryFamily.h"

namespace Orvane::Repository {

class LabelDefinition final : public CRepositoryItem {
public:
    LabelDefinition(const wchar_t* guid, const wchar_t* name)
        : CRepositoryItem(L"LABEL", guid, name) {}

    CString pattern;   ///< see LabelPattern.h
    double height = 0; ///< drawing units; 0 for automatic

protected:
    void WriteContent(XmlElement& root) const override;
    CString ReadContent(const XmlElement& root) override;
};

/// Running one places a text at each node, the middle of each section or the centre of each
/// polygon, on the system's text layer, replacing labels of the same configuration that no longer
/// apply. The texts belong to the system and have the configuration's GUID in the attribute
/// "LABELITEM".
class LabelFamily final : public IRepositoryFamily {
public:
    boost::shared_ptr<CRepositoryItem> CreateItem(const wchar_t* guid,
                                                  const wchar_t* name) override;
    bool EditContent(CRepositoryItem& item, const System::CGisSystem* pSystem) override;
    std::optional<int> Run(const CRepositoryItem& item, System::CGisSystem& system,
                           const Query::CQueryDefinition* pOnly) override;
    bool ShowDefault(const CRepositoryItem& item, System::CGisSystem& system) override;
};

} // namespace Orvane::Repository
