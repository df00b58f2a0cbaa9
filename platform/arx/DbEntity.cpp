#include "platform/arx/DbEntity.h"

#include <stdexcept>

#include "platform/arx/DbClass.h"
#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"

AcRxClass* AcDbEntity::desc() {
    static AcRxClass* const pClass = acdbRegisterClass(L"AcDbEntity", AcDbObject::desc());
    return pClass;
}

AcDbEntity::AcDbEntity(const AcDbEntity& other)
    : AcDbObject(other), m_attributes(other.m_attributes), m_layer(other.m_layer),
      m_nColorIndex(other.m_nColorIndex) {
    // The block is not copied: like the id, it belongs to one drawing.
}

CString AcDbEntity::layer() const {
    const auto* const pLayer =
        database() ? dynamic_cast<const AcDbLayerTableRecord*>(database()->peek(m_layer)) : nullptr;
    return pLayer ? pLayer->getName() : CString();
}

void AcDbEntity::setLayer(AcDbObjectId layer) {
    if (database() && !database()->live<AcDbLayerTableRecord>(layer)) {
        throw std::logic_error("An entity was put on a layer that the drawing does not have.");
    }
    if (beginChange()) {
        database()->undo().noteLayer(*this, layer);
    }
    m_layer = layer;
}

void AcDbEntity::setColorIndex(int index) {
    if (beginChange()) {
        database()->undo().noteColor(*this);
    }
    const bool known = index >= 0 && index < kColorByLayer;
    m_nColorIndex = static_cast<std::int16_t>(known ? index : kColorByLayer);
}

void AcDbEntity::setAttribute(AcDbNameId name, const AcDbValue& value) {
    if (beginChange()) {
        database()->undo().noteAttribute(*this, name);
    }
    m_attributes.set(name, value);
}

bool AcDbEntity::removeAttribute(AcDbNameId name) {
    if (!m_attributes.has(name)) {
        return false;
    }
    if (beginChange()) {
        database()->undo().noteAttribute(*this, name);
    }
    return m_attributes.remove(name);
}
