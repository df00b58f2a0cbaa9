#include "siblings/networkcore/Entity.h"

#include <cmath>

#include "platform/win/CodePage.h"
#include "siblings/giscore/SystemManager.h"
#include "siblings/networkcore/TopologyTables.h"

// Accessors are asked a million times in a row: every operation is two look-ups by number.

namespace Orvane::Topology {

CEntity::operator bool() const {
    using Kind = CTopologyStorage::Tables::Kind;
    return m_pStorage && m_pStorage->m_pTables->KindOf(m_id) != Kind::None;
}

enmEntityType CEntity::GetEntityType() const {
    return m_pStorage->m_pTables->TableOf(m_id).type;
}

int CEntity::GetSystemId() const {
    const auto& tables = *m_pStorage->m_pTables;
    return tables.TableOf(m_id).systems[tables.RowOf(m_id)];
}

System::CGisSystem* CEntity::GetSystem() const {
    const System::CGisSystems* const pSystems =
        System::CSystemManager::Instance()->GetSystems(m_pStorage->GetDatabase());
    return pSystems ? pSystems->GetSystemById(GetSystemId()) : nullptr;
}

CString CEntity::GetName() const {
    return Utf8ToWide(GetNameUtf8());
}

std::string_view CEntity::GetNameUtf8() const {
    const auto& tables = *m_pStorage->m_pTables;
    return tables.TableOf(m_id).NameOf(tables.RowOf(m_id));
}

CString CEntity::GetKind() const {
    return Utf8ToWide(GetKindUtf8());
}

std::string_view CEntity::GetKindUtf8() const {
    const auto& tables = *m_pStorage->m_pTables;
    return tables.kindNames[tables.TableOf(m_id).kinds[tables.RowOf(m_id)]];
}

std::vector<AttributeData> CEntity::GetAttributes() const {
    const auto& tables = *m_pStorage->m_pTables;
    return tables.attributes.Of(tables.TableOf(m_id).attributes[tables.RowOf(m_id)]);
}

std::optional<AttributeData> CEntity::GetAttribute(AttributeName name) const {
    const auto& tables = *m_pStorage->m_pTables;
    return tables.attributes.Find(tables.TableOf(m_id).attributes[tables.RowOf(m_id)], name);
}

std::optional<double> CEntity::GetNumber(AttributeName name) const {
    const std::optional<AttributeData> attribute = GetAttribute(name);
    return attribute ? attribute->number : std::nullopt;
}

Point CNode::GetPosition() const {
    const auto& tables = *m_pStorage->m_pTables;
    return tables.nodePositions[tables.RowOf(m_id)];
}

EntityId CSection::GetStartNodeId() const {
    const auto& tables = *m_pStorage->m_pTables;
    return tables.sectionEnds[tables.RowOf(m_id)][0];
}

EntityId CSection::GetEndNodeId() const {
    const auto& tables = *m_pStorage->m_pTables;
    return tables.sectionEnds[tables.RowOf(m_id)][1];
}

CNode CSection::GetStartNode() const {
    return {m_pStorage, GetStartNodeId()};
}

CNode CSection::GetEndNode() const {
    return {m_pStorage, GetEndNodeId()};
}

std::string_view CSection::GetMissingStart() const {
    const auto& missing = m_pStorage->m_pTables->missingEnds;
    const auto hit = missing.find(m_id);
    return hit == missing.end() ? std::string_view() : hit->second[0];
}

std::string_view CSection::GetMissingEnd() const {
    const auto& missing = m_pStorage->m_pTables->missingEnds;
    const auto hit = missing.find(m_id);
    return hit == missing.end() ? std::string_view() : hit->second[1];
}

std::span<const Point> CSection::GetInnerVertices() const {
    const auto& tables = *m_pStorage->m_pTables;
    return tables.PointsOf(tables.sectionVertices[tables.RowOf(m_id)]);
}

double CSection::GetDrawnLength() const {
    double length = 0;
    std::optional<Point> last;
    const auto draw = [&](const Point& point) {
        if (last) {
            length += std::hypot(point.x - last->x, point.y - last->y);
        }
        last = point;
    };
    if (const CNode start = GetStartNode()) {
        draw(start.GetPosition());
    }
    for (const Point& vertex : GetInnerVertices()) {
        draw(vertex);
    }
    if (const CNode end = GetEndNode()) {
        draw(end.GetPosition());
    }
    return length;
}

std::span<const Point> CPolygon::GetRing() const {
    const auto& tables = *m_pStorage->m_pTables;
    return tables.PointsOf(tables.polygonRings[tables.RowOf(m_id)]);
}

Point CMapText::GetPosition() const {
    const auto& tables = *m_pStorage->m_pTables;
    return tables.textPositions[tables.RowOf(m_id)];
}

} // namespace Orvane::Topology
