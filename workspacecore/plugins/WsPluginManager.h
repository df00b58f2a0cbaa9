// Loads the plug-in modules of the registry file and calls their hooks.
#pragma once

#include "workspacecore/plugins/WsModuleRegistry.h"

namespace Orvane::Workspace {

class CWsPanelDialogManager;

/// A member of CWsManager. The constructor reads "ModuleRegistry.xml" from the folder "support";
/// nothing is loaded before LoadModules. Main thread only.
class WORKSPACE_API CWsPluginManager {
public:
    CWsPluginManager();
    CWsPluginManager(const CWsPluginManager&) = default;
    CWsPluginManager& operator=(const CWsPluginManager&) = default;
    ~CWsPluginManager();

    CWsModuleRegistry* GetModuleRegistry() const { return m_pModuleRegistry.get(); }
    /// 0 if the registry file could not be read; then nothing is loaded.
    int IsRegistryLoaded() const { return m_bRegistryLoaded; }

    /// Loads every enabled module, once per process. A module that fails to load does not stop
    /// the others; exceptions of hooks propagate.
    /// \return 1 if at least one module was loaded by this call
    int LoadModules();

    /// Loads a single file and adds a record for it. Returns 0 if a loaded module has the same
    /// name, if it cannot be loaded, or if it is not a plug-in.
    int LoadModule(const wchar_t* lpszFile);

    /// Unloads the libraries of all enabled and loaded modules. Their objects are not destroyed
    /// first, so call this only when the manager ends.
    void ReleaseModules();

private:
    friend class CWsManager;
    boost::shared_ptr<CWsModuleRegistry> m_pModuleRegistry;
    int m_bRegistryLoaded = 0;
    int m_bModulesLoaded = 0;
    /// Set by the owning manager; its panel buttons are stacked after all modules are loaded.
    CWsPanelDialogManager* m_pPanels = nullptr;
};

} // namespace Orvane::Workspace
