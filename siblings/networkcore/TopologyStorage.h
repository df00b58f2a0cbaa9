// The networks and areas of a drawing.
#pragma once

#include <memory>
#include <string>

#include "platform/arx/DbDatabase.h"
#include "siblings/networkcore/EntityRange.h"
#include "siblings/networkcore/MapText.h"
#include "siblings/networkcore/Polygon.h"
#include "siblings/networkcore/Section.h"

namespace Orvane::Topology {

/// Nodes, sections, polygons and texts of the systems of one drawing. They are the drawing's
/// own entities, so they are saved, undone and shown with it, and what other code does to
/// them counts here at once: an entity belongs to a system by its attribute "SYSTEMID". The
/// storage adds lists of them and search by name. Made by CTopologyMultiStorage. Main thread
/// only.
///
/// The main topology holds what belongs to systems of lines, points and polygons; the
/// auxiliary one holds assembly schemes. Points of polygon systems are in neither; see
/// CNodeIndex for them.
///
/// Whoever adds entities keeps the data clean: the nodes of a section belong to the drawing;
/// an id that is no node counts as a missing node. What was handed over may stem from the
/// storage itself. Operations that return int give 1 for success and 0 for failure, also for
/// an entity that somebody else has open.
class NETWORKCORE_API CTopologyStorage final : private AcDbDatabaseReactor {
public:
    enum class Role { Main, Auxiliary };
    /// \param pDatabase the drawing; null for a storage of no drawing
    explicit CTopologyStorage(AcDbDatabase* pDatabase, Role role = Role::Main);
    ~CTopologyStorage() override;
    CTopologyStorage(const CTopologyStorage&) = delete;
    CTopologyStorage& operator=(const CTopologyStorage&) = delete;

    /// Null once the drawing is gone.
    AcDbDatabase* GetDatabase() const { return m_pDatabase; }

    // Adding. A null id if the system is none of this drawing, or of the other topology.
    // Attributes without a name are left out; one with the name of an attribute by which
    // entities belong to systems, as "NAME", gets a "_" behind it.
    AcDbObjectId AddNode(System::CGisSystem& system, const NodeData& data);
    /// Nodes of other systems at its ends belong to its system as well from then on.
    AcDbObjectId AddSection(System::CGisSystem& system, const SectionData& data);
    AcDbObjectId AddPolygon(System::CGisSystem& system, const PolygonData& data);
    AcDbObjectId AddText(System::CGisSystem& system, const TextData& data);

    /// Erases all entities of a system. A node that belongs to other systems as well goes
    /// over to the first of them.
    void RemoveSystemEntities(int systemId);

    // One entity; a false accessor if there is none of the id and kind.
    CNode GetNodeById(AcDbObjectId id) const;
    CSection GetSectionById(AcDbObjectId id) const;
    CPolygon GetPolygonById(AcDbObjectId id) const;
    CMapText GetTextById(AcDbObjectId id) const;
    /// By what CEntity::GetGuid gives.
    CNode GetNodeByGuid(const wchar_t* guid) const;
    CSection GetSectionByGuid(const wchar_t* guid) const;
    /// The GUID of the entity of an id, which need not be there.
    CString GuidOf(AcDbObjectId id) const;

    // All of a kind, in the order of creation.
    EntityRange<CNode> GetNodeVector() const;
    EntityRange<CSection> GetSectionVector() const;
    EntityRange<CPolygon> GetPolygonVector() const;
    EntityRange<CMapText> GetTextVector() const;

    // Those of one system.
    /// With nodes of other systems that belong to this one as well.
    std::vector<AcDbObjectId> GetSystemNodes(int systemId) const;
    std::vector<AcDbObjectId> GetSystemSections(int systemId) const;
    std::vector<AcDbObjectId> GetSystemPolygons(int systemId) const;
    std::vector<AcDbObjectId> GetSystemTexts(int systemId) const;

    // By name, case sensitive; the one created first if several bear it. UTF-8.
    CNode FindNodeByName(int systemId, std::string_view name) const;
    CSection FindSectionByName(int systemId, std::string_view name) const;
    CPolygon FindPolygonByName(int systemId, std::string_view name) const;

    int SetName(AcDbObjectId id, const wchar_t* name);
    /// Sets or adds an attribute; 0 also for one without a name or with a name of our own.
    int SetAttribute(AcDbObjectId id, const AttributeData& attribute);
    /// 0 if the entity has no such attribute.
    int RemoveAttribute(AcDbObjectId id, AcDbNameId name);
    /// The systems of a node: the one whose it is, and further ones. 0 without any.
    int SetSystems(AcDbObjectId node, std::span<const int> systems);

    /// Reads again how entities without a name are named: NameRules.ini in the folder
    /// "support", by topology, function and kind of entity.
    void RefreshNameRules();
    /// Takes the counters of a system as the ones in use; null clears them.
    void LoadCountersFromSystem(const System::CGisSystem* pSystem);
    /// Gives the counters back to the system they were loaded from. Nothing happens for
    /// null and for any other system, which still has its own.
    void SaveCountersToSystem(System::CGisSystem* pSystem);

    /// Another number after every change of which entities the drawing has and where they
    /// lie; no two storages ever have the same.
    std::uint64_t GetChangeStamp() const { return m_nChangeStamp; }
    /// The same for entities of one kind alone; EntityNode stands for all points.
    std::uint64_t GetChangeStamp(enmEntityType type) const;

private:
    struct Lists;
    struct Naming;
    class OwnChange;

    void objectAppended(const AcDbDatabase*, const AcDbObject* pObject) override;
    void objectModified(const AcDbDatabase*, const AcDbObject* pObject) override;
    void objectErased(const AcDbDatabase*, const AcDbObject* pObject, bool bErased) override;
    void databaseReplaced(const AcDbDatabase*) override;
    void goodbye(const AcDbDatabase*) override;

    /// The lists, up to date.
    Lists& Current() const;
    void FollowRoster(Lists& lists) const;
    bool Takes(const AcDbEntity& entity) const;
    /// The entity of an id if it is one of this topology, of a class.
    const AcDbEntity* Find(AcDbObjectId id, const AcRxClass* pClass) const;
    bool IsOurs(const System::CGisSystem& system) const;
    /// Null for a text that is no GUID of this drawing.
    AcDbObjectId IdOfGuid(const wchar_t* guid) const;

    /// Gives an entity that is about to be added its system, name, kind and layer.
    void Begin(AcDbEntity& entity, System::CGisSystem& system, enmEntityType type,
               std::string_view name, std::string_view kind);
    /// Notes an end of a section, and adds the place of its node to the line.
    void TakeEnd(const SectionEnd& end, const System::CGisSystem& system, bool isStart,
                 AcDbPolyline& line, std::vector<Point>& vertices);
    /// The stated name, or where there is none the next one by the rules.
    std::string NameFor(System::CGisSystem& system, enmEntityType type, std::string_view stated);
    /// Opens an entity of ours for writing.
    template <class Change>
    int ChangeEntity(AcDbObjectId id, Change change);
    void Changed();
    void Changed(const AcDbEntity& entity);

    AcDbDatabase* m_pDatabase;
    Role m_role;
    std::unique_ptr<Lists> m_pLists;
    std::unique_ptr<Naming> m_pNaming;
    std::uint64_t m_nChangeStamp = 0;
    std::uint64_t m_nPointStamp = 0;
    std::uint64_t m_nPolygonStamp = 0;
    int m_nOwnChanges = 0; ///< what changes is neither an entity's place nor its system
};

} // namespace Orvane::Topology
