// The attributes by which entities of a drawing belong to systems. They are columns of the
// drawing's file, so other programs show and edit them.
#pragma once

#include <limits>

#include "platform/arx/DbEntity.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane::Topology {

/// Numbers of their names, looked up once.
struct EntityAttributes {
    AcDbNameId systemId = AcDbIntern("SYSTEMID");
    AcDbNameId name = AcDbIntern("NAME"); ///< a text on the map is its own name
    AcDbNameId kind = AcDbIntern("KIND");
    AcDbNameId systems = AcDbIntern("SYSTEMS"); ///< of a node: further systems, as "3 7"
    // Of a section: ids of nodes, and stated names where there is no such node.
    AcDbNameId startNode = AcDbIntern("STARTNODE");
    AcDbNameId endNode = AcDbIntern("ENDNODE");
    AcDbNameId startName = AcDbIntern("STARTNAME");
    AcDbNameId endName = AcDbIntern("ENDNAME");

    static const EntityAttributes& Get() {
        static const EntityAttributes names;
        return names;
    }
    /// One of these, which nobody else may use.
    bool IsOwn(AcDbNameId id) const {
        return id == systemId || id == name || id == kind || id == systems || id == startNode ||
               id == endNode || id == startName || id == endName;
    }
};

/// The system that an entity belongs to; 0 if to none.
inline int SystemIdOf(const AcDbEntity& entity) {
    const auto id = entity.attribute(EntityAttributes::Get().systemId).asInteger();
    return id && *id > 0 && *id <= std::numeric_limits<int>::max() ? static_cast<int>(*id) : 0;
}

/// EntityNone for texts and all that is of no use to a topology.
inline enmEntityType EntityTypeOf(const AcDbEntity& entity) {
    const AcRxClass* const pClass = entity.isA();
    return pClass == AcDbPoint::desc()      ? EntityNode
           : pClass == AcDbPolyline::desc() ? EntitySection
           : pClass == AcDbMPolygon::desc() ? EntityPolygon
                                            : EntityNone;
}

} // namespace Orvane::Topology
