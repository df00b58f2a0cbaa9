// The plug-in modules in load order, and the registry file.
#pragma once

#include <boost/shared_ptr.hpp>
#include <vector>

#include "workspacecore/plugins/WsModule.h"

namespace Orvane::Workspace {

/// A copy shares the records; MakeDeepCopy creates separate ones. Main thread only.
class WORKSPACE_API CWsModuleRegistry {
public:
    using ModulePtr = boost::shared_ptr<CWsModule>;
    using ModuleVector = std::vector<ModulePtr>;

    CWsModuleRegistry() = default;
    CWsModuleRegistry(const CWsModuleRegistry&) = default;
    CWsModuleRegistry& operator=(const CWsModuleRegistry&) = default;
    virtual ~CWsModuleRegistry() = default;

    /// The list itself. Must not be changed while other code iterates over it.
    ModuleVector* GetWsModuleVector() { return &m_vecModules; }
    const ModuleVector* GetWsModuleVector() const { return &m_vecModules; }
    void AddWsModule(ModulePtr module) { m_vecModules.push_back(module); }
    void RemoveWsModule(const ModulePtr& module);
    void Clear() { m_vecModules.clear(); }

    /// 1 if a loaded module has this file name, with or without its folder, ignoring case.
    /// Modules that are listed but not loaded do not count.
    int DoesModuleExist(const wchar_t* lpszFile) const;

    CString GetXML() const;
    /// Clears the list and parses records; returns 0 if the text has no registry element.
    int ParseXML(const wchar_t* lpszXml);
    /// 0, and the list as it was, if the file cannot be read; else as ParseXML. A damaged file
    /// is read as far as possible and kept under another name (DamagedFile.h).
    int Load(const wchar_t* lpszPath);
    /// What the user should know about the file that was loaded last; empty if it was sound.
    const CString& GetProblem() const { return m_strProblem; }
    int Save(const wchar_t* lpszPath) const;
    /// Storage in a drawing is not implemented: both print "Not implemented" and return 0, and
    /// the first one clears the list.
    int LoadFromDictionary();
    int SaveToDictionary() const;
    void MakeDeepCopy(CWsModuleRegistry& target) const;

private:
    ModuleVector m_vecModules;
    CString m_strProblem;
};

} // namespace Orvane::Workspace
