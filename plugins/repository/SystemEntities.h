// Access to a system's entities for configurations.
#pragma once

#include "platform/arx/DbDatabase.h"
#include "siblings/giscore/query/QueryMatcher.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Repository {

/// The storage of a system's entities.
Topology::CTopologyStorage& StorageOf(const System::CGisSystem& system);

/// Entities of a type, or of all types for EntityNone, including nodes shared with other systems.
std::vector<AcDbObjectId> EntitiesOf(const System::CGisSystem& system, enmEntityType type);

/// Entities of a type that match a query, or all if it is null. Empty if the query is for another
/// type.
std::vector<AcDbObjectId> EntitiesOf(const System::CGisSystem& system, enmEntityType type,
                                     const Query::CQueryDefinition* pOnly);

/// Reads the attributes of one entity. Invalid once the entity was changed.
Query::ValueOf ValuesOf(const Topology::CEntity& entity);

/// The name of an attribute as the system's entities spell it; an exact match wins over one
/// that ignores case. Nothing if no entity has it.
std::optional<CString> AttributeInUse(const System::CGisSystem& system, enmEntityType type,
                                      const CString& name);

/// Asks for an attribute, and warns if no entity of the system has it. Nothing if the answer is
/// empty or the user cancelled.
std::optional<CString> AskAttribute(const CString& label, const CString& current,
                                    const System::CGisSystem* pSystem, enmEntityType type);

/// Opens an entity for writing. False if it is already open elsewhere.
template <class T, class Change>
bool ChangeEntity(AcDbDatabase& drawing, AcDbObjectId id, Change change) {
    T* pEntity = nullptr;
    if (acdbOpenObject(pEntity, id, AcDb::kForWrite, false, &drawing) != Acad::eOk) {
        return false;
    }
    change(*pEntity);
    pEntity->close();
    return true;
}

} // namespace Orvane::Repository
