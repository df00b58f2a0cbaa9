#include "host/Session.h"

#include "host/DrawingCommands.h"
#include "host/HostCommands.h"
#include "host/Texts.h"
#include "host/storage/Import.h"
#include "host/storage/OpenAndSave.h"
#include "platform/arx/Activity.h"
#include "platform/arx/ApDocManager.h"
#include "platform/arx/EdEditor.h"
#include "platform/arx/EdPrompt.h"
#include "platform/arx/Guard.h"
#include "platform/arx/HostOptions.h"
#include "platform/arx/HostReactor.h"
#include "platform/arx/RxDynamicLinker.h"
#include "platform/win/ErrorText.h"

namespace Tessaly {

namespace {

/// Loaded at the start, in this order: the application module makes the workspace begin.
constexpr const wchar_t* kStartModules[] = {L"ORVZWorkspaceCore.arx", L"ORVZApplication.arx"};

} // namespace

Session::Session() : m_pStorage(MakeGeoPackageStorage()), m_pImporter(MakeImporter()) {
    acDocManagerPtr()->setStorage(m_pStorage.get());
    acdbSetImporter(m_pImporter.get());
}

Session::~Session() {
    acdbSetImporter(nullptr);
    acDocManagerPtr()->setStorage(nullptr);
}

bool Session::Start(const CString& drawing) {
    RegisterHostCommands();
    acedEditor();
    bool isOpen = drawing.IsEmpty();
    if (!isOpen) {
        Guarded(drawing, [&] { isOpen = OpenDrawing(drawing); });
    }
    if (!acDocManagerPtr()->curDocument()) {
        acDocManagerPtr()->newDocument();
    }
    for (const wchar_t* module : kStartModules) {
        const CString path = GetHostOption(kHostOptionInstall) + module;
        Guarded(module, [&] {
            if (!acrxDynamicLinker()->loadModule(path)) {
                PrintText(Msg::ModuleNotLoaded, path, LastErrorText());
            }
        });
    }
    // Once more, for the reactors that the modules have brought.
    acDocManagerPtr()->setCurDocument(acDocManagerPtr()->curDocument());
    return isOpen;
}

void Session::End() {
    if (!HasQuit()) {
        NameUnsavedDrawings();
        acedAskToClose();
    }
}

} // namespace Tessaly
