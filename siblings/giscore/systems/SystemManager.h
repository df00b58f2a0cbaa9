// Creates, changes and deletes the systems of drawings, and raises the events.
#pragma once

#include <map>
#include <memory>

#include "siblings/giscore/systems/GisSystems.h"

namespace Orvane::System {

/// All changes to systems go through here. Observers of CGisEvents are notified of each change
/// once, and only if something did change. Functions that return int give 1 for success and 0 for
/// failure. Main thread only.
///
/// Functions without a drawing or system argument work on the working database, and find nothing
/// if there is none.
class GISCORE_API CSystemManager {
public:
    /// Lives to the end of the process.
    static CSystemManager* Instance();

    /// The systems of the current drawing; null if there is none.
    CGisSystems* GetSystems();
    /// The systems of any open drawing; null for a null drawing.
    CGisSystems* GetSystems(AcDbDatabase* pDatabase);

    /// Creates a system in the current drawing, visible and not active. Returns null if the name
    /// is empty or taken, the topology or function is unknown, or no drawing is open; `pReason`
    /// then receives a message for the user.
    CGisSystem* CreateSystem(const wchar_t* name, enmTopologyType type, int function,
                             CString* pReason = nullptr);
    /// Fails, with a message for the user, if the name is empty or taken. Changing only the case
    /// is allowed.
    int RenameSystem(CGisSystem* pSystem, const wchar_t* name, CString* pReason = nullptr);
    /// Deletes a system and its entities. An active system is deactivated first, which leaves no
    /// system active.
    int DeleteSystem(CGisSystem* pSystem);

    CGisSystem* GetActiveSystem();
    /// Makes a system the active one of its drawing; null deactivates the one of the current
    /// drawing. The old system's event is raised first; both events see the new state.
    int SetSystemActive(CGisSystem* pSystem);

    int SetSystemVisible(CGisSystem* pSystem);
    int SetSystemInvisible(CGisSystem* pSystem);

    // Null if there is no such system.
    CGisSystem* GetSystemById(int id);
    CGisSystem* GetSystemByGuid(const wchar_t* guid);
    CGisSystem* GetSystemByName(const wchar_t* name);

private:
    class DocumentReactor;
    class SaveReactor;

    CSystemManager();
    ~CSystemManager();

    std::map<AcDbDatabase*, std::unique_ptr<CGisSystems>> m_drawings;
    std::unique_ptr<DocumentReactor> m_pDocumentReactor;
    std::unique_ptr<SaveReactor> m_pSaveReactor;
};

} // namespace Orvane::System
