// Longitudinal sections: heights along the way between two nodes.
#pragma once

#include "siblings/giscore/repository/IRepositoryFamily.h"

namespace Orvane::Repository {

class LongitudinalDefinition final : public CRepositoryItem {
public:
    LongitudinalDefinition(const wchar_t* guid, const wchar_t* name)
        : CRepositoryItem(L"LONGITUDINAL", guid, name) {}

    // Names of nodes. Where one is empty, the user is asked at each run.
    CString from;
    CString to;
    /// Attributes of nodes. Where any node of the way has a depth, heights are those of
    /// inverts, and the ground lies a depth above; else heights are those of the ground.
    CString heightAttribute = L"ELEVATION";
    CString depthAttribute = L"MaxDepth";

protected:
    void WriteContent(XmlElement& root) const override;
    CString ReadContent(const XmlElement& root) override;
};

/// Running one prints the table of the shortest way.
class LongitudinalFamily final : public IRepositoryFamily {
public:
    boost::shared_ptr<CRepositoryItem> CreateItem(const wchar_t* guid,
                                                  const wchar_t* name) override;
    bool EditContent(CRepositoryItem& item, const System::CGisSystem* pSystem) override;
    std::optional<int> Run(const CRepositoryItem& item, System::CGisSystem& system,
                           const Query::CQueryDefinition* pOnly) override;
    bool ServesTopology(enmTopologyType type) const override { return type == TopologyLine; }
};

} // namespace Orvane::Repository
