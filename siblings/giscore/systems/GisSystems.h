// The systems of one drawing.
#pragma once

#include <memory>
#include <vector>

#include "siblings/giscore/systems/GisSystem.h"

namespace Orvane::System {

/// Kept by CSystemManager beside the drawing; goes with the document.
///
/// In the drawing a system is the dictionary "ORVZ_SYSTEM_<id>", with the records "GUID",
/// "NAME", "TOPOLOGY", "FUNCTION", "VISIBLE", "SRS", and "LAYER.<reference>" with the name
/// of each layer, and "ITEM.<tag>.<guid>" for each configuration. The dictionary "ORVZ_SYSTEMS" has
/// "GUID", "LASTID", "ACTIVE" (an id) and "COUNTER.<id>.<name>". Systems follow the dictionaries:
/// when undo takes one away or brings it back, so go the systems, and observers hear of it.
class GISCORE_API CGisSystems final : private AcDbDatabaseReactor {
public:
    /// Reads what the drawing has.
    explicit CGisSystems(AcDbDatabase* pDatabase);
    ~CGisSystems() override;
    CGisSystems(const CGisSystems&) = delete;
    CGisSystems& operator=(const CGisSystems&) = delete;

    /// In the order of creation. A copy, so that systems may come and go during a walk.
    std::vector<CGisSystem*> GetSystemList() const;
    int GetCount() const { return static_cast<int>(m_systems.size()); }

    // Null for an unknown one.
    CGisSystem* GetSystemById(int id) const;
    CGisSystem* GetSystemByGuid(const wchar_t* guid) const;
    /// Without regard to case.
    CGisSystem* GetSystemByName(const wchar_t* name) const;

    /// Null if no system is active.
    CGisSystem* GetActiveSystem() const { return m_pActive; }
    /// Null once the drawing is gone.
    AcDbDatabase* GetDatabase() const { return m_pDatabase; }
    /// Unique everywhere; given to the drawing with its first system, and kept in it.
    const CString& GetDrawingGuid() const { return m_strDrawingGuid; }
    /// Another number whenever systems have come or gone.
    std::uint64_t GetRosterStamp() const { return m_nRosterStamp; }

    /// Completes systems that an earlier version, or another program, left without a GUID or
    /// a name, or with a name that an earlier system has. Outside of the undo history.
    /// \return how many systems were completed
    int UpgradeSystems();
    /// Makes the layers that systems of their kind have and these do not.
    /// \return how many layers were made
    int CreateMissingLayers();
    /// Writes the active system and the counters into the drawing, before a save.
    void StoreState();

private:
    friend class CGisSystem;
    friend class CSystemManager;
    class OwnChange;

    void objectModified(const AcDbDatabase*, const AcDbObject* pObject) override;
    void objectErased(const AcDbDatabase*, const AcDbObject* pObject, bool bErased) override;
    void databaseReplaced(const AcDbDatabase*) override;
    void goodbye(const AcDbDatabase*) override;

    /// Reads all systems anew, without a word to anybody.
    void Load();
    void Read(CGisSystem& system) const;
    void ReadCounters(CGisSystem& system) const;
    CGisSystem& Insert(int id);
    /// Its id if an object of the drawing is the dictionary of a system, else 0.
    int IdOf(const AcDbObject& object) const;
    /// Tells the observers, and takes a system from the list.
    void Drop(CGisSystem& system);
    /// Keeps what the drawing does not know of a system, for when undo brings it back.
    void Park(const CGisSystem& system);
    void DropOldCounters();
    void MakeDrawingGuid();

    CGisSystem& Add(const CString& name, enmTopologyType type, int function);
    void Remove(CGisSystem& system);
    void SetActive(CGisSystem* pSystem);
    void SetVisibility(CGisSystem& system, int visible);
    void Rename(CGisSystem& system, const CString& name);
    /// Writes what the drawing does not have yet of a system.
    void Store(const CGisSystem& system);
    int CreateMissingLayers(CGisSystem& system);

    AcDbDatabase* m_pDatabase;
    std::vector<std::unique_ptr<CGisSystem>> m_systems;
    CString m_strDrawingGuid;
    CGisSystem* m_pActive = nullptr;
    struct Parked {
        CGisSystem::Counters counters;
        bool wasActive = false;
    };
    std::map<int, Parked> m_parked; ///< of systems that are gone, by id
    std::uint64_t m_nRosterStamp = 0;
    int m_nOwnChanges = 0; ///< the dictionaries are changed from here
};

} // namespace Orvane::System
