#include "siblings/networkcore/Entity.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/arx/DbDatabase.h"
#include "platform/win/CodePage.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/networkcore/EntityAttributes.h"
#include "siblings/networkcore/Polygon.h"
#include "siblings/networkcore/Section.h"
#include "siblings/networkcore/TopologyStorage.h"

// Accessors are called millions of times in a row, so every operation is one look-up by number
// and a scan of a few attributes.

namespace Orvane::Topology {

namespace {

const EntityAttributes& Names() {
    return EntityAttributes::Get();
}

/// Calls visit(id) for each number in a text such as "3 7".
template <class Visit>
void ForEachNumber(std::string_view text, Visit visit) {
    int number = 0;
    for (const char c : text) {
        if (c >= '0' && c <= '9' && number < 100'000'000) {
            number = number * 10 + (c - '0');
        } else if (c == ' ' && number > 0) {
            visit(std::exchange(number, 0));
        }
    }
    if (number > 0) {
        visit(number);
    }
}

double SignedArea(std::span<const Point> ring) {
    double twice = 0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        // Relative to the first point, so that large coordinates lose no precision.
        const Point& a = ring[i];
        const Point& b = ring[(i + 1) % ring.size()];
        twice += (a.x - ring[0].x) * (b.y - ring[0].y) - (b.x - ring[0].x) * (a.y - ring[0].y);
    }
    return twice / 2;
}

} // namespace

const AcDbEntity* CEntity::Find() const {
    const AcDbDatabase* const pDatabase = m_pStorage ? m_pStorage->GetDatabase() : nullptr;
    const AcDbObject* const pObject = pDatabase ? pDatabase->peek(m_id) : nullptr;
    return pObject && !pObject->isErased() && pObject->isEntity()
               ? static_cast<const AcDbEntity*>(pObject)
               : nullptr;
}

CEntity::operator bool() const {
    const AcDbEntity* const pEntity = Find();
    return pEntity && SystemIdOf(*pEntity) != 0;
}

enmEntityType CEntity::GetEntityType() const {
    return EntityTypeOf(Get());
}

CString CEntity::GetGuid() const {
    return m_pStorage->GuidOf(m_id);
}

int CEntity::GetSystemId() const {
    return SystemIdOf(Get());
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
    const AcDbEntity& entity = Get();
    return entity.isA() == AcDbText::desc() ? static_cast<const AcDbText&>(entity).textUtf8()
                                            : entity.attribute(Names().name).asText();
}

CString CEntity::GetKind() const {
    return Utf8ToWide(GetKindUtf8());
}

std::string_view CEntity::GetKindUtf8() const {
    return Get().attribute(Names().kind).asText();
}

std::vector<AttributeData> CEntity::GetAttributes() const {
    const AcDbAttributes& all = Get().attributes();
    std::vector<AttributeData> attributes;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const AcDbAttributes::Item item = all.at(i);
        if (!Names().IsOwn(item.name)) {
            attributes.push_back({AcDbNameOf(item.name), item.value});
        }
    }
    return attributes;
}

AcDbValue CEntity::GetAttribute(AcDbNameId name) const {
    return Get().attribute(name);
}

bool CNode::HasPlace() const {
    const Point position = GetPosition();
    return std::isfinite(position.x) && std::isfinite(position.y);
}

bool CNode::IsMultiSystem() const {
    return GetSystems().size() > 1;
}

std::vector<int> CNode::GetSystems() const {
    std::vector<int> systems{GetSystemId()};
    ForEachNumber(Get().attribute(Names().systems).asText(), [&](int id) {
        if (std::find(systems.begin(), systems.end(), id) == systems.end()) {
            systems.push_back(id);
        }
    });
    return systems;
}

AcDbObjectId CSection::NodeAt(AcDbNameId end) const {
    const auto number = Get().attribute(end).asInteger();
    if (!number || *number <= 0 || *number > std::numeric_limits<std::uint32_t>::max()) {
        return {};
    }
    const AcDbObjectId id(static_cast<std::uint32_t>(*number));
    return m_pStorage->GetNodeById(id) ? id : AcDbObjectId();
}

AcDbObjectId CSection::GetStartNodeId() const {
    return NodeAt(Names().startNode);
}

AcDbObjectId CSection::GetEndNodeId() const {
    return NodeAt(Names().endNode);
}

std::string_view CSection::GetMissingStart() const {
    return GetStartNodeId().isNull() ? Get().attribute(Names().startName).asText() : "";
}

std::string_view CSection::GetMissingEnd() const {
    return GetEndNodeId().isNull() ? Get().attribute(Names().endName).asText() : "";
}

std::span<const Point> CSection::GetInnerVertices() const {
    // The drawn line runs from node to node, as far as they have a position.
    const std::span<const Point> all = Get<AcDbPolyline>().vertices();
    const CNode start = GetStartNode();
    const CNode end = GetEndNode();
    const std::size_t first = start && start.HasPlace() ? 1 : 0;
    const std::size_t last = end && end.HasPlace() ? 1 : 0;
    return all.size() > first + last ? all.subspan(first, all.size() - first - last)
                                     : std::span<const Point>();
}

double CSection::GetDrawnLength() const {
    double length = 0;
    std::optional<Point> from;
    const auto draw = [&](const Point& point) {
        if (from) {
            length += std::hypot(point.x - from->x, point.y - from->y);
        }
        from = point;
    };
    if (const CNode start = GetStartNode(); start && start.HasPlace()) {
        draw(start.GetPosition());
    }
    for (const Point& vertex : GetInnerVertices()) {
        draw(vertex);
    }
    if (const CNode end = GetEndNode(); end && end.HasPlace()) {
        draw(end.GetPosition());
    }
    return length;
}

double CPolygon::GetArea() const {
    double area = 0;
    for (const AcDbMPolygon::Ring& ring : GetRings()) {
        const double size = std::abs(SignedArea(ring.points));
        area += ring.isHole ? -size : size;
    }
    return area;
}

} // namespace Orvane::Topology
