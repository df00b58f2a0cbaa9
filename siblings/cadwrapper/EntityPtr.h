// Scoped access to an entity of the drawing.
#pragma once

#include "platform/arx/DbEntity.h"
#include "siblings/cadwrapper/Api.h"

namespace Orvane {

/// Opens an entity of the working database and closes it on destruction at the latest. Null if
/// the object cannot be opened or is not an entity.
class CADWRAPPER_API CORVCEntityPtr {
public:
    CORVCEntityPtr(AcDbObjectId id, AcDb::OpenMode mode);
    ~CORVCEntityPtr() { close(); }
    CORVCEntityPtr(const CORVCEntityPtr&) = delete;
    CORVCEntityPtr& operator=(const CORVCEntityPtr&) = delete;

    Acad::ErrorStatus openStatus() const { return m_status; }
    explicit operator bool() const { return m_pEntity != nullptr; }
    AcDbEntity* operator->() const { return m_pEntity; }
    AcDbEntity& operator*() const { return *m_pEntity; }
    AcDbEntity* object() const { return m_pEntity; }

    Acad::ErrorStatus upgradeOpen();
    Acad::ErrorStatus close();

private:
    AcDbEntity* m_pEntity = nullptr;
    Acad::ErrorStatus m_status;
};

} // namespace Orvane
