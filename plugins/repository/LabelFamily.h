// Labels: texts beside entities.
#pragma once

#include "siblings/giscore/repository/IRepositoryFamily.h"

namespace Orvane::Repository {

class LabelDefinition final : public CRepositoryItem {
public:
    LabelDefinition(const wchar_t* guid, const wchar_t* name)
        : CRepositoryItem(L"LABEL", guid, name) {}

    CString pattern;   ///< LabelPattern.h
    double height = 0; ///< drawing units; 0 for the view's own choice

protected:
    void WriteContent(XmlElement& root) const override;
    CString ReadContent(const XmlElement& root) override;
};

/// Running one puts a text at each node, at the middle of each section or at the centre of
/// each polygon, on the system's layer of texts, in place of those that the same
/// configuration put there before and does not want any more. They belong to the system and bear
/// the configuration's GUID as the attribute "LABELITEM".
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
