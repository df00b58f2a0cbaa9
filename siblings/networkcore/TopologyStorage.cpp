#include "siblings/networkcore/TopologyStorage.h"

#include "platform/win/CodePage.h"
#include "siblings/giscore/ModuleConfiguration.h"
#include "siblings/giscore/SupportFile.h"
#include "siblings/networkcore/TopologyTables.h"

namespace Orvane::Topology {

namespace {

constexpr const wchar_t* kNameRulesFile = L"NameRules.ini";

/// The accessor of an entity if it is of the kind that is asked for.
template <class Accessor, class Tables>
Accessor OfKind(const CTopologyStorage* pStorage, const Tables& tables, EntityId id,
                typename Tables::Kind kind) {
    return tables.KindOf(id) == kind ? Accessor(pStorage, id) : Accessor();
}

template <class Accessor>
Accessor ByName(const CTopologyStorage* pStorage, EntityTable& table, int systemId,
                std::string_view name) {
    const auto row = table.byName.Find(table, systemId, name);
    return row ? Accessor(pStorage, table.ids[*row]) : Accessor();
}

} // namespace

CTopologyStorage::CTopologyStorage(AcDbDatabase* pDatabase)
    : m_pDatabase(pDatabase), m_pTables(std::make_unique<Tables>()),
      m_pNaming(std::make_unique<Naming>()) {
    Changed();
}

CTopologyStorage::~CTopologyStorage() = default;

void CTopologyStorage::Changed() {
    // One count for all storages: an index sees a change of drawing as well.
    static std::uint64_t s_nLast = 0;
    m_nChangeStamp = ++s_nLast;
}

EntityId CTopologyStorage::AddNode(System::CGisSystem& system, const NodeData& data) {
    if (system.GetDatabase() != m_pDatabase) {
        return kNoEntity;
    }
    const EntityId id =
        m_pTables->AddRow(Tables::Kind::Node, system.GetSystemId(),
                          NameFor(system, EntityNode, data.name), data.kind, data.attributes);
    m_pTables->nodePositions.push_back(data.position);
    Changed();
    return id;
}

EntityId CTopologyStorage::AddSection(System::CGisSystem& system, const SectionData& data) {
    if (system.GetDatabase() != m_pDatabase) {
        return kNoEntity;
    }
    Tables& tables = *m_pTables;
    const Run vertices = tables.AddPoints(data.innerVertices);
    std::array<EntityId, 2> ends{};
    std::array<std::string, 2> missing;
    for (const std::size_t i : {0, 1}) {
        const SectionEnd& end = i == 0 ? data.start : data.end;
        if (tables.KindOf(end.node) == Tables::Kind::Node) {
            ends[i] = end.node;
        } else {
            missing[i] = end.missingName;
        }
    }
    const EntityId id =
        tables.AddRow(Tables::Kind::Section, system.GetSystemId(),
                      NameFor(system, EntitySection, data.name), data.kind, data.attributes);
    tables.sectionEnds.push_back(ends);
    tables.sectionVertices.push_back(vertices);
    if (!missing[0].empty() || !missing[1].empty()) {
        tables.missingEnds.emplace(id, std::move(missing));
    }
    Changed();
    return id;
}

EntityId CTopologyStorage::AddPolygon(System::CGisSystem& system, const PolygonData& data) {
    if (system.GetDatabase() != m_pDatabase) {
        return kNoEntity;
    }
    const Run ring = m_pTables->AddPoints(data.ring);
    const EntityId id =
        m_pTables->AddRow(Tables::Kind::Polygon, system.GetSystemId(),
                          NameFor(system, EntityPolygon, data.name), data.kind, data.attributes);
    m_pTables->polygonRings.push_back(ring);
    Changed();
    return id;
}

EntityId CTopologyStorage::AddText(System::CGisSystem& system, const TextData& data) {
    if (system.GetDatabase() != m_pDatabase) {
        return kNoEntity;
    }
    const EntityId id =
        m_pTables->AddRow(Tables::Kind::Text, system.GetSystemId(), data.text, {}, {});
    m_pTables->textPositions.push_back(data.position);
    Changed();
    return id;
}

void CTopologyStorage::Reserve(std::size_t nodes, std::size_t sections) {
    Tables& tables = *m_pTables;
    tables.places.reserve(tables.places.size() + nodes + sections);
    tables.nodes.Reserve(nodes);
    tables.nodePositions.reserve(tables.nodePositions.size() + nodes);
    tables.sections.Reserve(sections);
    tables.sectionEnds.reserve(tables.sectionEnds.size() + sections);
    tables.sectionVertices.reserve(tables.sectionVertices.size() + sections);
}

void CTopologyStorage::RemoveSystemEntities(int systemId) {
    if (m_pNaming->loadedSystem == systemId) {
        m_pNaming->loadedSystem = 0;
        m_pNaming->counters.clear();
    }
    if (m_pTables->HasSystem(systemId)) {
        m_pTables = m_pTables->Without(systemId);
        Changed();
    }
}

CNode CTopologyStorage::GetNodeById(EntityId id) const {
    return OfKind<CNode>(this, *m_pTables, id, Tables::Kind::Node);
}

CSection CTopologyStorage::GetSectionById(EntityId id) const {
    return OfKind<CSection>(this, *m_pTables, id, Tables::Kind::Section);
}

CPolygon CTopologyStorage::GetPolygonById(EntityId id) const {
    return OfKind<CPolygon>(this, *m_pTables, id, Tables::Kind::Polygon);
}

CMapText CTopologyStorage::GetTextById(EntityId id) const {
    return OfKind<CMapText>(this, *m_pTables, id, Tables::Kind::Text);
}

EntityRange<CNode> CTopologyStorage::GetNodeVector() const {
    return {this, m_pTables->nodes.ids};
}

EntityRange<CSection> CTopologyStorage::GetSectionVector() const {
    return {this, m_pTables->sections.ids};
}

EntityRange<CPolygon> CTopologyStorage::GetPolygonVector() const {
    return {this, m_pTables->polygons.ids};
}

EntityRange<CMapText> CTopologyStorage::GetTextVector() const {
    return {this, m_pTables->texts.ids};
}

std::vector<EntityId> CTopologyStorage::GetSystemNodes(int systemId) const {
    return m_pTables->nodes.OfSystem(systemId);
}

std::vector<EntityId> CTopologyStorage::GetSystemSections(int systemId) const {
    return m_pTables->sections.OfSystem(systemId);
}

std::vector<EntityId> CTopologyStorage::GetSystemPolygons(int systemId) const {
    return m_pTables->polygons.OfSystem(systemId);
}

std::vector<EntityId> CTopologyStorage::GetSystemTexts(int systemId) const {
    return m_pTables->texts.OfSystem(systemId);
}

CNode CTopologyStorage::FindNodeByName(int systemId, std::string_view name) const {
    return ByName<CNode>(this, m_pTables->nodes, systemId, name);
}

CSection CTopologyStorage::FindSectionByName(int systemId, std::string_view name) const {
    return ByName<CSection>(this, m_pTables->sections, systemId, name);
}

CPolygon CTopologyStorage::FindPolygonByName(int systemId, std::string_view name) const {
    return ByName<CPolygon>(this, m_pTables->polygons, systemId, name);
}

int CTopologyStorage::SetName(EntityId id, const wchar_t* name) {
    if (!CEntity(this, id)) {
        return 0;
    }
    EntityTable& table = m_pTables->TableOf(m_pTables->KindOf(id));
    const std::uint32_t row = m_pTables->RowOf(id);
    table.names[row] = table.nameTexts.Add(WideToUtf8(CString(name).View()));
    table.byName.Renamed(table, row);
    return 1;
}

int CTopologyStorage::SetAttribute(EntityId id, const AttributeData& attribute) {
    if (!CEntity(this, id) || attribute.name.empty()) {
        return 0;
    }
    EntityTable& table = m_pTables->TableOf(m_pTables->KindOf(id));
    m_pTables->attributes.Set(table.attributes[m_pTables->RowOf(id)], attribute);
    return 1;
}

int CTopologyStorage::RemoveAttribute(EntityId id, AttributeName name) {
    if (!CEntity(this, id)) {
        return 0;
    }
    EntityTable& table = m_pTables->TableOf(m_pTables->KindOf(id));
    return m_pTables->attributes.Remove(table.attributes[m_pTables->RowOf(id)], name);
}

AttributeName CTopologyStorage::FindAttributeName(std::string_view name) const {
    return m_pTables->attributes.FindName(name);
}

void CTopologyStorage::RefreshNameRules() {
    CModuleConfiguration* const pConfiguration = CModuleConfiguration::Instance();
    const CString path = pConfiguration->GetPath(L"support") + kNameRulesFile;
    IniFile file;
    std::vector<CString> problems = LoadSupportFile(file, path);
    m_pNaming->rules = NameRules(file, path, problems);
    m_pNaming->rulesAreRead = true;
    pConfiguration->SetProblems(kNameRulesFile, std::move(problems));
}

void CTopologyStorage::LoadCountersFromSystem(const System::CGisSystem* pSystem) {
    // Ids are unique in one drawing only.
    const bool isOwn = pSystem && pSystem->GetDatabase() == m_pDatabase;
    m_pNaming->loadedSystem = isOwn ? pSystem->GetSystemId() : 0;
    m_pNaming->counters = isOwn ? pSystem->GetCounters() : System::CGisSystem::Counters();
}

void CTopologyStorage::SaveCountersToSystem(System::CGisSystem* pSystem) {
    if (pSystem && pSystem->GetDatabase() == m_pDatabase &&
        pSystem->GetSystemId() == m_pNaming->loadedSystem) {
        pSystem->SetCounters(m_pNaming->counters);
    }
}

std::string CTopologyStorage::NameFor(System::CGisSystem& system, enmEntityType type,
                                      std::string_view stated) {
    if (!stated.empty()) {
        return std::string(stated);
    }
    if (!m_pNaming->rulesAreRead) {
        RefreshNameRules();
    }
    const NamePattern& pattern =
        m_pNaming->rules.Find(system.GetTopologyType(), system.GetSystemFunction(), type);
    const int systemId = system.GetSystemId();
    int& counter = m_pNaming->loadedSystem == systemId
                       ? m_pNaming->counters[CString(NameRules::WordOf(type))]
                       : system.Counter(NameRules::WordOf(type));
    EntityTable& table = m_pTables->TableOf(type);
    std::string name;
    do {
        // From the start again where it would run over; a counter may come from anywhere.
        counter = counter < 0 || counter == std::numeric_limits<int>::max() ? 1 : counter + 1;
        name = pattern.Name(counter);
    } while (table.byName.Find(table, systemId, name));
    return name;
}

} // namespace Orvane::Topology
