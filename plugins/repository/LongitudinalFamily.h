// Longitudinal sections: heights along the path between two nodes.
#pragma once

#include "siblings/giscore/repository/IRepositoryFamily.h"

namespace Orvane::Repository {

class LongitudinalDefinition final : public CRepositoryItem {
public:
    LongitudinalDefinition(const wchar_t* guid, const wchar_t* name)
        : CRepositoryItem(L"LONGITUDINAL", guid, name) {}

    // Node names. If one is empty, each run asks for it.
    CString from;
    CString to;
    /// Node attributes. If any node of the path has a depth, heights are invert levels and the
    /// ground is that much higher; otherwise heights are ground levels.
    CString heightAttribute = L"ELEVATION";
    CString depthAttribute = L"MaxDepth";

protected:
    void WriteContent(XmlElement& root) const override;
    CString ReadContent(const XmlElement& root) override;
};

/// Running one prints the table of the shortest path.
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
