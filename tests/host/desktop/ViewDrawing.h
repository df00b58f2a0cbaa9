// Shortcuts for filling drawings in tests of the view.
#pragma once

#include <initializer_list>
#include <memory>
#include <random>
#include <vector>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"

using Places = std::vector<AcGePoint3d>;

inline AcDbObjectId AddLine(AcDbDatabase& database, const Places& places, AcDbObjectId layer = {},
                            int color = kColorByLayer) {
    auto line = std::make_unique<AcDbPolyline>(places);
    line->setLayer(layer);
    line->setColorIndex(color);
    return database.appendEntity(std::move(line));
}

inline AcDbObjectId AddSpot(AcDbDatabase& database, double x, double y, AcDbObjectId layer = {}) {
    auto point = std::make_unique<AcDbPoint>(AcGePoint3d{x, y});
    point->setLayer(layer);
    return database.appendEntity(std::move(point));
}

inline AcDbObjectId AddText(AcDbDatabase& database, double x, double y, const char* text,
                            double height = 0) {
    auto entity = std::make_unique<AcDbText>(AcGePoint3d{x, y}, text);
    entity->setHeight(height);
    return database.appendEntity(std::move(entity));
}

/// A square, with a hole in its middle if the hole's size is not 0.
inline AcDbObjectId AddSquare(AcDbDatabase& database, double x, double y, double size,
                              double hole = 0, AcDbObjectId layer = {}) {
    const auto ring = [&](double low, double side) {
        return Places{{x + low, y + low},
                      {x + low + side, y + low},
                      {x + low + side, y + low + side},
                      {x + low, y + low + side}};
    };
    std::vector<AcDbMPolygon::Ring> rings{{ring(0, size), false}};
    if (hole > 0) {
        rings.push_back({ring((size - hole) / 2, hole), true});
    }
    auto area = std::make_unique<AcDbMPolygon>(std::move(rings));
    area->setLayer(layer);
    return database.appendEntity(std::move(area));
}

/// A layer with a colour.
inline AcDbObjectId AddLayer(AcDbDatabase& database, const wchar_t* name, int color) {
    const AcDbObjectId id = database.layer(name);
    AcDbLayerTableRecord* pLayer = nullptr;
    acdbOpenObject(pLayer, id, AcDb::kForWrite, false, &database);
    pLayer->setColorIndex(color);
    pLayer->close();
    return id;
}

inline void SwitchOff(AcDbDatabase& database, AcDbObjectId layer, bool isOff = true) {
    AcDbLayerTableRecord* pLayer = nullptr;
    acdbOpenObject(pLayer, layer, AcDb::kForWrite, false, &database);
    pLayer->setIsOff(isOff);
    pLayer->close();
}

inline void EraseEntity(AcDbDatabase& database, AcDbObjectId id) {
    AcDbEntity* pEntity = nullptr;
    acdbOpenObject(pEntity, id, AcDb::kForWrite, false, &database);
    pEntity->erase();
    pEntity->close();
}

/// Something of every kind, here and there in a square from (offset, offset); every third on
/// the layer.
inline void AddMixture(AcDbDatabase& database, std::size_t count, double size, AcDbObjectId layer,
                       unsigned seed = 1, double offset = 0) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> at(0, size);
    std::uniform_real_distribution<double> near(-size / 20, size / 20);
    for (std::size_t i = 0; i < count; ++i) {
        const double x = at(random) + offset;
        const double y = at(random) + offset;
        const AcDbObjectId on = i % 3 == 0 ? layer : AcDbObjectId();
        if (i % 5 == 0) {
            AddSpot(database, x, y, on);
        } else if (i % 5 == 1) {
            AddSquare(database, x, y, size / 30, i % 2 ? size / 60 : 0, on);
        } else if (i % 17 == 2) {
            AddText(database, x, y, "text");
        } else {
            Places places{{x, y}};
            for (std::size_t j = 0; j < 1 + i % 4; ++j) {
                places.push_back({places.back().x + near(random), places.back().y + near(random)});
            }
            AddLine(database, places, on);
        }
    }
}
