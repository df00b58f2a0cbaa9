// What happens in the host and in the workspace, as told to whoever listens.
#pragma once

#include "platform/win/String.h"

class AcApDocument;
class AcDbDatabase;

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Workspace {

/// Override what matters; everything else does nothing. Registered with CWsManager by
/// pointer and not owned: a listener that dies before the process has to unregister
/// itself. It is called on the main thread, in the order of registration. While it is
/// being called it must not register or unregister anybody.
///
/// A system or document may be null where there is none; texts may be null.
class IWsListener {
public:
    /// Non-zero is a veto: the host stays open, and listeners behind are not asked.
    virtual int OnBeforeAcadWillClose() { return 0; }
    virtual void OnBeginSaveAcadDocument(AcDbDatabase* /*pDb*/, const wchar_t* /*fileName*/) {}
    virtual void OnSaveCompletedAcadDocument(AcDbDatabase* /*pDb*/, const wchar_t* /*fileName*/) {}
    virtual void OnAcadDocumentBecomeCurrent(AcApDocument* /*pDoc*/) {}
    virtual void OnAcadDocumentToBeDeactivated(AcApDocument* /*pDoc*/) {}
    virtual void OnAcadDocumentToBeDestroyed(AcApDocument* /*pDoc*/) {}
    /// The document is gone; only its file name is left.
    virtual void OnAcadDocumentDestroyed(const wchar_t* /*fileName*/) {}
    virtual void OnSystemChanged(System::CGisSystem* /*pSystem*/) {}
    virtual void OnSystemBecomeActive(System::CGisSystem* /*pSystem*/) {}
    virtual void OnSystemBecomeInactive(System::CGisSystem* /*pSystem*/) {}
    virtual void OnSystemBecomeHidden(System::CGisSystem* /*pSystem*/) {}
    virtual void OnSystemBecomeShown(System::CGisSystem* /*pSystem*/) {}
    virtual void OnBeforeSystemDelete(System::CGisSystem* /*pSystem*/) {}
    virtual void OnAfterSystemDelete() {}
    virtual void OnNewSystemCreated(System::CGisSystem* /*pSystem*/) {}
    virtual void OnNewConfigDefinitionAdded(System::CGisSystem* /*pSystem*/,
                                            const wchar_t* /*repositoryTag*/,
                                            const wchar_t* /*definitionGuid*/) {}
    virtual void OnTemporaryDataRefreshed() {}
    virtual void OnBeforeConfigDefinitionDeleted(System::CGisSystem* /*pSystem*/,
                                                 const wchar_t* /*repositoryTag*/,
                                                 const wchar_t* /*definitionGuid*/) {}
    virtual void OnConfigDefinitionChanged(System::CGisSystem* /*pSystem*/,
                                           const wchar_t* /*repositoryTag*/,
                                           const wchar_t* /*definitionGuid*/) {}
    virtual void OnConfigBecomeDefault(System::CGisSystem* /*pSystem*/,
                                       const wchar_t* /*repositoryTag*/,
                                       const wchar_t* /*definitionGuid*/) {}
    virtual void OnBeforeCommandActivated(const wchar_t* /*commandId*/) {}
    virtual void OnAfterCommandCompleted(const wchar_t* /*commandId*/) {}
    virtual void OnAfterGeneralSettingsChanged() {}

protected:
    ~IWsListener() = default;
};

} // namespace Orvane::Workspace
