#include "platform/arx/EdEditor.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include "platform/arx/Guard.h"
#include "platform/win/CodePage.h"
#include "platform/win/PlatformTexts.h"

namespace {

constexpr PlatformMsg kEvent = PlatformMsg::SaveEvent;

AcRxClass* MakeClass(const wchar_t* name) {
    AcRxClass* const pClass = newAcRxClass(name, L"AcRxObject");
    acrxBuildClassHierarchy();
    return pClass;
}

} // namespace

AcRxClass* AcEditorReactor::desc() {
    static AcRxClass* const pClass = MakeClass(L"AcEditorReactor");
    return pClass;
}

AcRxClass* AcEditor::desc() {
    static AcRxClass* const pClass = MakeClass(L"AcEditor");
    return pClass;
}

template <class Call>
void AcEditor::Tell(Call call) {
    // Iterate over a copy: a reactor may add or remove reactors during the call.
    const std::vector<AcEditorReactor*> reactors = m_reactors;
    for (AcEditorReactor* pReactor : reactors) {
        if (std::find(m_reactors.begin(), m_reactors.end(), pReactor) != m_reactors.end()) {
            // A failing reactor must not prevent the save: the drawing is the user's work.
            Guarded(kEvent, [&] { CallForeign(*pReactor, kEvent, [&] { call(*pReactor); }); });
        }
    }
}

void AcEditor::addReactor(AcEditorReactor* pReactor) {
    if (std::find(m_reactors.begin(), m_reactors.end(), pReactor) == m_reactors.end()) {
        m_reactors.push_back(pReactor);
    }
}

void AcEditor::removeReactor(AcEditorReactor* pReactor) {
    std::erase(m_reactors, pReactor);
}

void AcEditor::fireBeginSave(AcDbDatabase* pDb, const wchar_t* fileName) {
    Tell([=](AcEditorReactor& reactor) { reactor.beginSave(pDb, fileName); });
}

void AcEditor::fireSaveComplete(AcDbDatabase* pDb, const wchar_t* fileName) {
    Tell([=](AcEditorReactor& reactor) { reactor.saveComplete(pDb, fileName); });
}

AcEditor* acedEditor() {
    static AcEditor* const editor = [] {
        auto* made = new AcEditor;
        AcEditor::desc();
        acrxSysRegistry()->atPut(L"AcEditor", made);
        return made;
    }();
    return editor;
}

void acrx_abort(const wchar_t* reason) {
    std::fprintf(stderr, "%s\n", WideToUtf8(reason).c_str());
    std::abort();
}
