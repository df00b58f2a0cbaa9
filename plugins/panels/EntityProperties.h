// The properties of one entity, to show and to edit.
#pragma once

#include <vector>

#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Panels {

struct EntityProperty {
    enum class Kind { Fixed, Name, Attribute };

    CString label;
    CString value;
    Kind kind = Kind::Fixed;
    AcDbNameId attribute{}; ///< only for attributes

    bool IsEditable() const { return kind != Kind::Fixed; }
};

/// Name, type, position and attributes, in this order. Empty for an invalid entity.
std::vector<EntityProperty> PropertiesOf(const Topology::CEntity& entity);

/// The property with this label; an exact match wins over one that ignores case. Null if there is
/// none.
const EntityProperty* FindProperty(const std::vector<EntityProperty>& properties,
                                   const CString& label);

/// Changes a property. A numeric attribute stays numeric.
/// \return an empty string, or the reason why nothing was changed
CString SetProperty(const Topology::CEntity& entity, const EntityProperty& property,
                    const CString& text);

} // namespace Orvane::Panels
