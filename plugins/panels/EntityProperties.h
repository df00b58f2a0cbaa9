// What is to be seen and changed of one entity.
#pragma once

#include <vector>

#include "siblings/networkcore/TopologyStorage.h"

namespace Orvane::Panels {

struct EntityProperty {
    enum class Kind { Fixed, Name, Attribute };

    CString label;
    CString value;
    Kind kind = Kind::Fixed;
    AcDbNameId attribute{}; ///< of an attribute

    bool IsEditable() const { return kind != Kind::Fixed; }
};

/// The name first, then what it is, where it lies, and its attributes. None for no entity.
std::vector<EntityProperty> PropertiesOf(const Topology::CEntity& entity);

/// By label; without regard to case if none is written so. Null if there is none.
const EntityProperty* FindProperty(const std::vector<EntityProperty>& properties,
                                   const CString& label);

/// Gives a property another value. An attribute that is a number stays one.
/// \return an empty text, or the reason why nothing was changed
CString SetProperty(const Topology::CEntity& entity, const EntityProperty& property,
                    const CString& text);

} // namespace Orvane::Panels
