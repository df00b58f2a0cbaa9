// The content of a drawing as text, for comparisons.
#pragma once

#include <map>
#include <span>
#include <sstream>
#include <string>

#include "platform/arx/DbDatabase.h"
#include "platform/win/CodePage.h"

/// Content of objects: part name -> text.
using Parts = std::map<std::string, std::string>;

inline std::string NumberText(double value) {
    std::ostringstream text;
    text.precision(17);
    text << value;
    return value == value ? text.str() : "nan";
}

inline std::string TextOf(const AcDbValue& value) {
    switch (value.kind()) {
    case AcDbValue::Kind::Text:
        return "'" + std::string(value.asText()) + "'";
    case AcDbValue::Kind::Integer:
        return std::to_string(*value.asInteger());
    case AcDbValue::Kind::Real:
        return NumberText(*value.asReal()) + "r";
    default:
        return "null";
    }
}

inline std::string TextOf(std::span<const AcGePoint3d> points) {
    std::string text;
    for (const AcGePoint3d& point : points) {
        text += NumberText(point.x) + ',' + NumberText(point.y) + ',' + NumberText(point.z) + ' ';
    }
    return text;
}

inline std::string BodyText(const AcDbObject& object) {
    if (const auto* const pPoint = dynamic_cast<const AcDbPoint*>(&object)) {
        return TextOf(std::span(&pPoint->position(), 1));
    }
    if (const auto* const pLine = dynamic_cast<const AcDbPolyline*>(&object)) {
        return TextOf(pLine->vertices()) + (pLine->isClosed() ? "closed" : "");
    }
    if (const auto* const pArea = dynamic_cast<const AcDbMPolygon*>(&object)) {
        std::string text;
        for (const auto& ring : pArea->rings()) {
            text += (ring.isHole ? "hole " : "ring ") + TextOf(ring.points);
        }
        return text;
    }
    if (const auto* const pText = dynamic_cast<const AcDbText*>(&object)) {
        return TextOf(std::span(&pText->position(), 1)) + std::string(pText->textUtf8()) +
               NumberText(pText->height());
    }
    if (const auto* const pLayer = dynamic_cast<const AcDbLayerTableRecord*>(&object)) {
        return WideToUtf8(pLayer->getName().View()) + " " + std::to_string(pLayer->colorIndex()) +
               (pLayer->isOff() ? " off" : " on");
    }
    if (const auto* const pBlock = dynamic_cast<const AcDbBlockTableRecord*>(&object)) {
        return WideToUtf8(pBlock->getName().View());
    }
    const auto* const pDictionary = dynamic_cast<const AcDbDictionary*>(&object);
    return pDictionary ? WideToUtf8(pDictionary->name().View()) : std::string();
}

/// Adds the parts of an object; their names start with its number.
inline void AddParts(const AcDbObject& object, Parts& parts, bool withOrder) {
    const std::string id = std::to_string(object.objectId().number());
    parts[id + " exists"] = object.isErased() ? "no" : "yes";
    parts[id + " body"] = BodyText(object);
    if (const auto* const pDictionary = dynamic_cast<const AcDbDictionary*>(&object)) {
        for (const auto& [name, text] : pDictionary->records()) {
            // A long text would clutter the message of a failed comparison.
            parts[id + " record " + WideToUtf8(name.View())] =
                text.GetLength() > 1000 ? std::to_string(std::hash<std::wstring>()(text.Str()))
                                        : WideToUtf8(text.View());
        }
    }
    const auto* const pEntity = dynamic_cast<const AcDbEntity*>(&object);
    if (!pEntity) {
        return;
    }
    parts[id + " layer"] = std::to_string(pEntity->layerId().number());
    parts[id + " block"] = std::to_string(pEntity->blockId().number());
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

/// The parts of all objects in the database, optionally including erased ones.
inline Parts PartsOf(const AcDbDatabase& database, bool withOrder = true, bool withErased = true) {
    Parts parts;
    parts["coordinate system"] = WideToUtf8(database.coordinateSystem().View());
    for (std::uint32_t id = 1; id < database.nextId(); ++id) {
        const AcDbObject* const pObject = database.peek(AcDbObjectId(id));
        if (pObject && (withErased || !pObject->isErased())) {
            AddParts(*pObject, parts, withOrder);
        }
    }
    return parts;
}
