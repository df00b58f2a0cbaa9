#include "workspacecore/plugins/WsModuleRegistry.h"

#include <algorithm>

#include "platform/win/ErrorText.h"
#include "platform/win/File.h"
#include "platform/win/StringArray.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/utility/Utility.h"
#include "workspacecore/foundation/XmlRecord.h"
#include "workspacecore/trace/DamagedFile.h"

namespace Orvane::Workspace {

namespace {

/// Texts of the catalogue.
constexpr int kDamagedKept = 940000;
constexpr int kDamaged = 940001;
constexpr int kOtherRoot = 940002;

CString Message(int id) {
    return CModuleConfiguration::Instance()->GetMsg(id);
}

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

/// Keeps the damaged file under another name and returns what the user should know.
/// \param error empty: the file is well formed, but holds something else
CString DamageOf(const wchar_t* path, const CString& error) {
    const CString reason = error.IsEmpty() ? Message(kOtherRoot) : error;
    const std::optional<CString> aside = KeepDamagedFile(path, reason);
    CString text;
    text.Format(Message(aside ? kDamagedKept : kDamaged).GetString(), path, reason,
                aside ? *aside : LastErrorText());
    return text;
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
    // Reads as much of an ill-formed text as has been indexed.
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
    m_strProblem.Empty();
    const std::optional<std::string> bytes = ReadFileBytes(lpszPath);
    if (!bytes) {
        return 0;
    }
    XmlDocument document;
    const bool bWellFormed = document.SetDocUtf8(*bytes);
    // A damaged file counts for as much as can be read of it.
    const int nResult = ParseXML(document.GetDoc());
    if (!bWellFormed || !nResult) {
        m_strProblem = DamageOf(lpszPath, bWellFormed ? CString() : document.GetError());
    }
    return nResult;
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
