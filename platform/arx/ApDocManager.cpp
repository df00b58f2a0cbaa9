#include "platform/arx/ApDocManager.h"

#include <algorithm>
#include <filesystem>

#include "platform/arx/DbUndoScopes.h"
#include "platform/arx/DrawingPath.h"
#include "platform/arx/EdDisplay.h"
#include "platform/arx/EdEditor.h"
#include "platform/arx/Guard.h"
#include "platform/win/CodePage.h"
#include "platform/win/File.h"
#include "platform/win/PlatformTexts.h"

namespace {

namespace fs = std::filesystem;

constexpr PlatformMsg kEvent = PlatformMsg::DocumentEvent;

bool IsSameFile(const CString& left, const CString& right) {
    std::error_code ignored;
    return left == right || fs::equivalent(NativePath(left), NativePath(right), ignored);
}

AcDbStorageResult Refusal(const wchar_t* file, PlatformMsg reason) {
    AcDbStorageResult result;
    result.reason.Format(L"%s: %s", file, MessageText(reason));
    return result;
}

} // namespace

CString AcApDocManager::drawingPath(const wchar_t* path) const {
    return acdbDrawingPath(path, m_pStorage ? m_pStorage->Extension() : CString());
}

void AcTransactionManager::flushGraphics() {
    acedUpdateDisplay();
}

void AcApDocument::refreshView() {
    if (acDocManagerPtr()->curDocument() == this) {
        m_transactions.flushGraphics();
    }
}

void AcApDocument::setPath(const CString& path) {
    m_strPath = path;
    m_strTitle = FileNameOf(path);
}

/// Keeps a document open and its database the working one during a save.
class AcApDocManager::Saving {
public:
    Saving(const AcApDocManager& manager, AcApDocument& document)
        : m_manager(manager), m_document(document) {
        m_document.lock();
        acdbHostApplicationServices()->setWorkingDatabase(m_document.database());
    }
    ~Saving() {
        const AcApDocument* const pCurrent = m_manager.curDocument();
        acdbHostApplicationServices()->setWorkingDatabase(pCurrent ? pCurrent->database()
                                                                   : nullptr);
        m_document.unlock();
    }
    Saving(const Saving&) = delete;
    Saving& operator=(const Saving&) = delete;

    /// Changes that reactors make now are not the user's, so they are not undoable.
    void TellBegin(const CString& path) {
        const AcDbUndoPause pause(*m_document.database());
        acedEditor()->fireBeginSave(m_document.database(), path);
    }

private:
    const AcApDocManager& m_manager;
    AcApDocument& m_document;
};

template <class Call>
void AcApDocManager::Tell(Call call) {
    // Iterate over a copy: a reactor may add or remove reactors during the call.
    const std::vector<AcApDocManagerReactor*> reactors = m_reactors;
    for (AcApDocManagerReactor* pReactor : reactors) {
        if (std::find(m_reactors.begin(), m_reactors.end(), pReactor) != m_reactors.end()) {
            // Every reactor tracks the same documents, so a failing one must not hide events from
            // the others.
            Guarded(kEvent, [&] { CallForeign(*pReactor, kEvent, [&] { call(*pReactor); }); });
        }
    }
}

void AcApDocManager::addReactor(AcApDocManagerReactor* pReactor) {
    if (std::find(m_reactors.begin(), m_reactors.end(), pReactor) == m_reactors.end()) {
        m_reactors.push_back(pReactor);
    }
}

void AcApDocManager::removeReactor(AcApDocManagerReactor* pReactor) {
    std::erase(m_reactors, pReactor);
}

bool AcApDocManager::IsOpen(const AcApDocument* pDoc) const {
    return std::any_of(m_documents.begin(), m_documents.end(),
                       [pDoc](const auto& entry) { return entry.get() == pDoc; });
}

AcApDocument* AcApDocManager::documentOf(const wchar_t* path) const {
    const CString file = drawingPath(path);
    const auto hit =
        std::find_if(m_documents.begin(), m_documents.end(), [&file](const auto& entry) {
            return entry->hasFile() && IsSameFile(entry->path(), file);
        });
    return hit == m_documents.end() ? nullptr : hit->get();
}

AcApDocument* AcApDocManager::newDocument(const wchar_t* name) {
    m_documents.push_back(std::make_unique<AcApDocument>(name));
    AcApDocument* const pDoc = m_documents.back().get();
    setCurDocument(pDoc);
    return pDoc;
}

AcApDocument* AcApDocManager::newDocument() {
    CString name;
    const auto hasName = [&name](const auto& entry) { return entry->title() == name; };
    do {
        name = MessageText(PlatformMsg::NewDrawing, ++m_nLastNew);
    } while (std::any_of(m_documents.begin(), m_documents.end(), hasName));
    return newDocument(name);
}

AcDbStorageResult AcApDocManager::openDocument(const wchar_t* path, const AcDbProgress& progress,
                                               AcApDocument*& pDoc) {
    pDoc = documentOf(path);
    if (pDoc) {
        if (pDoc != m_pCurrent) {
            setCurDocument(pDoc);
        }
        return {};
    }
    const CString file = drawingPath(path);
    if (!m_pStorage || file.IsEmpty()) {
        return Refusal(file, m_pStorage ? PlatformMsg::NoFileNamed : PlatformMsg::CannotOpen);
    }
    auto pNew = std::make_unique<AcApDocument>(L"");
    AcDbStorageResult result = m_pStorage->Read(*pNew->database(), file, progress);
    if (!result.ok()) {
        m_pStorage->Close(*pNew->database());
        return result;
    }
    pNew->setPath(file);
    pNew->setReadOnly(result.readOnlyReason);
    m_pStorage->MarkOpen(*pNew->database());
    pDoc = pNew.get();
    m_documents.push_back(std::move(pNew));
    setCurDocument(pDoc);
    return result;
}

template <class Write>
AcDbStorageResult AcApDocManager::Save(AcApDocument& document, const CString& path, Write write) {
    AcDbStorageResult result;
    result.reason = m_pStorage->WhyNotWritable(path);
    if (!result.ok()) {
        return result;
    }
    Saving saving(*this, document);
    saving.TellBegin(path);
    result = write();
    if (result.ok()) {
        if (document.path() != path || document.isReadOnly()) {
            document.setReadOnly(L"");
            m_pStorage->MarkOpen(*document.database());
        }
        document.setPath(path);
        acedEditor()->fireSaveComplete(document.database(), path);
    }
    return result;
}

AcDbStorageResult AcApDocManager::saveDocument(AcApDocument* pDoc, const AcDbProgress& progress) {
    if (!m_pStorage || !IsOpen(pDoc) || !pDoc->hasFile()) {
        return Refusal(IsOpen(pDoc) ? pDoc->fileName() : L"",
                       m_pStorage ? PlatformMsg::HasNoFile : PlatformMsg::CannotSave);
    }
    if (pDoc->isReadOnly()) {
        return Refusal(pDoc->fileName(), PlatformMsg::OpenReadOnly);
    }
    const CString path = pDoc->path();
    return Save(*pDoc, path, [&] { return m_pStorage->Save(*pDoc->database(), path, progress); });
}

AcDbStorageResult AcApDocManager::saveDocumentAs(AcApDocument* pDoc, const wchar_t* path,
                                                 const AcDbProgress& progress) {
    const CString file = drawingPath(path);
    if (!m_pStorage || !IsOpen(pDoc) || file.IsEmpty()) {
        return Refusal(file, m_pStorage ? PlatformMsg::NoFileNamed : PlatformMsg::CannotSave);
    }
    const AcApDocument* const pOwner = documentOf(file);
    if (pOwner && pOwner != pDoc) {
        return Refusal(file, PlatformMsg::FileInUse);
    }
    if (pOwner && pDoc->isReadOnly()) {
        return Refusal(file, PlatformMsg::OpenReadOnly);
    }
    const CString from = pDoc->path();
    return Save(*pDoc, file,
                [&] { return m_pStorage->SaveAs(*pDoc->database(), from, file, progress); });
}

AcDbStorageResult AcApDocManager::compareDocument(AcApDocument* pDoc, const AcDbProgress& progress,
                                                  AcDbComparison& comparison) {
    if (!m_pStorage || !IsOpen(pDoc) || !pDoc->hasFile()) {
        return Refusal(L"", PlatformMsg::HasNoFile);
    }
    return m_pStorage->Compare(*pDoc->database(), progress, comparison);
}

AcDbStorageResult AcApDocManager::takeOverDocument(AcApDocument* pDoc, const AcDbProgress& progress,
                                                   AcDbComparison& comparison) {
    if (!m_pStorage || !IsOpen(pDoc) || !pDoc->hasFile()) {
        return Refusal(L"", PlatformMsg::HasNoFile);
    }
    const Saving working(*this, *pDoc);
    return m_pStorage->TakeOver(*pDoc->database(), progress, comparison);
}

void AcApDocManager::setCurDocument(AcApDocument* pDoc) {
    if (m_pCurrent && m_pCurrent != pDoc) {
        AcApDocument* const pOld = m_pCurrent;
        Tell([pOld](AcApDocManagerReactor& reactor) { reactor.documentToBeDeactivated(pOld); });
    }
    m_pCurrent = pDoc;
    acdbHostApplicationServices()->setWorkingDatabase(pDoc ? pDoc->database() : nullptr);
    Tell([pDoc](AcApDocManagerReactor& reactor) { reactor.documentBecameCurrent(pDoc); });
}

bool AcApDocManager::closeDocument(AcApDocument* pDoc) {
    if (!IsOpen(pDoc) || pDoc->isLocked()) {
        return false;
    }
    const CString fileName = pDoc->fileName();
    const bool wasCurrent = pDoc == m_pCurrent;
    if (wasCurrent) {
        Tell([pDoc](AcApDocManagerReactor& reactor) { reactor.documentToBeDeactivated(pDoc); });
    }
    Tell([pDoc](AcApDocManagerReactor& reactor) { reactor.documentToBeDestroyed(pDoc); });
    if (wasCurrent) {
        m_pCurrent = nullptr;
        acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    }
    if (m_pStorage) {
        m_pStorage->Close(*pDoc->database());
    }
    std::erase_if(m_documents, [pDoc](const auto& entry) { return entry.get() == pDoc; });
    Tell([&](AcApDocManagerReactor& reactor) { reactor.documentDestroyed(fileName); });
    if (wasCurrent) {
        setCurDocument(m_documents.empty() ? nullptr : m_documents.back().get());
    }
    return true;
}

void AcApDocManager::popResourceHandle() {
    if (!m_resources.empty()) {
        m_resources.pop_back();
    }
}

AcApDocManager* acDocManagerPtr() {
    static auto* const manager = new AcApDocManager;
    return manager;
}
