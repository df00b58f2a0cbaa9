// What all entities of a drawing have in common.
#pragma once

#include <vector>

#include "platform/win/String.h"
#include "siblings/giscore/GisTypes.h"
#include "siblings/networkcore/Api.h"
#include "siblings/networkcore/TopologyTypes.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Topology {

class CTopologyStorage;

/// Reads one entity where it is kept. A small value: it holds nothing of the entity and
/// may be copied at will. It must not outlive the storage; once its entity was removed it
/// is false, and nothing else may be asked of it. Views stay valid until the storage
/// changes.
class NETWORKCORE_API CEntity {
public:
    CEntity() = default;
    CEntity(const CTopologyStorage* pStorage, EntityId id) : m_pStorage(pStorage), m_id(id) {}

    /// False for an accessor of no entity.
    explicit operator bool() const;
    EntityId GetId() const { return m_id; }
    enmEntityType GetEntityType() const;

    int GetSystemId() const;
    /// Null if the drawing has no such system (any more).
    System::CGisSystem* GetSystem() const;

    CString GetName() const;
    std::string_view GetNameUtf8() const;
    CString GetKind() const;
    std::string_view GetKindUtf8() const;

    /// In the order in which they were set.
    std::vector<AttributeData> GetAttributes() const;
    /// One attribute by name; nothing if the entity has none of that name.
    std::optional<AttributeData> GetAttribute(AttributeName name) const;
    /// Nothing if the attribute is a text, too.
    std::optional<double> GetNumber(AttributeName name) const;

protected:
    const CTopologyStorage* m_pStorage = nullptr;
    EntityId m_id = kNoEntity;
};

} // namespace Orvane::Topology
