// The entities of a system, as configurations work on them.
#pragma once

#include "platform/arx/DbDatabase.h"
#include "siblings/giscore/query/QueryMatcher.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Repository {

/// The storage that holds the entities of a system.
Topology::CTopologyStorage& StorageOf(const System::CGisSystem& system);

/// Entities of a kind, or of every kind for EntityNone. A node that the system shares with
/// others is among them.
std::vector<AcDbObjectId> EntitiesOf(const System::CGisSystem& system, enmEntityType type);

/// Those of a kind that fulfil a query; all of them without one. None if the query asks for
/// another kind.
std::vector<AcDbObjectId> EntitiesOf(const System::CGisSystem& system, enmEntityType type,
                                     const Query::CQueryDefinition* pOnly);

/// Asks for the attributes of one entity. Not after the entity was changed.
Query::ValueOf ValuesOf(const Topology::CEntity& entity);

/// The name of an attribute as entities of the system have it, found without regard to case
/// if none has it as it is given; nothing if none has it at all.
std::optional<CString> AttributeInUse(const System::CGisSystem& system, enmEntityType type,
                                      const CString& name);

/// Asks for an attribute, and says so if entities of the system have none of the name. An
/// empty answer gives nothing, as a cancelled one does.
std::optional<CString> AskAttribute(const CString& label, const CString& current,
                                    const System::CGisSystem* pSystem, enmEntityType type);

/// Opens an entity for writing. False if somebody else has it open.
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
