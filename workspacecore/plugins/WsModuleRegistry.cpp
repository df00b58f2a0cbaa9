#include "workspacecore/plugins/WsModuleRegistry.h"

#include <algorithm>

#include "platform/win/StringArray.h"
#include "siblings/giscore/utility/Utility.h"
#include "workspacecore/foundation/XmlRecord.h"

namespace Orvane::Workspace {

namespace {

/// The last piece of a path; paths of this platform have slashes, registry files may have
/// backslashes.
CString LastPiece(const wchar_t* file) {
    CStringArray pieces;
    Utility::CUtility::SplitString(file, L"\\/", pieces);
    return pieces.IsEmpty() ? CString(file) : pieces[pieces.GetCount() - 1];
}

boost::shared_ptr<CWsModule> ReadModule(const XmlDocument& document) {
    boost::shared_ptr<CWsModule> module(new CWsModule);
    module->SetMsgName(ReadXmlInt(document, L"msgName"));
    module->SetOn(ReadXmlInt(document, L"on"));
    module->SetFileName(ReadXmlText(document, L"fileName"));
    return module;
}

} // namespace

void CWsModuleRegistry::RemoveWsModule(const ModulePtr& module) {
    const auto hit = std::find(m_vecModules.begin(), m_vecModules.end(), module);
    if (hit != m_vecModules.end()) {
        m_vecModules.erase(hit);
    }
}

int CWsModuleRegistry::DoesModuleExist(const wchar_t* lpszFile) const {
    const CString fileName = LastPiece(lpszFile);
    return std::any_of(m_vecModules.begin(), m_vecModules.end(), [&](const ModulePtr& module) {
        return module->GetLoaded() && (module->GetFileName().CompareNoCase(fileName) == 0 ||
                                       module->GetFileName().CompareNoCase(lpszFile) == 0);
    });
}

CString CWsModuleRegistry::GetXML() const {
    CString xml(L"<moduleRegistry >");
    for (const ModulePtr& module : m_vecModules) {
        xml += module->GetXML();
    }
    return xml += L"</moduleRegistry>";
}

int CWsModuleRegistry::ParseXML(const wchar_t* lpszXml) {
    Clear();
    XmlDocument document;
    // An ill-formed text is read as far as its index goes.
    document.SetDoc(lpszXml);
    if (!document.FindElem(L"moduleRegistry")) {
        return 0;
    }
    document.IntoElem();
    while (document.FindElem(L"module")) {
        AddWsModule(ReadModule(document));
    }
    return 1;
}

int CWsModuleRegistry::Load(const wchar_t* lpszPath) {
    XmlDocument document;
    // Whether it is well formed does not matter here: what can be read of it, counts. A file
    // that could be read at all is reported with its length.
    const bool bRead = document.Load(lpszPath) || document.GetError().Find(L" bytes to ") > 0;
    return bRead ? ParseXML(document.GetDoc()) : 0;
}

int CWsModuleRegistry::Save(const wchar_t* lpszPath) const {
    return SaveXmlRecord(*this, lpszPath);
}

int CWsModuleRegistry::LoadFromDictionary() {
    SayNotImplemented();
    return ParseXML(L"");
}

int CWsModuleRegistry::SaveToDictionary() const {
    SayNotImplemented();
    return 0;
}

void CWsModuleRegistry::MakeDeepCopy(CWsModuleRegistry& target) const {
    const ModuleVector source = m_vecModules;
    target.Clear();
    for (const ModulePtr& module : source) {
        target.AddWsModule(ModulePtr(new CWsModule(*module)));
    }
}

} // namespace Orvane::Workspace
