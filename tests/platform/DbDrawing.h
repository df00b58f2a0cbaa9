// A database with short ways to change it and to see what is in it.
#pragma once

#include <map>
#include <sstream>
#include <string>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"
#include "platform/win/CodePage.h"

/// Opens an object for writing, changes it, and closes it.
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

/// What an object is made of, part by part: a text each.
using Parts = std::map<std::string, std::string>;

inline std::string TextOf(const AcDbValue& value) {
    std::ostringstream text;
    if (value.kind() == AcDbValue::Kind::Text) {
        text << '"' << value.asText() << '"';
    } else if (value.isNull()) {
        text << "null";
    } else {
        text << *value.asReal();
    }
    return text.str();
}

inline std::string PointsText(std::span<const AcGePoint3d> points) {
    std::ostringstream text;
    for (const AcGePoint3d& point : points) {
        text << point.x << ',' << point.y << ' ';
    }
    return text.str();
}

inline std::string BodyText(const AcDbObject& object) {
    if (const auto* const pPoint = dynamic_cast<const AcDbPoint*>(&object)) {
        return PointsText(std::span(&pPoint->position(), 1));
    }
    if (const auto* const pLine = dynamic_cast<const AcDbPolyline*>(&object)) {
        return PointsText(pLine->vertices()) + (pLine->isClosed() ? "closed" : "");
    }
    if (const auto* const pArea = dynamic_cast<const AcDbMPolygon*>(&object)) {
        std::string text;
        for (const auto& ring : pArea->rings()) {
            text += (ring.isHole ? "hole " : "ring ") + PointsText(ring.points);
        }
        return text;
    }
    if (const auto* const pText = dynamic_cast<const AcDbText*>(&object)) {
        return PointsText(std::span(&pText->position(), 1)) + std::string(pText->textUtf8()) +
               std::to_string(pText->height());
    }
    if (const auto* const pLayer = dynamic_cast<const AcDbLayerTableRecord*>(&object)) {
        return std::to_string(pLayer->colorIndex()) + (pLayer->isOff() ? " off" : " on");
    }
    return {};
}

/// Adds the parts of one object, under its number.
inline void AddParts(const AcDbObject& object, Parts& parts, bool withOrder) {
    const std::string id = std::to_string(object.objectId().number());
    parts[id + " exists"] = object.isErased() ? "no" : "yes";
    parts[id + " body"] = BodyText(object);
    if (const auto* const pDictionary = dynamic_cast<const AcDbDictionary*>(&object)) {
        for (const auto& [name, text] : pDictionary->records()) {
            parts[id + " record " + WideToUtf8(name.View())] = WideToUtf8(text.View());
        }
    }
    const auto* const pEntity = dynamic_cast<const AcDbEntity*>(&object);
    if (!pEntity) {
        return;
    }
    parts[id + " layer"] = std::to_string(pEntity->layerId().number());
    parts[id + " color"] = std::to_string(pEntity->colorIndex());
    std::string order;
    for (std::size_t i = 0; i < pEntity->attributes().size(); ++i) {
        const auto [name, value] = pEntity->attributes().at(i);
        order += std::string(AcDbNameOf(name)) + ' ';
        parts[id + " attribute " + std::string(AcDbNameOf(name))] = TextOf(value);
    }
    if (withOrder) {
        parts[id + " order"] = order;
    }
}

/// Everything in the database, erased objects included.
inline Parts PartsOf(const AcDbDatabase& database, bool withOrder = true) {
    Parts parts;
    parts["coordinate system"] = WideToUtf8(database.coordinateSystem().View());
    for (std::uint32_t id = 1; id < database.nextId(); ++id) {
        if (const AcDbObject* const pObject = database.peek(AcDbObjectId(id))) {
            AddParts(*pObject, parts, withOrder);
        }
    }
    return parts;
}
