#include "platform/arx/ApDocManager.h"

#include <algorithm>

template <class Call>
void AcApDocManager::Tell(Call call) {
    // Over a copy: a reactor may attach or remove reactors while it is being told.
    const std::vector<AcApDocManagerReactor*> reactors = m_reactors;
    for (AcApDocManagerReactor* pReactor : reactors) {
        if (std::find(m_reactors.begin(), m_reactors.end(), pReactor) != m_reactors.end()) {
            call(*pReactor);
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

AcApDocument* AcApDocManager::newDocument(const wchar_t* fileName) {
    m_documents.push_back(std::make_unique<AcApDocument>(fileName));
    AcApDocument* const pDoc = m_documents.back().get();
    setCurDocument(pDoc);
    return pDoc;
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
    const auto own = [pDoc](const auto& entry) { return entry.get() == pDoc; };
    if (std::none_of(m_documents.begin(), m_documents.end(), own) || pDoc->isLocked()) {
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
    std::erase_if(m_documents, own);
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
