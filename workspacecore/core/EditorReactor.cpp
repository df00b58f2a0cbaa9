#include "workspacecore/core/EditorReactor.h"

#include "platform/win/CodePage.h"
#include "siblings/cadwrapper/DictionaryPtr.h"
#include "siblings/cadwrapper/DocLock.h"
#include "siblings/logging/LogEngine.h"
#include "workspacecore/core/WsManager.h"

AcRxClass* ORVZWorkspaceCore_EditorReactor::s_pDesc = nullptr;

namespace {

constexpr const wchar_t* kClassName = L"ORVZWorkspaceCore_EditorReactor";
constexpr const wchar_t* kVersionDictionary = L"__HV__";

struct VersionRecord {
    const wchar_t* key;
    std::string (*value)();
};

/// The versions recorded in a saved drawing.
constexpr VersionRecord kVersionRecords[] = {
    {L"ACVER", Orvane::CLogEngine::GetAcadVersion},
    {L"APPVER", Orvane::CLogEngine::GetTessalyVersion},
    {L"WINVER", Orvane::CLogEngine::GetWindowsVersion},
    {L"ISAPP64", Orvane::CLogEngine::GetIsTessaly64bit},
    {L"ISWIN64", Orvane::CLogEngine::GetIsWindows64bit},
};

void WriteVersionStamp() {
    const Orvane::CORVCDocLock lock;
    Orvane::CORVCDictionaryPtr dictionary(AcDb::kForRead);
    // The result does not matter: dctWrite opens what it writes to.
    dictionary.upgradeOpen();
    for (const VersionRecord& record : kVersionRecords) {
        dictionary.dctWrite(kVersionDictionary, record.key, Utf8ToWide(record.value()).c_str(),
                            false, true, 1);
    }
    if (dictionary.isOpen()) {
        dictionary.close();
    }
}

} // namespace

ORVZWorkspaceCore_EditorReactor::ORVZWorkspaceCore_EditorReactor(bool bAutoInitAndRelease)
    : m_bAutoInitAndRelease(bAutoInitAndRelease) {
    if (m_bAutoInitAndRelease) {
        AcEditor* const pEditor = Subject();
        if (pEditor) {
            pEditor->addReactor(this);
        } else {
            m_bAutoInitAndRelease = false;
        }
    }
}

ORVZWorkspaceCore_EditorReactor::~ORVZWorkspaceCore_EditorReactor() {
    ORVZWorkspaceCore_EditorReactor::Detach();
}

AcEditor* ORVZWorkspaceCore_EditorReactor::Subject() const {
    AcRxObject* const pObject = acrxSysRegistry()->at(L"AcEditor");
    return pObject && pObject->isKindOf(AcEditor::desc()) ? static_cast<AcEditor*>(pObject)
                                                          : nullptr;
}

void ORVZWorkspaceCore_EditorReactor::Attach() {
    Detach();
    if (AcEditor* const pEditor = m_bAutoInitAndRelease ? nullptr : Subject()) {
        pEditor->addReactor(this);
        m_bAutoInitAndRelease = true;
    }
}

void ORVZWorkspaceCore_EditorReactor::Detach() {
    if (AcEditor* const pEditor = m_bAutoInitAndRelease ? Subject() : nullptr) {
        pEditor->removeReactor(this);
        m_bAutoInitAndRelease = false;
    }
}

AcRxClass* ORVZWorkspaceCore_EditorReactor::desc() {
    if (!s_pDesc) {
        s_pDesc = static_cast<AcRxClass*>(acrxClassDictionary()->at(kClassName));
    }
    return s_pDesc;
}

void ORVZWorkspaceCore_EditorReactor::rxInit() {
    AcRxObject* const pExisting = acrxClassDictionary()->at(kClassName);
    if (pExisting && pExisting != s_pDesc) {
        acrx_abort(L"Class mismatch");
    }
    if (!pExisting) {
        AcEditorReactor::desc();
        s_pDesc = newAcRxClass(kClassName, L"AcEditorReactor");
    }
}

void ORVZWorkspaceCore_EditorReactor::rxForget() {
    s_pDesc = nullptr;
}

void ORVZWorkspaceCore_EditorReactor::beginSave(AcDbDatabase* pDb, const wchar_t* lpszFileName) {
    WriteVersionStamp();
    Orvane::Workspace::CWsManager::Instance()->Raise_OnBeginSaveAcadDocument(pDb, lpszFileName);
    AcEditorReactor::beginSave(pDb, lpszFileName);
}

void ORVZWorkspaceCore_EditorReactor::saveComplete(AcDbDatabase* pDb, const wchar_t* lpszFileName) {
    Orvane::Workspace::CWsManager::Instance()->Raise_OnSaveCompletedAcadDocument(pDb, lpszFileName);
    AcEditorReactor::saveComplete(pDb, lpszFileName);
}
