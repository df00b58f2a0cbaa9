// The entities of a drawing.
#pragma once

#include <memory>
#include <string>

#include "siblings/networkcore/EntityRange.h"
#include "siblings/networkcore/MapText.h"
#include "siblings/networkcore/Polygon.h"
#include "siblings/networkcore/Section.h"

class AcDbDatabase;

namespace Orvane::Topology {

/// Nodes, sections, polygons and texts of all systems of one drawing, in tables by column,
/// so that a million sections fit well. Made by CTopologyMultiStorage. Main thread only.
///
/// Whoever adds entities keeps the data clean: positions are finite numbers, and the nodes
/// of a section belong to the drawing; an id that is no node counts as a missing node.
/// What was handed over may stem from the storage itself. A table that would grow over its
/// limits (some hundred million entities) throws std::length_error.
class NETWORKCORE_API CTopologyStorage {
public:
    /// \param pDatabase the drawing; null for a storage of no drawing
    explicit CTopologyStorage(AcDbDatabase* pDatabase);
    ~CTopologyStorage();
    CTopologyStorage(const CTopologyStorage&) = delete;
    CTopologyStorage& operator=(const CTopologyStorage&) = delete;

    AcDbDatabase* GetDatabase() const { return m_pDatabase; }

    // Adding. kNoEntity if the system is none of this drawing.
    EntityId AddNode(System::CGisSystem& system, const NodeData& data);
    EntityId AddSection(System::CGisSystem& system, const SectionData& data);
    EntityId AddPolygon(System::CGisSystem& system, const PolygonData& data);
    EntityId AddText(System::CGisSystem& system, const TextData& data);
    /// Room for so many more, to spare a long import the growing.
    void Reserve(std::size_t nodes, std::size_t sections);

    /// Removes all entities of a system. Sections of other systems that end at one of its
    /// nodes keep the node's name as a stated one.
    void RemoveSystemEntities(int systemId);

    // One entity; a false accessor if there is none of the id and kind.
    CNode GetNodeById(EntityId id) const;
    CSection GetSectionById(EntityId id) const;
    CPolygon GetPolygonById(EntityId id) const;
    CMapText GetTextById(EntityId id) const;

    // All of a kind, in the order of creation.
    EntityRange<CNode> GetNodeVector() const;
    EntityRange<CSection> GetSectionVector() const;
    EntityRange<CPolygon> GetPolygonVector() const;
    EntityRange<CMapText> GetTextVector() const;

    // Those of one system.
    std::vector<EntityId> GetSystemNodes(int systemId) const;
    std::vector<EntityId> GetSystemSections(int systemId) const;
    std::vector<EntityId> GetSystemPolygons(int systemId) const;
    std::vector<EntityId> GetSystemTexts(int systemId) const;

    // By name, case sensitive; the one created first if several bear it. UTF-8.
    CNode FindNodeByName(int systemId, std::string_view name) const;
    CSection FindSectionByName(int systemId, std::string_view name) const;
    CPolygon FindPolygonByName(int systemId, std::string_view name) const;

    /// 0 for an unknown entity.
    int SetName(EntityId id, const wchar_t* name);
    /// Sets or adds an attribute; 0 for an unknown entity or an empty name.
    int SetAttribute(EntityId id, const AttributeData& attribute);
    /// 0 if the entity has no such attribute.
    int RemoveAttribute(EntityId id, AttributeName name);
    /// Unknown if no entity ever had such an attribute.
    AttributeName FindAttributeName(std::string_view name) const;

    /// Reads again how entities without a name are named: NameRules.ini in the folder
    /// "support", by topology, function and kind of entity.
    void RefreshNameRules();
    /// Takes the counters of a system as the ones in use; null clears them.
    void LoadCountersFromSystem(const System::CGisSystem* pSystem);
    /// Gives the counters back to the system they were loaded from. Nothing happens for
    /// null and for any other system, which still has its own.
    void SaveCountersToSystem(System::CGisSystem* pSystem);

    /// Another number after every change of which entities there are and where they lie;
    /// no two storages ever have the same.
    std::uint64_t GetChangeStamp() const { return m_nChangeStamp; }

private:
    friend class CEntity;
    friend class CNode;
    friend class CSection;
    friend class CPolygon;
    friend class CMapText;
    struct Tables;
    struct Naming;

    /// The stated name, or where there is none the next one by the rules.
    std::string NameFor(System::CGisSystem& system, enmEntityType type, std::string_view stated);
    void Changed();

    AcDbDatabase* m_pDatabase;
    std::unique_ptr<Tables> m_pTables;
    std::unique_ptr<Naming> m_pNaming;
    std::uint64_t m_nChangeStamp = 0;
};

} // namespace Orvane::Topology
