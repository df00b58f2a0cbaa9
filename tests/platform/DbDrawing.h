// Shortcuts for changing a database and inspecting its content (DrawingText.h).
#pragma once

#include <string>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"
#include "tests/support/DrawingText.h"

/// Opens an object for writing, changes and closes it.
template <class T, class Edit>
void Change(AcDbDatabase& database, AcDbObjectId id, Edit edit) {
    T* pObject = nullptr;
    if (acdbOpenObject(pObject, id, AcDb::kForWrite, true, &database) != Acad::eOk) {
        throw std::runtime_error("cannot open object " + std::to_string(id.number()));
    }
    edit(*pObject);
    pObject->close();
}

inline Acad::ErrorStatus Erase(AcDbDatabase& database, AcDbObjectId id, bool erasing = true) {
    Acad::ErrorStatus status = Acad::eOk;
    Change<AcDbObject>(database, id, [&](AcDbObject& object) { status = object.erase(erasing); });
    return status;
}

inline AcDbObjectId AddPoint(AcDbDatabase& database, double x, AcDbObjectId layer = {}) {
    auto point = std::make_unique<AcDbPoint>(AcGePoint3d{x, 0, 0});
    point->setLayer(layer);
    return database.appendEntity(std::move(point));
}

inline void SetAttribute(AcDbDatabase& database, AcDbObjectId id, const char* name,
                         const AcDbValue& value) {
    Change<AcDbEntity>(database, id,
                       [&](AcDbEntity& entity) { entity.setAttribute(AcDbIntern(name), value); });
}

inline void SetRecord(AcDbDatabase& database, AcDbObjectId id, const wchar_t* record,
                      const wchar_t* text) {
    Change<AcDbDictionary>(database, id,
                           [&](AcDbDictionary& dictionary) { dictionary.setAt(record, text); });
}

inline void MovePoint(AcDbDatabase& database, AcDbObjectId id, double x) {
    Change<AcDbPoint>(database, id, [&](AcDbPoint& point) { point.setPosition({x, 0, 0}); });
}
