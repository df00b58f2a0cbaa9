#include "workspacecore/plugins/WsPluginManager.h"

#include <span>

#include "platform/arx/Activity.h"
#include "platform/arx/EdPrompt.h"
#include "platform/win/ErrorText.h"
#include "platform/win/FileVersion.h"
#include "platform/win/Library.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "workspacecore/dialogs/WsPanelDialogManager.h"
#include "workspacecore/plugins/LoadSteps.h"
#include "workspacecore/plugins/SplashScreen.h"
#include "workspacecore/trace/Trace.h"

namespace Orvane::Workspace {

namespace {

constexpr const char* kProviderEntry = "ORVPluginInfoProvider";
constexpr const char* kReleaseEntry = "ORVPluginInfoRelease";
struct Hook {
    void (IPluginInfo::*call)();
    const wchar_t* name;
};

constexpr Hook kStartHooks[] = {
    {&IPluginInfo::PluginHook6, L"PluginHook6"},
    {&IPluginInfo::PluginHook1, L"PluginHook1"},
    {&IPluginInfo::PluginHook2, L"PluginHook2"},
    {&IPluginInfo::PluginHook3, L"PluginHook3"},
    {&IPluginInfo::PluginHook4, L"PluginHook4"},
    {&IPluginInfo::PluginHook5, L"PluginHook5"},
    {&IPluginInfo::PluginHook7, L"PluginHook7"},
    {&IPluginInfo::RegisterInfoTooltips, L"RegisterInfoTooltips"},
    {&IPluginInfo::RegisterWsPanelDialog, L"RegisterWsPanelDialog"},
    {&IPluginInfo::RegisterCatalogExtenders, L"RegisterCatalogExtenders"},
};

/// A file added to a running workspace gets fewer hooks, in another order: hooks 2 and 5 belong
/// to the start.
constexpr Hook kSingleFileHooks[] = {
    {&IPluginInfo::PluginHook7, L"PluginHook7"},
    {&IPluginInfo::PluginHook6, L"PluginHook6"},
    {&IPluginInfo::PluginHook1, L"PluginHook1"},
    {&IPluginInfo::PluginHook3, L"PluginHook3"},
    {&IPluginInfo::PluginHook4, L"PluginHook4"},
    {&IPluginInfo::RegisterInfoTooltips, L"RegisterInfoTooltips"},
    {&IPluginInfo::RegisterWsPanelDialog, L"RegisterWsPanelDialog"},
    {&IPluginInfo::RegisterCatalogExtenders, L"RegisterCatalogExtenders"},
};

IPluginInfo* CallProvider(PluginInfoProvider provider, const wchar_t* fileName) {
    const ActivityScope activity(fileName, L"ORVPluginInfoProvider");
    return provider();
}

/// Calls the provider before each hook, as plug-ins expect. Returns false if it returns null for
/// the first one, in which case the module is not a plug-in.
bool RunHooks(PluginInfoProvider provider, const wchar_t* fileName, std::span<const Hook> hooks) {
    for (const Hook& hook : hooks) {
        IPluginInfo* const pInfo = CallProvider(provider, fileName);
        if (!pInfo) {
            return &hook != &hooks.front();
        }
        const ActivityScope activity(fileName, hook.name);
        (pInfo->*hook.call)();
    }
    return true;
}

void TakeLibrary(CWsModule& module, HINSTANCE library) {
    module.SetModuleDLLInstance(library);
    module.SetPluginInfo(
        reinterpret_cast<PluginInfoProvider>(GetProcAddress(library, kProviderEntry)));
    module.SetReleaseModule(GetProcAddress(library, kReleaseEntry));
}

void DropLibrary(CWsModule& module) {
    FreeLibrary(module.GetModuleDLLInstance());
    module.SetModuleDLLInstance(nullptr);
    module.SetPluginInfo(nullptr);
    module.SetReleaseModule(nullptr);
}

CString Path(const wchar_t* folderKey, const wchar_t* fileName) {
    return CModuleConfiguration::Instance()->GetPath(folderKey) + fileName;
}

CString ProductTitle() {
    CString title;
    title.Format(L"Tessaly 8 (%s)", ReadFileVersionText(Path(L"INSTALL", L"ORVZGisCore.arx")));
    return title;
}

void ShowProgress(CSplashScreen& splash, int bShown, std::size_t index, std::size_t count,
                  const CString& fileName) {
    if (bShown) {
        CString text;
        text.Format(L"%s ...", fileName);
        splash.SetProgress(LoadPercent(index, count), text);
    } else {
        acutPrintf(L"\n%s", fileName);
    }
}

} // namespace

CWsPluginManager::CWsPluginManager() : m_pModuleRegistry(new CWsModuleRegistry) {
    CString path;
    path.Format(L"%sModuleRegistry.xml", CModuleConfiguration::Instance()->GetPath(L"support"));
    m_bRegistryLoaded = m_pModuleRegistry->Load(path);
}

CWsPluginManager::~CWsPluginManager() {
    ReleaseModules();
    m_pModuleRegistry->Clear();
}

int CWsPluginManager::LoadModules() {
    if (!m_bRegistryLoaded || m_bModulesLoaded) {
        return 0;
    }
    CSplashScreen splash;
    const int bShown = splash.Show();
    splash.SetTitle(ProductTitle());

    int bAnyAccepted = 0;
    const CWsModuleRegistry::ModuleVector& modules = *m_pModuleRegistry->GetWsModuleVector();
    // By index with the current size: a hook may append a record, which is then loaded in turn.
    for (std::size_t i = 0; i < modules.size(); ++i) {
        const CWsModuleRegistry::ModulePtr module = modules[i];
        const CString fileName = module->GetFileName();
        ShowProgress(splash, bShown, i, modules.size(), fileName);
        WS_TRACE_FORMAT(L"Module = %s, %s", fileName, module->GetOn() ? L"ON" : L"OFF");
        if (!module->GetOn()) {
            continue;
        }
        module->SetLoaded(0);
        HINSTANCE library =
            LoadWithAttempts([&] { return LoadLibrary(Path(L"install", fileName)); });
        WS_TRACE_TEXT(library ? "DLL Loaded" : "***NOT LOADED***");
        if (!library) {
            WS_TRACE_TEXT(LastErrorText().GetString());
            continue;
        }
        TakeLibrary(*module, library);
        WS_TRACE_TEXT(module->GetPluginInfo() ? "Plugin entry found"
                                              : "***Plugin entry NOT found***");
        if (module->GetPluginInfo()) {
            module->SetLoaded(1);
            module->SetLoaded(RunHooks(module->GetPluginInfo(), fileName, kStartHooks) ? 1 : 0);
        }
        if (module->GetLoaded()) {
            bAnyAccepted = 1;
        } else {
            DropLibrary(*module);
            module->SetOn(0);
        }
        WS_TRACE_TEXT("---------------------------");
    }
    m_bModulesLoaded = 1;
    splash.Close();
    if (m_pPanels) {
        m_pPanels->StackRegisteredPanelButtons();
    }
    return bAnyAccepted;
}

int CWsPluginManager::LoadModule(const wchar_t* lpszFile) {
    if (m_pModuleRegistry->DoesModuleExist(lpszFile)) {
        return 0;
    }
    HINSTANCE library = LoadLibrary(lpszFile);
    if (!library) {
        return 0;
    }
    const CWsModuleRegistry::ModulePtr module(new CWsModule);
    module->SetFileName(lpszFile);
    module->SetOn(1);
    TakeLibrary(*module, library);
    module->SetLoaded(1);
    if (!module->GetPluginInfo() ||
        !RunHooks(module->GetPluginInfo(), module->GetFileName(), kSingleFileHooks)) {
        DropLibrary(*module);
        return 0;
    }
    m_pModuleRegistry->AddWsModule(module);
    return 1;
}

void CWsPluginManager::ReleaseModules() {
    if (!m_bRegistryLoaded) {
        return;
    }
    for (const auto& module : *m_pModuleRegistry->GetWsModuleVector()) {
        if (module->GetOn() && module->GetLoaded()) {
            // The release function is deliberately not called: plug-ins end with the process.
            DropLibrary(*module);
            module->SetOn(0);
        }
    }
}

} // namespace Orvane::Workspace
