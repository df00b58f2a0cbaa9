// Loads the plug-in modules of the registry file and calls their hooks.
#pragma once

#include "workspacecore/plugins/WsModuleRegistry.h"

namespace Orvane::Workspace {

class CWsPanelDialogManager;

/// A member of CWsManager. The constructor reads "ModuleRegistry.xml" from the folder
/// "support"; nothing is loaded before LoadModules. Main thread only.
class WORKSPACE_API CWsPluginManager {
public:
    CWsPluginManager();
    CWsPluginManager(const CWsPluginManager&) = default;
    CWsPluginManager& operator=(const CWsPluginManager&) = default;
    ~CWsPluginManager();

    CWsModuleRegistry* GetModuleRegistry() const { return m_pModuleRegistry.get(); }
    /// 0 if the registry file could not be read; then there is nothing to load.
    int IsRegistryLoaded() const { return m_bRegistryLoaded; }

    /// Loads every module that is on, once in the life of the process. A module that
    /// cannot be loaded stops nothing; an exception from a hook leaves the call.
    /// \return 1 if at least one module was accepted in this run
    int LoadModules();

    /// Loads a single file and adds a record for it. 0 if a loaded module has its name
    /// already, if it cannot be loaded, or if it is no plug-in.
    int LoadModule(const wchar_t* lpszFile);

    /// Frees the libraries of all modules that are on and loaded. Their objects are not
    /// destroyed first, so this is for the end of the manager only.
    void ReleaseModules();

private:
    friend class CWsManager;
    boost::shared_ptr<CWsModuleRegistry> m_pModuleRegistry;
    int m_bRegistryLoaded = 0;
    int m_bModulesLoaded = 0;
    /// Handed in by the manager; what the modules registered there is stacked when all are in.
    CWsPanelDialogManager* m_pPanels = nullptr;
};

} // namespace Orvane::Workspace
