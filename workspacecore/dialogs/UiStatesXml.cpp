// The states of dialogs as a text, in a file and in a drawing.
#include <boost/make_shared.hpp>

#include "platform/arx/DbDatabase.h"
#include "platform/win/File.h"
#include "siblings/cadwrapper/DictionaryPtr.h"
#include "siblings/cadwrapper/DocLock.h"
#include "workspacecore/dialogs/UiStates.h"
#include "workspacecore/foundation/XmlDocument.h"
#include "workspacecore/foundation/XmlField.h"
#include "workspacecore/trace/DamagedFile.h"
#include "workspacecore/trace/Trace.h"

namespace Orvane::Workspace {

namespace {

constexpr const wchar_t* kDictionary = L"ORVZ_UISTATE";
constexpr const wchar_t* kRecord = L"UIRECORD";

boost::shared_ptr<CStateAttribute> ReadAttribute(const XmlDocument& document) {
    const auto [id, type, value] = document.GetRawAttribs<3>({L"id", L"type", L"value"});
    return boost::make_shared<CStateAttribute>(XmlFieldText(id), XmlFieldInt(type),
                                               XmlFieldText(value));
}

/// Without its attributes.
boost::shared_ptr<CDialogState> ReadDialog(const XmlDocument& document) {
    auto state = boost::make_shared<CDialogState>();
    const auto [id, top, left, width, height, resizable, docked, side] = document.GetRawAttribs<8>(
        {L"id", L"top", L"left", L"width", L"height", L"resizable", L"docked", L"side"});
    state->SetId(XmlFieldText(id));
    state->SetTop(XmlFieldInt(top));
    state->SetLeft(XmlFieldInt(left));
    state->SetWidth(XmlFieldInt(width));
    state->SetHeight(XmlFieldInt(height));
    state->SetResizable(XmlFieldInt(resizable));
    state->SetDocked(XmlFieldInt(docked));
    state->SetSide(XmlFieldInt(side));
    return state;
}

} // namespace

std::string CUiStates::Text() const {
    // A usual length: growing by steps would move the whole text several times.
    constexpr std::size_t kDialogLength = 160;
    constexpr std::size_t kAttributeLength = 100;
    std::size_t length = 0;
    for (const DialogStatePtr& state : m_dialogStateVector) {
        length += kDialogLength + kAttributeLength * state->m_stateAttributeVector.size();
    }
    std::string xml;
    xml.reserve(length);
    xml += "<uiStates>";
    for (const DialogStatePtr& state : m_dialogStateVector) {
        state->AppendXML(xml);
    }
    return xml += "</uiStates>";
}

CString CUiStates::GetXML() const {
    const std::string xml = Text();
    return CString(std::wstring(xml.begin(), xml.end()));
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
    const std::string xml = Text();
    XmlDocument document;
    return document.SetDocUtf8(xml) && ReplaceFileBytes(path, xml) ? 1 : 0;
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
