// Events of the host and the workspace.
#pragma once

#include "platform/win/String.h"

class AcApDocument;
class AcDbDatabase;

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Workspace {

/// Override the events of interest; the others do nothing. Registered with CWsManager by pointer
/// and not owned: a listener destroyed before the process ends must unregister itself. Called on
/// the main thread, in the order of registration. A listener must not register or unregister
/// listeners from within a call.
///
/// Systems and documents may be null if there is none; texts may be null.
class IWsListener {
public:
    /// Non-zero vetoes closing: the host stays open, and later listeners are not asked.
    virtual int OnBeforeAcadWillClose() { return 0; }
    virtual void OnBeginSaveAcadDocument(AcDbDatabase* /*pDb*/, const wchar_t* /*fileName*/) {}
    virtual void OnSaveCompletedAcadDocument(AcDbDatabase* /*pDb*/, const wchar_t* /*fileName*/) {}
    virtual void OnAcadDocumentBecomeCurrent(AcApDocument* /*pDoc*/) {}
    virtual void OnAcadDocumentToBeDeactivated(AcApDocument* /*pDoc*/) {}
    virtual void OnAcadDocumentToBeDestroyed(AcApDocument* /*pDoc*/) {}
    /// The document is already destroyed; only its file name is available.
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
