#include "siblings/cadwrapper/EntityPtr.h"

#include <utility>

namespace Orvane {

CORVCEntityPtr::CORVCEntityPtr(AcDbObjectId id, AcDb::OpenMode mode)
    : m_status(acdbOpenObject(m_pEntity, id, mode)) {}

Acad::ErrorStatus CORVCEntityPtr::upgradeOpen() {
    return m_pEntity ? m_pEntity->upgradeOpen() : Acad::eNullObjectId;
}

Acad::ErrorStatus CORVCEntityPtr::close() {
    AcDbEntity* const pEntity = std::exchange(m_pEntity, nullptr);
    return pEntity ? pEntity->close() : Acad::eOk;
}

} // namespace Orvane
