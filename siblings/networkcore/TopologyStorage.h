// The networks and polygons of a drawing.
#pragma once

#include <memory>
#include <string>

#include "platform/arx/DbDatabase.h"
#include "siblings/networkcore/EntityRange.h"
#include "siblings/networkcore/MapText.h"
#include "siblings/networkcore/Polygon.h"
#include "siblings/networkcore/Section.h"

namespace Orvane::Topology {

/// Nodes, sections, polygons and texts of the systems of one drawing. They are ordinary entities
/// of the drawing, saved, undone and displayed with it, and changes made by other code take
/// effect here at once: the attribute "SYSTEMID" makes an entity part of a system. The storage
/// adds lists and search by name. Created by CTopologyMultiStorage. Main thread only.
///
/// The main topology holds the entities of line, point and polygon systems, the auxiliary one
/// those of assembly schemes. Points of polygon systems are in neither; see CNodeIndex for them.
///
/// Callers are responsible for valid data: the nodes of a section must belong to the drawing, and
/// an id that is not a node counts as a missing node. Arguments may refer to data of the storage
/// itself. Functions that return int give 1 for success and 0 for failure, which includes an
/// entity opened by other code.
class NETWORKCORE_API CTopologyStorage final : private AcDbDatabaseReactor {
public:
    enum class Role { Main, Auxiliary };
    /// \param pDatabase the drawing; null for an empty storage without a drawing
    explicit CTopologyStorage(AcDbDatabase* pDatabase, Role role = Role::Main);
    ~CTopologyStorage() override;
    CTopologyStorage(const CTopologyStorage&) = delete;
    CTopologyStorage& operator=(const CTopologyStorage&) = delete;

    /// Null after the drawing was closed.
    AcDbDatabase* GetDatabase() const { return m_pDatabase; }

    // Adding. Returns a null id if the system belongs to another drawing or to the other
    // topology. Attributes without a name are skipped; a reserved name such as "NAME"
    // (EntityAttributes) gets "_" appended.
    AcDbObjectId AddNode(System::CGisSystem& system, const NodeData& data);
    /// Adds end nodes of other systems to the section's system as well.
    AcDbObjectId AddSection(System::CGisSystem& system, const SectionData& data);
    AcDbObjectId AddPolygon(System::CGisSystem& system, const PolygonData& data);
    AcDbObjectId AddText(System::CGisSystem& system, const TextData& data);

    /// Erases all entities of a system. A node shared with other systems moves to the first of
    /// them.
    void RemoveSystemEntities(int systemId);

    // Look-up of one entity; the accessor tests false if there is none of that id and kind.
    CNode GetNodeById(AcDbObjectId id) const;
    CSection GetSectionById(AcDbObjectId id) const;
    CPolygon GetPolygonById(AcDbObjectId id) const;
    CMapText GetTextById(AcDbObjectId id) const;
    /// By the GUID that CEntity::GetGuid returns.
    CNode GetNodeByGuid(const wchar_t* guid) const;
    CSection GetSectionByGuid(const wchar_t* guid) const;
    /// The GUID for an id; the entity need not exist.
    CString GuidOf(AcDbObjectId id) const;

    // All entities of a kind, in the order of creation.
    EntityRange<CNode> GetNodeVector() const;
    EntityRange<CSection> GetSectionVector() const;
    EntityRange<CPolygon> GetPolygonVector() const;
    EntityRange<CMapText> GetTextVector() const;

    // Entities of one system.
    // Includes nodes of other systems that are shared with this one.
    std::vector<AcDbObjectId> GetSystemNodes(int systemId) const;
    std::vector<AcDbObjectId> GetSystemSections(int systemId) const;
    std::vector<AcDbObjectId> GetSystemPolygons(int systemId) const;
    std::vector<AcDbObjectId> GetSystemTexts(int systemId) const;

    // By name, case-sensitive, UTF-8; the oldest entity if several have the same name.
    CNode FindNodeByName(int systemId, std::string_view name) const;
    CSection FindSectionByName(int systemId, std::string_view name) const;
    CPolygon FindPolygonByName(int systemId, std::string_view name) const;

    int SetName(AcDbObjectId id, const wchar_t* name);
    /// Sets or adds an attribute. Returns 0 for an empty or reserved name, too.
    int SetAttribute(AcDbObjectId id, const AttributeData& attribute);
    /// Returns 0 if the entity has no such attribute.
    int RemoveAttribute(AcDbObjectId id, AcDbNameId name);
    /// Sets the systems of a node: its own first, then the others. Returns 0 for an empty list.
    int SetSystems(AcDbObjectId node, std::span<const int> systems);

    /// Reloads the rules for naming unnamed entities from NameRules.ini in the folder "support".
    void RefreshNameRules();
    /// Loads the counters of a system; null clears them.
    void LoadCountersFromSystem(const System::CGisSystem* pSystem);
    /// Writes the counters back to the system they were loaded from. Does nothing for null or any
    /// other system.
    void SaveCountersToSystem(System::CGisSystem* pSystem);

    /// Changes whenever entities are added, removed or moved; never equal for two storages.
    std::uint64_t GetChangeStamp() const { return m_nChangeStamp; }
    /// The same for entities of one kind; EntityNode covers all points.
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

    /// The lists, brought up to date first.
    Lists& Current() const;
    void FollowRoster(Lists& lists) const;
    bool Takes(const AcDbEntity& entity) const;
    /// The entity of an id if it belongs to this topology and is of the class; else null.
    const AcDbEntity* Find(AcDbObjectId id, const AcRxClass* pClass) const;
    bool IsOurs(const System::CGisSystem& system) const;
    /// Null if the text is not a GUID of this drawing.
    AcDbObjectId IdOfGuid(const wchar_t* guid) const;

    /// Sets system, name, kind and layer of an entity about to be added.
    void Begin(AcDbEntity& entity, System::CGisSystem& system, enmEntityType type,
               std::string_view name, std::string_view kind);
    /// Stores one end of a section and appends its node's position to the line.
    void TakeEnd(const SectionEnd& end, const System::CGisSystem& system, bool isStart,
                 AcDbPolyline& line, std::vector<Point>& vertices);
    /// The given name, or the next one by the naming rules if it is empty.
    std::string NameFor(System::CGisSystem& system, enmEntityType type, std::string_view stated);
    /// Opens an entity of this topology for writing.
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
    int m_nOwnChanges = 0; ///< > 0 during our own attribute-only edits
};

} // namespace Orvane::Topology
