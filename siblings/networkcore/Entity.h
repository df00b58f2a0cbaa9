// What all entities of a drawing have in common.
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

/// Reads one entity of a system where it is: in the drawing. A small value: it holds nothing
/// of the entity and may be copied at will. It must not outlive the storage; once its entity
/// was erased it is false, and nothing else may be asked of it. Views stay valid until the
/// entity changes.
class NETWORKCORE_API CEntity {
public:
    CEntity() = default;
    CEntity(const CTopologyStorage* pStorage, AcDbObjectId id) : m_pStorage(pStorage), m_id(id) {}

    /// False for an accessor of no entity, or of one that belongs to no system.
    explicit operator bool() const;
    AcDbObjectId GetObjectId() const { return m_id; }
    /// Unique everywhere, and the same as long as the entity lives: the drawing's GUID with
    /// the object's number.
    CString GetGuid() const;
    enmEntityType GetEntityType() const;

    int GetSystemId() const;
    /// Null if the drawing has no such system (any more).
    System::CGisSystem* GetSystem() const;

    CString GetName() const;
    std::string_view GetNameUtf8() const;
    CString GetKind() const;
    std::string_view GetKindUtf8() const;

    /// The upright box around it; empty if it has no place.
    AcGeExtents2d GetExtents() const { return Get().extents(); }

    /// In the order in which they were set, without those that make it an entity of a system.
    std::vector<AttributeData> GetAttributes() const;
    /// One attribute by name; null if the entity has none of that name.
    AcDbValue GetAttribute(AcDbNameId name) const;
    /// Nothing if the attribute is a text, too.
    std::optional<double> GetNumber(AcDbNameId name) const { return GetAttribute(name).asReal(); }

protected:
    /// Null for no entity of the drawing.
    const AcDbEntity* Find() const;
    /// Of an accessor that is true.
    template <class T = AcDbEntity>
    const T& Get() const {
        return static_cast<const T&>(*Find());
    }

    const CTopologyStorage* m_pStorage = nullptr;
    AcDbObjectId m_id;
};

} // namespace Orvane::Topology
