#include "siblings/networkcore/TopologyStorage.h"

#include <algorithm>
#include <cmath>

#include "platform/arx/DbUndoScopes.h"
#include "platform/win/CodePage.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/networkcore/EntityLists.h"
#include "siblings/networkcore/EntityNaming.h"

namespace Orvane::Topology {

namespace {

const EntityAttributes& Names() {
    return EntityAttributes::Get();
}

template <class Accessor>
Accessor ByName(const CTopologyStorage* pStorage, EntityList& list, int systemId,
                std::string_view name) {
    const auto row = list.byName.Find(list, systemId, name);
    return row ? Accessor(pStorage, list.ids[*row]) : Accessor();
}

AcDbNameId FreeName(std::string_view name) {
    AcDbNameId id = AcDbIntern(name);
    for (std::string other(name); Names().IsOwn(id); id = AcDbIntern(other)) {
        other += '_';
    }
    return id;
}

void SetAttributes(AcDbEntity& entity, std::span<const AttributeData> attributes) {
    for (const AttributeData& attribute : attributes) {
        if (!attribute.name.empty()) {
            entity.setAttribute(FreeName(attribute.name), attribute.value);
        }
    }
}

/// Removes heights that come from the nodes only from a line whose own vertices have none: other
/// programs expect heights on all vertices of a line or on none.
void DropPartialHeights(std::vector<Point>& vertices, const SectionData& data) {
    const bool isFlat = std::any_of(vertices.begin(), vertices.end(),
                                    [](const Point& point) { return std::isnan(point.z); });
    const bool statesHeights = !std::isnan(data.start.height) || !std::isnan(data.end.height) ||
                               std::any_of(data.innerVertices.begin(), data.innerVertices.end(),
                                           [](const Point& point) { return !std::isnan(point.z); });
    if (isFlat && !statesHeights) {
        for (Point& vertex : vertices) {
            vertex.z = kNoHeight;
        }
    }
}

} // namespace

/// Suppresses change tracking while alive: our own edits do not move, add or remove entities.
class CTopologyStorage::OwnChange {
public:
    explicit OwnChange(CTopologyStorage& storage) : m_storage(storage) {
        ++m_storage.m_nOwnChanges;
    }
    ~OwnChange() { --m_storage.m_nOwnChanges; }
    OwnChange(const OwnChange&) = delete;
    OwnChange& operator=(const OwnChange&) = delete;

private:
    CTopologyStorage& m_storage;
};

CTopologyStorage::CTopologyStorage(AcDbDatabase* pDatabase, Role role)
    : m_pDatabase(pDatabase), m_role(role), m_pLists(std::make_unique<Lists>()),
      m_pNaming(std::make_unique<Naming>()) {
    for (const enmEntityType type : {EntityNode, EntitySection, EntityPolygon, EntityNone}) {
        m_pLists->Of(type).pStorage = this;
    }
    if (m_pDatabase) {
        m_pDatabase->addReactor(this);
    }
    Changed();
}

CTopologyStorage::~CTopologyStorage() {
    if (m_pDatabase) {
        m_pDatabase->removeReactor(this);
    }
}

void CTopologyStorage::Changed() {
    // One counter for all storages, so an index also notices a switch to another drawing.
    static std::uint64_t s_nLast = 0;
    m_nChangeStamp = m_nPointStamp = m_nPolygonStamp = ++s_nLast;
}

void CTopologyStorage::Changed(const AcDbEntity& entity) {
    const std::uint64_t points = m_nPointStamp;
    const std::uint64_t polygons = m_nPolygonStamp;
    Changed();
    const enmEntityType type = EntityTypeOf(entity);
    m_nPointStamp = type == EntityNode ? m_nChangeStamp : points;
    m_nPolygonStamp = type == EntityPolygon ? m_nChangeStamp : polygons;
}

std::uint64_t CTopologyStorage::GetChangeStamp(enmEntityType type) const {
    return type == EntityNode      ? m_nPointStamp
           : type == EntityPolygon ? m_nPolygonStamp
                                   : m_nChangeStamp;
}

// Which entities belong to the topology, and how the lists follow the drawing.

void CTopologyStorage::FollowRoster(Lists& lists) const {
    const System::CGisSystems* const pSystems =
        m_pDatabase ? System::CSystemManager::Instance()->GetSystems(m_pDatabase) : nullptr;
    const std::uint64_t stamp = pSystems ? pSystems->GetRosterStamp() : 0;
    if (stamp == lists.rosterStamp) {
        return;
    }
    lists.rosterStamp = stamp;
    std::vector<Lists::System> roster;
    for (const System::CGisSystem* const pSystem :
         pSystems ? pSystems->GetSystemList() : std::vector<System::CGisSystem*>()) {
        roster.push_back({pSystem->GetSystemId(), pSystem->GetTopologyType()});
    }
    // A new system has no entities yet, but one restored by undo may.
    lists.isStale = true;
    lists.roster = std::move(roster);
}

bool CTopologyStorage::Takes(const AcDbEntity& entity) const {
    const int systemId = SystemIdOf(entity);
    if (systemId == 0 || entity.blockId() != m_pDatabase->modelSpace()) {
        return false;
    }
    FollowRoster(*m_pLists);
    const auto& roster = m_pLists->roster;
    const auto hit = std::find_if(roster.begin(), roster.end(),
                                  [systemId](const auto& system) { return system.id == systemId; });
    if (hit == roster.end()) {
        return false;
    }
    const bool isScheme = hit->type == TopologyScheme;
    const bool isFree = hit->type == TopologyPolygon && EntityTypeOf(entity) == EntityNode;
    return isScheme == (m_role == Role::Auxiliary) && !isFree;
}

const AcDbEntity* CTopologyStorage::Find(AcDbObjectId id, const AcRxClass* pClass) const {
    const AcDbObject* const pObject = m_pDatabase ? m_pDatabase->peek(id) : nullptr;
    if (!pObject || pObject->isErased() || pObject->isA() != pClass) {
        return nullptr;
    }
    const auto* const pEntity = static_cast<const AcDbEntity*>(pObject);
    return Takes(*pEntity) ? pEntity : nullptr;
}

CTopologyStorage::Lists& CTopologyStorage::Current() const {
    Lists& lists = *m_pLists;
    FollowRoster(lists);
    if (lists.isStale && m_pDatabase) {
        lists.isStale = false;
        lists.Clear();
        m_pDatabase->forEachEntity([&](const AcDbEntity& entity) {
            if (Takes(entity)) {
                lists.Of(EntityTypeOf(entity)).ids.push_back(entity.objectId());
            }
        });
        // The drawing iterates in storage order, in which restored entities may be out of place.
        for (const enmEntityType type : {EntityNode, EntitySection, EntityPolygon, EntityNone}) {
            auto& ids = lists.Of(type).ids;
            if (!std::is_sorted(ids.begin(), ids.end())) {
                std::sort(ids.begin(), ids.end());
            }
        }
    }
    return lists;
}

void CTopologyStorage::objectAppended(const AcDbDatabase*, const AcDbObject* pObject) {
    if (!pObject->isEntity()) {
        return;
    }
    const auto& entity = static_cast<const AcDbEntity&>(*pObject);
    Changed(entity);
    if (!m_pLists->isStale && Takes(entity) && !m_pLists->isStale) {
        m_pLists->Of(EntityTypeOf(entity)).ids.push_back(entity.objectId());
    }
}

void CTopologyStorage::objectModified(const AcDbDatabase*, const AcDbObject* pObject) {
    if (m_nOwnChanges > 0 || !pObject->isEntity()) {
        return;
    }
    const auto& entity = static_cast<const AcDbEntity&>(*pObject);
    Changed(entity);
    if (m_pLists->isStale) {
        return;
    }
    EntityList& list = m_pLists->Of(EntityTypeOf(entity));
    const bool isListed = list.Contains(entity.objectId());
    const bool isTaken = Takes(entity);
    m_pLists->isStale = m_pLists->isStale || isListed != isTaken;
    if (isTaken) {
        list.byName = {}; // its name or its system may have changed
    }
}

void CTopologyStorage::objectErased(const AcDbDatabase*, const AcDbObject* pObject, bool) {
    if (pObject->isEntity()) {
        m_pLists->isStale = true;
        Changed(static_cast<const AcDbEntity&>(*pObject));
    }
}

void CTopologyStorage::databaseReplaced(const AcDbDatabase*) {
    m_pLists->isStale = true;
    Changed();
}

void CTopologyStorage::goodbye(const AcDbDatabase*) {
    m_pDatabase = nullptr;
    m_pLists->Clear();
    Changed();
}

// Adding.

bool CTopologyStorage::IsOurs(const System::CGisSystem& system) const {
    return m_pDatabase && system.GetDatabase() == m_pDatabase &&
           (system.GetTopologyType() == TopologyScheme) == (m_role == Role::Auxiliary);
}

void CTopologyStorage::Begin(AcDbEntity& entity, System::CGisSystem& system, enmEntityType type,
                             std::string_view name, std::string_view kind) {
    entity.setLayer(system.GetLayerFor(type));
    entity.setAttribute(Names().systemId, system.GetSystemId());
    if (type != EntityNone) {
        const std::string chosen = NameFor(system, type, name);
        entity.setAttribute(Names().name, std::string_view(chosen));
    }
    if (!kind.empty()) {
        entity.setAttribute(Names().kind, kind);
    }
}

AcDbObjectId CTopologyStorage::AddNode(System::CGisSystem& system, const NodeData& data) {
    if (!IsOurs(system)) {
        return {};
    }
    auto point = std::make_unique<AcDbPoint>(data.position);
    point->reserveAttributes(data.attributes.size() + 3);
    Begin(*point, system, EntityNode, data.name, data.kind);
    SetAttributes(*point, data.attributes);
    return m_pDatabase->appendEntity(std::move(point));
}

AcDbObjectId CTopologyStorage::AddSection(System::CGisSystem& system, const SectionData& data) {
    if (!IsOurs(system)) {
        return {};
    }
    auto line = std::make_unique<AcDbPolyline>();
    line->reserveAttributes(data.attributes.size() + 5);
    Begin(*line, system, EntitySection, data.name, data.kind);
    std::vector<Point> vertices;
    vertices.reserve(data.innerVertices.size() + 2);
    TakeEnd(data.start, system, true, *line, vertices);
    vertices.insert(vertices.end(), data.innerVertices.begin(), data.innerVertices.end());
    TakeEnd(data.end, system, false, *line, vertices);
    DropPartialHeights(vertices, data);
    line->setVertices(vertices);
    SetAttributes(*line, data.attributes);
    return m_pDatabase->appendEntity(std::move(line));
}

void CTopologyStorage::TakeEnd(const SectionEnd& end, const System::CGisSystem& system,
                               bool isStart, AcDbPolyline& line, std::vector<Point>& vertices) {
    const CNode node = GetNodeById(end.node);
    if (!node) {
        if (!end.missingName.empty()) {
            line.setAttribute(isStart ? Names().startName : Names().endName, end.missingName);
        }
        return;
    }
    line.setAttribute(isStart ? Names().startNode : Names().endNode,
                      std::int64_t{end.node.number()});
    if (node.HasPlace()) {
        Point place = node.GetPosition();
        place.z = std::isnan(end.height) ? place.z : end.height;
        vertices.push_back(place);
    }
    if (node.GetSystemId() != system.GetSystemId()) {
        std::vector<int> systems = node.GetSystems();
        systems.push_back(system.GetSystemId());
        SetSystems(end.node, systems);
    }
}

AcDbObjectId CTopologyStorage::AddPolygon(System::CGisSystem& system, const PolygonData& data) {
    if (!IsOurs(system)) {
        return {};
    }
    auto polygon = std::make_unique<AcDbMPolygon>(
        std::vector<AcDbMPolygon::Ring>(data.rings.begin(), data.rings.end()));
    polygon->reserveAttributes(data.attributes.size() + 3);
    Begin(*polygon, system, EntityPolygon, data.name, data.kind);
    SetAttributes(*polygon, data.attributes);
    return m_pDatabase->appendEntity(std::move(polygon));
}

AcDbObjectId CTopologyStorage::AddText(System::CGisSystem& system, const TextData& data) {
    if (!IsOurs(system)) {
        return {};
    }
    auto text = std::make_unique<AcDbText>(data.position, data.text);
    Begin(*text, system, EntityNone, {}, {});
    return m_pDatabase->appendEntity(std::move(text));
}

template <class Change>
int CTopologyStorage::ChangeEntity(AcDbObjectId id, Change change) {
    AcDbEntity* pEntity = nullptr;
    if (!m_pDatabase || !CEntity(this, id) ||
        acdbOpenObject(pEntity, id, AcDb::kForWrite, false, m_pDatabase) != Acad::eOk) {
        return 0;
    }
    const bool isDone = change(*pEntity);
    pEntity->close();
    return isDone;
}

// Removing.

void CTopologyStorage::RemoveSystemEntities(int systemId) {
    if (m_pNaming->loadedSystem == systemId) {
        m_pNaming->loadedSystem = 0;
        m_pNaming->counters.clear();
    }
    if (!m_pDatabase) {
        return;
    }
    // Over the drawing, not the lists, which lack the points of polygons.
    std::vector<AcDbObjectId> erased;
    std::vector<AcDbObjectId> handedOver;
    m_pDatabase->forEachEntity([&](const AcDbEntity& entity) {
        const bool isOwn = SystemIdOf(entity) == systemId;
        const bool isShared =
            EntityTypeOf(entity) == EntityNode && !entity.attribute(Names().systems).isNull();
        if (isShared && CNode(this, entity.objectId()).IsMultiSystem()) {
            handedOver.push_back(entity.objectId());
        } else if (isOwn) {
            erased.push_back(entity.objectId());
        }
    });
    const AcDbUndoGroup group(*m_pDatabase, L"");
    for (const AcDbObjectId id : handedOver) {
        std::vector<int> systems = CNode(this, id).GetSystems();
        if (std::erase(systems, systemId) > 0) {
            SetSystems(id, systems);
        }
    }
    for (const AcDbObjectId id : erased) {
        ChangeEntity(id, [](AcDbEntity& entity) { return entity.erase() == Acad::eOk; });
    }
}

// Looking up.

CNode CTopologyStorage::GetNodeById(AcDbObjectId id) const {
    return Find(id, AcDbPoint::desc()) ? CNode(this, id) : CNode();
}

CSection CTopologyStorage::GetSectionById(AcDbObjectId id) const {
    return Find(id, AcDbPolyline::desc()) ? CSection(this, id) : CSection();
}

CPolygon CTopologyStorage::GetPolygonById(AcDbObjectId id) const {
    return Find(id, AcDbMPolygon::desc()) ? CPolygon(this, id) : CPolygon();
}

CMapText CTopologyStorage::GetTextById(AcDbObjectId id) const {
    return Find(id, AcDbText::desc()) ? CMapText(this, id) : CMapText();
}

EntityRange<CNode> CTopologyStorage::GetNodeVector() const {
    return {this, Current().nodes.ids};
}

EntityRange<CSection> CTopologyStorage::GetSectionVector() const {
    return {this, Current().sections.ids};
}

EntityRange<CPolygon> CTopologyStorage::GetPolygonVector() const {
    return {this, Current().polygons.ids};
}

EntityRange<CMapText> CTopologyStorage::GetTextVector() const {
    return {this, Current().texts.ids};
}

std::vector<AcDbObjectId> CTopologyStorage::GetSystemNodes(int systemId) const {
    std::vector<AcDbObjectId> own;
    for (const CNode node : GetNodeVector()) {
        bool isOwn = node.GetSystemId() == systemId;
        if (!isOwn && !node.GetAttribute(Names().systems).isNull()) {
            const std::vector<int> systems = node.GetSystems();
            isOwn = std::find(systems.begin(), systems.end(), systemId) != systems.end();
        }
        if (isOwn) {
            own.push_back(node.GetObjectId());
        }
    }
    return own;
}

std::vector<AcDbObjectId> CTopologyStorage::GetSystemSections(int systemId) const {
    return Current().sections.OfSystem(systemId);
}

std::vector<AcDbObjectId> CTopologyStorage::GetSystemPolygons(int systemId) const {
    return Current().polygons.OfSystem(systemId);
}

std::vector<AcDbObjectId> CTopologyStorage::GetSystemTexts(int systemId) const {
    return Current().texts.OfSystem(systemId);
}

CNode CTopologyStorage::FindNodeByName(int systemId, std::string_view name) const {
    return ByName<CNode>(this, Current().nodes, systemId, name);
}

CSection CTopologyStorage::FindSectionByName(int systemId, std::string_view name) const {
    return ByName<CSection>(this, Current().sections, systemId, name);
}

CPolygon CTopologyStorage::FindPolygonByName(int systemId, std::string_view name) const {
    return ByName<CPolygon>(this, Current().polygons, systemId, name);
}

// Changing.

int CTopologyStorage::SetName(AcDbObjectId id, const wchar_t* name) {
    const std::string utf8 = WideToUtf8(CString(name).View());
    const OwnChange own(*this);
    return ChangeEntity(id, [&](AcDbEntity& entity) {
        if (entity.isA() == AcDbText::desc()) {
            static_cast<AcDbText&>(entity).setText(utf8);
            return true;
        }
        entity.setAttribute(Names().name, std::string_view(utf8));
        EntityList& list = m_pLists->Of(EntityTypeOf(entity));
        if (!m_pLists->isStale && list.Contains(id)) {
            list.byName.Renamed(list, list.RowOf(id));
        }
        return true;
    });
}

int CTopologyStorage::SetAttribute(AcDbObjectId id, const AttributeData& attribute) {
    const AcDbNameId name = AcDbIntern(attribute.name);
    if (attribute.name.empty() || Names().IsOwn(name)) {
        return 0;
    }
    const OwnChange own(*this);
    return ChangeEntity(id, [&](AcDbEntity& entity) {
        entity.setAttribute(name, attribute.value);
        return true;
    });
}

int CTopologyStorage::RemoveAttribute(AcDbObjectId id, AcDbNameId name) {
    if (Names().IsOwn(name)) {
        return 0;
    }
    const OwnChange own(*this);
    return ChangeEntity(id, [&](AcDbEntity& entity) { return entity.removeAttribute(name); });
}

int CTopologyStorage::SetSystems(AcDbObjectId node, std::span<const int> systems) {
    const AcDbObject* const pObject = m_pDatabase ? m_pDatabase->peek(node) : nullptr;
    if (systems.empty() || !pObject || pObject->isA() != AcDbPoint::desc()) {
        return 0;
    }
    std::string further;
    for (std::size_t i = 1; i < systems.size(); ++i) {
        further += (i > 1 ? " " : "") + std::to_string(systems[i]);
    }
    const System::CGisSystem* const pSystem =
        System::CSystemManager::Instance()->GetSystems(m_pDatabase)->GetSystemById(systems[0]);
    return ChangeEntity(node, [&](AcDbEntity& entity) {
        if (SystemIdOf(entity) != systems[0]) {
            entity.setAttribute(Names().systemId, systems[0]);
            if (pSystem && !pSystem->GetLayerFor(EntityNode).isNull()) {
                entity.setLayer(pSystem->GetLayerFor(EntityNode));
            }
        }
        if (further.empty()) {
            entity.removeAttribute(Names().systems);
        } else {
            entity.setAttribute(Names().systems, std::string_view(further));
        }
        return true;
    });
}

} // namespace Orvane::Topology
