// One plug-in module: its registry entry and current state.
#pragma once

#include "platform/win/String.h"
#include "platform/win/Types.h"
#include "workspacecore/Api.h"
#include "workspacecore/plugins/IPluginInfo.h"

namespace Orvane::Workspace {

/// A plain record. The library behind the handle is owned by the plug-in manager, which alone
/// loads and frees it. A copy of a loaded module looks loaded, too.
class WORKSPACE_API CWsModule {
public:
    CWsModule() = default;
    CWsModule(const CWsModule&) = default;
    CWsModule& operator=(const CWsModule&) = default;
    virtual ~CWsModule() = default;

    int GetMsgName() const { return m_nMsgName; }
    /// Stores the message id and the display name it currently resolves to.
    void SetMsgName(int msgName);
    CString GetName() const { return m_strName; }
    /// Non-zero if the module is enabled; only enabled modules are loaded.
    int GetOn() const { return m_bOn; }
    void SetOn(int on) { m_bOn = on; }
    /// Relative to the folder "install" if read from the registry file, an absolute path if added
    /// at run time.
    CString GetFileName() const { return m_strFileName; }
    void SetFileName(const wchar_t* fileName) { m_strFileName = fileName; }
    int GetLoaded() const { return m_bLoaded; }
    void SetLoaded(int loaded) { m_bLoaded = loaded; }
    HINSTANCE GetModuleDLLInstance() const { return m_hModuleDLLInstance; }
    void SetModuleDLLInstance(HINSTANCE instance) { m_hModuleDLLInstance = instance; }
    PluginInfoProvider GetPluginInfo() const { return m_pPluginInfo; }
    void SetPluginInfo(PluginInfoProvider provider) { m_pPluginInfo = provider; }
    void* GetReleaseModule() const { return m_pReleaseModule; }
    void SetReleaseModule(void* release) { m_pReleaseModule = release; }

    CString GetXML() const;
    void MakeDeepCopy(CWsModule& target) const { target = *this; }

private:
    int m_nMsgName = 0;
    CString m_strName;
    int m_bOn = 0;
    CString m_strFileName;
    int m_bLoaded = 0;
    HINSTANCE m_hModuleDLLInstance = nullptr;
    PluginInfoProvider m_pPluginInfo = nullptr;
    void* m_pReleaseModule = nullptr;
};

} // namespace Orvane::Workspace
