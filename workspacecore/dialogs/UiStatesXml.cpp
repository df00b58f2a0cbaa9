// The states of dialogs as a text, in a file and in a drawing.
#include <boost/make_shared.hpp>

#include "platform/arx/DbDatabase.h"
#include "platform/win/CodePage.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"
#include "siblings/cadwrapper/DictionaryPtr.h"
#include "siblings/cadwrapper/DocLock.h"
#include "workspacecore/core/Trace.h"
#include "workspacecore/dialogs/UiStates.h"
#include "workspacecore/foundation/XmlDocument.h"
#include "workspacecore/foundation/XmlField.h"

namespace Orvane::Workspace {

namespace {

constexpr const wchar_t* kDictionary = L"ORVZ_UISTATE";
constexpr const wchar_t* kRecord = L"UIRECORD";

boost::shared_ptr<CStateAttribute> ReadAttribute(const XmlDocument& document) {
    auto attribute = boost::make_shared<CStateAttribute>();
    attribute->SetId(ReadXmlText(document, L"id"));
    attribute->SetType(ReadXmlInt(document, L"type"));
    attribute->SetValue(ReadXmlText(document, L"value"));
    return attribute;
}

/// Without its attributes.
boost::shared_ptr<CDialogState> ReadDialog(const XmlDocument& document) {
    auto state = boost::make_shared<CDialogState>();
    state->SetId(ReadXmlText(document, L"id"));
    state->SetTop(ReadXmlInt(document, L"top"));
    state->SetLeft(ReadXmlInt(document, L"left"));
    state->SetWidth(ReadXmlInt(document, L"width"));
    state->SetHeight(ReadXmlInt(document, L"height"));
    state->SetResizable(ReadXmlInt(document, L"resizable"));
    state->SetDocked(ReadXmlInt(document, L"docked"));
    state->SetSide(ReadXmlInt(document, L"side"));
    return state;
}

void KeepDamagedFile(const wchar_t* path, const CString& reason) {
    if (const auto aside = SetFileAside(path, L".damaged-")) {
        WS_TRACE_FORMAT(L"Damaged: %s (%s), kept as %s", path, reason, *aside);
    } else {
        WS_TRACE_FORMAT(L"Damaged: %s (%s), not kept: %s", path, reason, LastErrorText());
    }
}

} // namespace

CString CUiStates::GetXML() const {
    CString xml(L"<uiStates>");
    for (const DialogStatePtr& state : m_dialogStateVector) {
        xml += state->GetXML();
    }
    return xml += L"</uiStates>";
}

int CUiStates::Read(XmlDocument& document) {
    Clear();
    if (!document.FindElem(L"uiStates")) {
        return 0;
    }
    document.IntoElem();
    while (document.FindElem(L"dialogState")) {
        const DialogStatePtr state = ReadDialog(document);
        AddDialogState(state);
        document.IntoElem();
        while (document.FindElem(L"stateAttribute")) {
            state->AddStateAttribute(ReadAttribute(document));
        }
        document.OutOfElem();
    }
    return 1;
}

int CUiStates::ParseXML(const wchar_t* xml) {
    XmlDocument document;
    // An ill-formed text is read as far as its index goes.
    document.SetDoc(xml);
    return Read(document);
}

int CUiStates::Load(const wchar_t* path) {
    XmlDocument document;
    const bool bWellFormed = document.Load(path);
    const int result = bWellFormed ? Read(document) : 0;
    if (!result && FileExists(path)) {
        KeepDamagedFile(path, bWellFormed ? CString(L"other root element") : document.GetError());
    }
    return result;
}

int CUiStates::Save(const wchar_t* path) const {
    const CString xml = GetXML();
    XmlDocument document;
    return document.SetDoc(xml) && ReplaceFileBytes(path, WideToUtf8(xml.View())) ? 1 : 0;
}

int CUiStates::LoadFromDictionary() {
    const CORVCDocLock lock;
    const CORVCDictionaryPtr dictionary(AcDb::kForRead);
    CString xml;
    const bool bRead = dictionary.dctReadBigString(kDictionary, kRecord, xml) == Acad::eOk;
    return bRead && !xml.IsEmpty() ? ParseXML(xml) : 1;
}

int CUiStates::SaveToDictionary() const {
    const CString xml = GetXML();
    const CORVCDocLock lock;
    AcDbDatabase* const pDatabase = acdbHostApplicationServices()->workingDatabase();
    if (!pDatabase) {
        return 0;
    }
    pDatabase->disableUndoRecording(true);
    const Acad::ErrorStatus status =
        CORVCDictionaryPtr(AcDb::kForWrite).dctWriteBigString(kDictionary, kRecord, xml);
    pDatabase->disableUndoRecording(false);
    return status == Acad::eOk ? 1 : 0;
}

} // namespace Orvane::Workspace
