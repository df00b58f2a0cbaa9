// A system of a drawing: one network, one set of polygons, one scheme.
#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "siblings/giscore/Api.h"
#include "siblings/giscore/systems/GisSystemLayer.h"
#include "siblings/giscore/systems/SystemStatistics.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane::System {

class CGisSystems;
class DrawingRecords;

/// Records with this prefix are items and defaults of repository families, which are kept
/// with the system. When they change, by undo for instance, observers hear OnSystemChanged.
inline constexpr std::wstring_view kItemPrefix = L"ITEM.";

/// What is known of a system apart from its entities. Kept in the drawing as a dictionary,
/// so that it is saved, and undone, with it. Made and owned by CGisSystems; gone once it is
/// deleted or its document is closed. Changed through CSystemManager, so that everybody
/// hears of it.
class GISCORE_API CGisSystem {
public:
    CGisSystem(const CGisSystem&) = delete;
    CGisSystem& operator=(const CGisSystem&) = delete;

    /// Unique in the drawing, without regard to case.
    const CString& GetSystemName() const { return m_strName; }
    /// Unique in the drawing, from 1; not used again after a system was deleted.
    int GetSystemId() const { return m_nId; }
    /// Unique everywhere.
    const CString& GetGuid() const { return m_strGuid; }
    enmTopologyType GetTopologyType() const { return m_enmTopologyType; }
    /// Number of CTopologyFunction; 0 for topologies without functions.
    int GetSystemFunction() const { return m_nFunction; }
    /// Non-zero if its entities are shown.
    int GetVisibility() const { return m_bVisible; }
    /// Non-zero if it is the drawing's active system.
    int GetActive() const;
    AcDbDatabase* GetDatabase() const;
    /// The dictionary that it is kept as. Not after its drawing was closed.
    DrawingRecords GetRecords() const;
    /// Another number after each change of the items that are kept with it.
    std::size_t GetItemStamp() const { return m_nItemStamp; }

    /// By their references.
    const std::vector<CGisSystemLayer>& GetLayers() const { return m_layers; }
    /// Null if the system has no such layer.
    const CGisSystemLayer* GetLayerByReference(const wchar_t* reference) const;
    /// The layer for its entities of a kind, EntityNone for texts; its first layer if it has
    /// none of its own for them, null if it has none at all.
    AcDbObjectId GetLayerFor(enmEntityType type) const;

    /// Name or definition of the coordinate system of its positions; empty if unknown.
    const CString& GetCoordinateSystem() const { return m_strCoordinateSystem; }
    void SetCoordinateSystem(const wchar_t* text);

    /// Named counters that go with the system, such as the last number given to a node.
    /// Written into the drawing with each save; undoing does not turn them back.
    using Counters = std::map<CString, int, CStringLess>;
    const Counters& GetCounters() const { return m_counters; }
    void SetCounters(Counters counters) { m_counters = std::move(counters); }
    /// One of them, 0 at first.
    int& Counter(const wchar_t* name) { return m_counters[CString(name)]; }

    // 1, and the value, if the statistic is there for this system; 0 otherwise.
    int GetStatisticValue_int(enmStatistic statistic, int& value) const;
    int GetStatisticValue_dbl(enmStatistic statistic, double& value) const;

private:
    friend class CGisSystems;
    friend class CSystemManager;
    CGisSystem(CGisSystems& owner, int id) : m_owner(owner), m_nId(id) {}

    CGisSystems& m_owner;
    int m_nId;
    CString m_strName;
    CString m_strGuid;
    enmTopologyType m_enmTopologyType = TopologyNone;
    int m_nFunction = 0;
    int m_bVisible = 1;
    CString m_strCoordinateSystem;
    std::vector<CGisSystemLayer> m_layers;
    Counters m_counters;
    std::size_t m_nItemStamp = 0;
};

} // namespace Orvane::System
