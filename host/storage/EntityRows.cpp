#include "host/storage/EntityRows.h"

#include <algorithm>
#include <cmath>
#include <ogrsf_frmts.h>

#include "host/storage/ExtraText.h"
#include "host/storage/StoredRows.h"

namespace Tessaly {

namespace {

/// Takes the one shape that a row of a table may have.
class OwnShape final : public IShapeSink {
public:
    OwnShape(EntityKind kind, bool isClosed, bool isSingle)
        : m_kind(kind), m_bClosed(isClosed), m_bSingle(isSingle) {}

    void TakePoint(const AcGePoint3d& point) override {
        if (m_kind == EntityKind::Node) {
            Keep(std::make_unique<AcDbPoint>(point));
        } else if (m_kind == EntityKind::Text) {
            Keep(std::make_unique<AcDbText>(point, std::string_view()));
        } else {
            m_bFits = false;
        }
    }
    void TakeLine(std::span<const AcGePoint3d> points) override {
        if (m_kind != EntityKind::Section) {
            m_bFits = false;
            return;
        }
        // Another program may have drawn it anew: only a point that repeats is dropped.
        const bool repeats = points.size() > 1 && IsSamePlace(points.front(), points.back());
        if ((m_bClosed || (m_bSingle && points.size() == 2)) && repeats) {
            points = points.first(points.size() - 1);
        }
        Keep(std::make_unique<AcDbPolyline>(points));
    }
    void TakePolygon(std::vector<AcDbMPolygon::Ring> rings) override {
        if (m_kind != EntityKind::Polygon) {
            m_bFits = false;
            return;
        }
        Keep(std::make_unique<AcDbMPolygon>(std::move(rings)));
    }
    /// Null unless the row had exactly one fitting shape.
    std::unique_ptr<AcDbEntity> Entity() { return m_bFits ? std::move(m_entity) : nullptr; }

private:
    void Keep(std::unique_ptr<AcDbEntity> entity) {
        m_bFits = m_bFits && !m_entity;
        m_entity = std::move(entity);
    }

    EntityKind m_kind;
    bool m_bClosed;
    bool m_bSingle;
    bool m_bFits = true;
    std::unique_ptr<AcDbEntity> m_entity;
};

/// An entity that the drawing knows and that is nowhere.
std::unique_ptr<AcDbEntity> Placeless(EntityKind kind) {
    constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
    switch (kind) {
    case EntityKind::Node:
        return std::make_unique<AcDbPoint>(AcGePoint3d{kNowhere, kNowhere});
    case EntityKind::Section:
        return std::make_unique<AcDbPolyline>();
    case EntityKind::Polygon:
        return std::make_unique<AcDbMPolygon>();
    default:
        return std::make_unique<AcDbText>(AcGePoint3d{kNowhere, kNowhere}, std::string_view());
    }
}

void ReadExtras(const EntityTable& table, const StoredRows& row, std::string_view extra,
                AcDbEntity& entity) {
    std::string expected;
    for (const ExtraItem& item : ParseExtra(extra)) {
        const AcDbNameId name = AcDbIntern(item.name);
        const AttributeColumn* pColumn = table.Find(name);
        const AcDbValue value = pColumn ? row.Value(pColumn->field) : AcDbValue();
        const bool isHere = item.where == ExtraItem::Where::Here;
        const bool agrees =
            isHere &&
            (!pColumn || IsSameValue(value, ColumnValue(pColumn->Kind(), item.value, expected)));
        if (agrees) {
            entity.setAttribute(name, item.value);
        } else if (!value.isNull()) {
            entity.setAttribute(name, value);
        }
    }
}

void ReadAttributes(const EntityTable& table, const StoredRows& row, const char* extra,
                    AcDbEntity& entity) {
    if (extra) {
        ReadExtras(table, row, extra, entity);
    }
    for (const AttributeColumn& column : table.Attributes()) {
        const AcDbValue value = row.Value(column.field);
        if (!value.isNull() && !(extra && entity.attributes().has(column.name))) {
            entity.setAttribute(column.name, value);
        }
    }
}

/// The columns cannot give these attributes back in this order.
bool NeedsExtra(const EntityTable& table, const AcDbAttributes& attributes) {
    int last = -1;
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const AcDbAttributes::Item item = attributes.at(i);
        const AttributeColumn* pColumn = table.Find(item.name);
        if (!pColumn || pColumn->field < last || !IsHeldByColumn(pColumn->Kind(), item.value)) {
            return true;
        }
        last = pColumn->field;
    }
    return false;
}

std::string ExtraOf(const EntityTable& table, const AcDbAttributes& attributes) {
    std::string extra;
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const AcDbAttributes::Item item = attributes.at(i);
        const AttributeColumn* pColumn = table.Find(item.name);
        if (pColumn && IsHeldByColumn(pColumn->Kind(), item.value)) {
            AppendExtraColumn(extra, AcDbNameOf(item.name));
        } else {
            AppendExtraValue(extra, AcDbNameOf(item.name), item.value);
        }
    }
    return extra;
}

void FillAttributes(const EntityTable& table, const AcDbAttributes& attributes, OGRFeature& row,
                    std::string extra) {
    for (const AttributeColumn& column : table.Attributes()) {
        row.SetFieldNull(column.field);
    }
    std::string scratch;
    for (std::size_t i = 0; i < attributes.size(); ++i) {
        const AcDbAttributes::Item item = attributes.at(i);
        if (const AttributeColumn* pColumn = table.Find(item.name)) {
            SetFieldValue(row, pColumn->field, ColumnValue(pColumn->Kind(), item.value, scratch));
        }
    }
    if (NeedsExtra(table, attributes)) {
        extra += ExtraOf(table, attributes);
    }
    SetFieldValue(row, table.Fields().extra,
                  extra.empty() ? AcDbValue() : AcDbValue(std::string_view(extra)));
}

/// No place at all is a place to be written: as no geometry.
bool FillPoint(const AcGePoint3d& point, OGRFeature& row) {
    if (point.x != point.x || point.y != point.y) {
        row.SetGeometryDirectly(nullptr);
        return true;
    }
    SetPoint(row, point);
    return IsPlace(point);
}

bool ArePlaces(std::span<const AcGePoint3d> points) {
    return std::all_of(points.begin(), points.end(),
                       [](const AcGePoint3d& point) { return IsPlace(point); });
}

bool FillLine(const AcDbPolyline& line, const EntityTable& table, OGRFeature& row,
              std::string& extra) {
    const std::span<const AcGePoint3d> points = line.vertices();
    if (points.empty()) {
        row.SetGeometryDirectly(nullptr);
    } else {
        // A line of one point is none to other programs.
        const bool isSingle = points.size() == 1;
        SetLine(row, points, line.isClosed() || isSingle);
        if (isSingle) {
            extra = kSinglePoint;
        }
    }
    SetFieldValue(row, table.Fields().closed, line.isClosed() ? AcDbValue(1) : AcDbValue());
    return ArePlaces(points);
}

bool FillPolygon(const AcDbMPolygon& polygon, OGRFeature& row) {
    if (polygon.rings().empty()) {
        row.SetGeometryDirectly(nullptr);
        return true;
    }
    SetPolygon(row, polygon.rings());
    return std::all_of(polygon.rings().begin(), polygon.rings().end(),
                       [](const AcDbMPolygon::Ring& ring) { return ArePlaces(ring.points); });
}

} // namespace

void EntityMaker::TakePoint(const AcGePoint3d& point) {
    m_entities.push_back(std::make_unique<AcDbPoint>(point));
}

void EntityMaker::TakeLine(std::span<const AcGePoint3d> points) {
    m_entities.push_back(std::make_unique<AcDbPolyline>(points));
}

void EntityMaker::TakePolygon(std::vector<AcDbMPolygon::Ring> rings) {
    m_entities.push_back(std::make_unique<AcDbMPolygon>(std::move(rings)));
}

std::unique_ptr<AcDbEntity> ReadEntity(const EntityTable& table, const StoredRows& row) {
    const EntityTable::Fixed& fields = table.Fields();
    const char* extra = row.Text(fields.extra);
    const bool isSingle = extra && std::string_view(extra).starts_with(kSinglePoint);
    const bool isClosed = row.Value(fields.closed).asInteger().value_or(0) != 0;
    OwnShape shape(table.Kind(), isClosed, isSingle);
    const ShapeResult result = ReadShapes(row.Geometry(), shape);
    std::unique_ptr<AcDbEntity> entity =
        result == ShapeResult::Empty ? Placeless(table.Kind()) : shape.Entity();
    if (!entity) {
        return nullptr;
    }
    if (isClosed && table.Kind() == EntityKind::Section) {
        static_cast<AcDbPolyline&>(*entity).setClosed(true);
    }
    if (table.Kind() == EntityKind::Text) {
        auto& text = static_cast<AcDbText&>(*entity);
        text.setText(row.Value(fields.text).asText());
        text.setHeight(row.Value(fields.height).asReal().value_or(0));
    }
    if (const AcDbValue color = row.Value(fields.color); !color.isNull()) {
        const std::int64_t index = color.asInteger().value_or(kColorByLayer);
        entity->setColorIndex(index >= 0 && index < kColorByLayer ? static_cast<int>(index)
                                                                  : kColorByLayer);
    }
    ReadAttributes(table, row, extra, *entity);
    return entity;
}

bool FillRow(const EntityTable& table, const AcDbEntity& entity, OGRFeature& row) {
    const EntityTable::Fixed& fields = table.Fields();
    std::string extra;
    bool isGood = true;
    switch (table.Kind()) {
    case EntityKind::Node:
        isGood = FillPoint(static_cast<const AcDbPoint&>(entity).position(), row);
        break;
    case EntityKind::Section:
        isGood = FillLine(static_cast<const AcDbPolyline&>(entity), table, row, extra);
        break;
    case EntityKind::Polygon:
        isGood = FillPolygon(static_cast<const AcDbMPolygon&>(entity), row);
        break;
    case EntityKind::Text: {
        const auto& text = static_cast<const AcDbText&>(entity);
        isGood = FillPoint(text.position(), row);
        SetFieldValue(row, fields.text, text.textUtf8());
        SetFieldValue(row, fields.height, text.height() == 0 ? AcDbValue() : text.height());
        break;
    }
    }
    const int color = entity.colorIndex();
    SetFieldValue(row, fields.color, color == kColorByLayer ? AcDbValue() : AcDbValue(color));
    FillAttributes(table, entity.attributes(), row, std::move(extra));
    return isGood;
}

bool KindOf(const AcDbEntity& entity, EntityKind& kind) {
    const AcRxClass* const pClass = entity.isA();
    if (pClass == AcDbPoint::desc()) {
        kind = EntityKind::Node;
    } else if (pClass == AcDbPolyline::desc()) {
        kind = EntityKind::Section;
    } else if (pClass == AcDbMPolygon::desc()) {
        kind = EntityKind::Polygon;
    } else if (pClass == AcDbText::desc()) {
        kind = EntityKind::Text;
    } else {
        return false;
    }
    return true;
}

} // namespace Tessaly
