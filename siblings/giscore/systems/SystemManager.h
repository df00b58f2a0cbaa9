// Makes, changes and removes the systems of drawings, and says so.
#pragma once

#include <map>
#include <memory>

#include "siblings/giscore/systems/GisSystems.h"

namespace Orvane::System {

/// Everything that changes a system goes through here; each change is told to the
/// observers of CGisEvents, once, and only if something did change. Operations that return
/// int give 1 for success and 0 for failure. Main thread only.
///
/// Operations without a drawing or system argument work on the working database; without
/// one they find nothing.
class GISCORE_API CSystemManager {
public:
    /// Lives to the end of the process.
    static CSystemManager* Instance();

    /// The systems of the current drawing; null if there is none.
    CGisSystems* GetSystems();
    /// The systems of any open drawing; null for a null drawing.
    CGisSystems* GetSystems(AcDbDatabase* pDatabase);

    /// Makes a system of the current drawing. Null if the name is empty or taken, the
    /// topology or the function is unknown, or there is no drawing; `pReason` then gets a
    /// text for the user. The new system is shown and not active.
    CGisSystem* CreateSystem(const wchar_t* name, enmTopologyType type, int function,
                             CString* pReason = nullptr);
    /// Fails, with a text for the user, on an empty or taken name. The case of letters may
    /// be changed.
    int RenameSystem(CGisSystem* pSystem, const wchar_t* name, CString* pReason = nullptr);
    /// Removes a system with its entities. An active system is made inactive first, and
    /// none is active then.
    int DeleteSystem(CGisSystem* pSystem);

    CGisSystem* GetActiveSystem();
    /// Makes a system its drawing's active one, or none if null (then of the current
    /// drawing). The old one's event goes out first; both see the new state.
    int SetSystemActive(CGisSystem* pSystem);

    int SetSystemVisible(CGisSystem* pSystem);
    int SetSystemInvisible(CGisSystem* pSystem);

    // Null for an unknown one.
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
