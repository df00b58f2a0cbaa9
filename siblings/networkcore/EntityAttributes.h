// The attributes by which entities of a drawing belong to systems. They are stored as columns of
// the drawing's file, so other programs can show and edit them.
#pragma once

#include <limits>

#include "platform/arx/DbEntity.h"
#include "platform/arx/DbReferences.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane::Topology {

/// The interned ids of their names, looked up once.
struct EntityAttributes {
    AcDbNameId systemId = AcDbIntern(AcDbReferences::kSystemAttribute);
    AcDbNameId name = AcDbIntern("NAME"); ///< a text on the map is its own name
    AcDbNameId kind = AcDbIntern("KIND");
    /// Of a node: further systems, as "3 7".
    AcDbNameId systems = AcDbIntern(AcDbReferences::kSystemListAttribute);
    // Of a section: ids of nodes, and stated names where there is no such node.
    AcDbNameId startNode = AcDbIntern(AcDbReferences::kObjectAttributes[0]);
    AcDbNameId endNode = AcDbIntern(AcDbReferences::kObjectAttributes[1]);
    AcDbNameId startName = AcDbIntern("STARTNAME");
    AcDbNameId endName = AcDbIntern("ENDNAME");

    static const EntityAttributes& Get() {
        static const EntityAttributes names;
        return names;
    }
    /// True for the reserved names above, which no other attribute may use.
    bool IsOwn(AcDbNameId id) const {
        return id == systemId || id == name || id == kind || id == systems || id == startNode ||
               id == endNode || id == startName || id == endName;
    }
};

/// Id of the system an entity belongs to; 0 if none.
inline int SystemIdOf(const AcDbEntity& entity) {
    const auto id = entity.attribute(EntityAttributes::Get().systemId).asInteger();
    return id && *id > 0 && *id <= std::numeric_limits<int>::max() ? static_cast<int>(*id) : 0;
}

/// EntityNone for texts and everything else that a topology does not use.
inline enmEntityType EntityTypeOf(const AcDbEntity& entity) {
    const AcRxClass* const pClass = entity.isA();
    return pClass == AcDbPoint::desc()      ? EntityNode
           : pClass == AcDbPolyline::desc() ? EntitySection
           : pClass == AcDbMPolygon::desc() ? EntityPolygon
                                            : EntityNone;
}

} // namespace Orvane::Topology
