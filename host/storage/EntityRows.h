// Rows of feature tables as entities.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/storage/Columns.h"
#include "host/storage/Shapes.h"

namespace Tessaly {

class StoredRows;

/// Makes plain entities of a geometry.
class EntityMaker final : public IShapeSink {
public:
    void TakePoint(const AcGePoint3d& point) override;
    void TakeLine(std::span<const AcGePoint3d> points) override;
    void TakePolygon(std::vector<AcDbMPolygon::Ring> rings) override;

    std::vector<std::unique_ptr<AcDbEntity>>& Entities() { return m_entities; }

private:
    std::vector<std::unique_ptr<AcDbEntity>> m_entities;
};

/// The entity of a row of ours, with its attributes and colour; layer and block are the
/// caller's. Null if its geometry is not of the table's kind, or has no place that can be.
std::unique_ptr<AcDbEntity> ReadEntity(const EntityTable& table, const StoredRows& row);

/// The row of an entity, except its number, layer and block. False if a position is none
/// that the table may hold.
bool FillRow(const EntityTable& table, const AcDbEntity& entity, OGRFeature& row);

/// Table for entities of a class; false for a class that is not stored.
bool KindOf(const AcDbEntity& entity, EntityKind& kind);

} // namespace Tessaly
