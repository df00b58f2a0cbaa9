// Base of the accessors for entities of a drawing.
#pragma once

#include <optional>
#include <vector>

#include "platform/win/String.h"
#include "siblings/giscore/topology/GisTypes.h"
#include "siblings/networkcore/Api.h"
#include "siblings/networkcore/TopologyTypes.h"

class AcDbDatabase;

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Topology {

class CTopologyStorage;

/// Reads one entity of a system directly from the drawing. A small copyable value that caches
/// nothing. It must not outlive the storage. Once its entity is erased it tests false, and no
/// other member may be called. Views stay valid until the entity changes.
class NETWORKCORE_API CEntity {
public:
    CEntity() = default;
    CEntity(const CTopologyStorage* pStorage, AcDbObjectId id) : m_pStorage(pStorage), m_id(id) {}

    /// False for a default-constructed accessor, or if the entity belongs to no system.
    explicit operator bool() const;
    AcDbObjectId GetObjectId() const { return m_id; }
    /// Globally unique and stable for the life of the entity: the drawing's GUID plus the object
    /// number.
    CString GetGuid() const;
    enmEntityType GetEntityType() const;

    int GetSystemId() const;
    /// Null if the drawing does not (or no longer) have such a system.
    System::CGisSystem* GetSystem() const;

    CString GetName() const;
    std::string_view GetNameUtf8() const;
    CString GetKind() const;
    std::string_view GetKindUtf8() const;

    /// Axis-aligned bounding box; empty if it has no position.
    AcGeExtents2d GetExtents() const { return Get().extents(); }

    /// In the order in which they were set, without the reserved ones (EntityAttributes).
    std::vector<AttributeData> GetAttributes() const;
    /// Null if the entity has no attribute of that name.
    AcDbValue GetAttribute(AcDbNameId name) const;
    /// nullopt if the attribute is missing or a text.
    std::optional<double> GetNumber(AcDbNameId name) const { return GetAttribute(name).asReal(); }

protected:
    /// Null if the drawing has no such entity.
    const AcDbEntity* Find() const;
    /// Requires an accessor that tests true.
    template <class T = AcDbEntity>
    const T& Get() const {
        return static_cast<const T&>(*Find());
    }

    const CTopologyStorage* m_pStorage = nullptr;
    AcDbObjectId m_id;
};

} // namespace Orvane::Topology
