// The systems of one drawing.
#pragma once

#include <memory>
#include <vector>

#include "siblings/giscore/systems/GisSystem.h"

namespace Orvane::System {

/// Owned by CSystemManager; deleted with the document.
///
/// A system is stored as the dictionary "ORVZ_SYSTEM_<id>", with the records "GUID", "NAME",
/// "TOPOLOGY", "FUNCTION", "VISIBLE", "SRS", "LAYER.<reference>" with the name of each layer, and
/// "ITEM.<tag>.<guid>" for each configuration. The dictionary "ORVZ_SYSTEMS" holds "GUID",
/// "LASTID", "ACTIVE" (an id) and "COUNTER.<id>.<name>". Systems follow the dictionaries: when
/// undo removes or restores one, the system is dropped or restored, and observers are notified.
class GISCORE_API CGisSystems final : private AcDbDatabaseReactor {
public:
    /// Reads the systems stored in the drawing.
    explicit CGisSystems(AcDbDatabase* pDatabase);
    ~CGisSystems() override;
    CGisSystems(const CGisSystems&) = delete;
    CGisSystems& operator=(const CGisSystems&) = delete;

    /// In the order of creation. A copy, so systems may be added and removed during iteration.
    std::vector<CGisSystem*> GetSystemList() const;
    int GetCount() const { return static_cast<int>(m_systems.size()); }

    // Null if there is no such system.
    CGisSystem* GetSystemById(int id) const;
    CGisSystem* GetSystemByGuid(const wchar_t* guid) const;
    /// Case-insensitive.
    CGisSystem* GetSystemByName(const wchar_t* name) const;

    /// Null if no system is active.
    CGisSystem* GetActiveSystem() const { return m_pActive; }
    /// Null after the drawing was closed.
    AcDbDatabase* GetDatabase() const { return m_pDatabase; }
    /// Globally unique; assigned when the first system is created, and stored in the drawing.
    const CString& GetDrawingGuid() const { return m_strDrawingGuid; }
    /// Changes whenever systems are added or removed.
    std::uint64_t GetRosterStamp() const { return m_nRosterStamp; }

    /// Repairs systems from an earlier version or another program that have no GUID or name, or a
    /// duplicate name. Not part of the undo history.
    /// \return number of systems repaired
    int UpgradeSystems();
    /// Creates the layers missing from existing systems.
    /// \return number of layers created
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

    /// Reads all systems again without raising events.
    void Load();
    void Read(CGisSystem& system) const;
    void ReadCounters(CGisSystem& system) const;
    CGisSystem& Insert(int id);
    /// The system id if the object is a system's dictionary, else 0.
    int IdOf(const AcDbObject& object) const;
    /// Notifies the observers and removes a system from the list.
    void Drop(CGisSystem& system);
    /// Remembers the parts of a system that are not in the drawing, in case undo restores it.
    void Park(const CGisSystem& system);
    void DropOldCounters();
    void MakeDrawingGuid();

    CGisSystem& Add(const CString& name, enmTopologyType type, int function);
    void Remove(CGisSystem& system);
    void SetActive(CGisSystem* pSystem);
    void SetVisibility(CGisSystem& system, int visible);
    void Rename(CGisSystem& system, const CString& name);
    /// Writes the unsaved parts of a system into the drawing.
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
    std::map<int, Parked> m_parked; ///< state of removed systems, by id
    std::uint64_t m_nRosterStamp = 0;
    int m_nOwnChanges = 0; ///< > 0 while we change the dictionaries ourselves
};

} // namespace Orvane::System
