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

/// Records with this prefix are items and defaults of repository families stored with the system.
/// Changes to them, for instance by undo, raise OnSystemChanged.
inline constexpr std::wstring_view kItemPrefix = L"ITEM.";

/// The data of a system apart from its entities. Stored in the drawing as a dictionary, so it is
/// saved and undone with it. Created and owned by CGisSystems; deleted with the system or when
/// its document closes. Change it only through CSystemManager, which notifies the observers.
class GISCORE_API CGisSystem {
public:
    CGisSystem(const CGisSystem&) = delete;
    CGisSystem& operator=(const CGisSystem&) = delete;

    /// Unique in the drawing, case-insensitive.
    const CString& GetSystemName() const { return m_strName; }
    /// Unique in the drawing, from 1; never reused after a system was deleted.
    int GetSystemId() const { return m_nId; }
    /// Globally unique.
    const CString& GetGuid() const { return m_strGuid; }
    enmTopologyType GetTopologyType() const { return m_enmTopologyType; }
    /// Id of a CTopologyFunction; 0 for topologies without functions.
    int GetSystemFunction() const { return m_nFunction; }
    /// Non-zero if its entities are visible.
    int GetVisibility() const { return m_bVisible; }
    /// Non-zero if it is the drawing's active system.
    int GetActive() const;
    AcDbDatabase* GetDatabase() const;
    /// The system's dictionary. Must not be called after the drawing was closed.
    DrawingRecords GetRecords() const;
    /// Changes with every change of the items stored with the system.
    std::size_t GetItemStamp() const { return m_nItemStamp; }

    /// Ordered by reference.
    const std::vector<CGisSystemLayer>& GetLayers() const { return m_layers; }
    /// Null if the system has no such layer.
    const CGisSystemLayer* GetLayerByReference(const wchar_t* reference) const;
    /// The layer for entities of a kind (EntityNone: texts); the first layer if the system has
    /// none for that kind, null if it has no layers.
    AcDbObjectId GetLayerFor(enmEntityType type) const;

    /// Name or definition of the coordinate reference system; empty if unknown.
    const CString& GetCoordinateSystem() const { return m_strCoordinateSystem; }
    void SetCoordinateSystem(const wchar_t* text);

    /// Named counters of the system, such as the last number used in a node name. Written into
    /// the drawing on save; not affected by undo.
    using Counters = std::map<CString, int, CStringLess>;
    const Counters& GetCounters() const { return m_counters; }
    void SetCounters(Counters counters) { m_counters = std::move(counters); }
    /// One counter, initially 0.
    int& Counter(const wchar_t* name) { return m_counters[CString(name)]; }

    // Returns 1 and the value if the statistic is available for this system; 0 otherwise.
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
