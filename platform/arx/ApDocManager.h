// The host's open documents, which of them is current, and who is told about it.
#pragma once

#include <memory>
#include <vector>

#include "platform/arx/DbDatabase.h"
#include "platform/win/Types.h"

/// One open drawing. Owned by the document manager.
class PLATFORM_API AcApDocument : public AcRxObject {
public:
    explicit AcApDocument(const wchar_t* fileName)
        : m_strFileName(fileName), m_pDatabase(std::make_unique<AcDbDatabase>()) {}

    /// Path of the drawing's file, or the name of a new drawing that has none yet.
    const wchar_t* fileName() const { return m_strFileName; }
    AcDbDatabase* database() const { return m_pDatabase.get(); }

    /// A document is not closed while somebody holds a lock on it. Locks nest.
    void lock() { ++m_nLocks; }
    void unlock() { --m_nLocks; }
    bool isLocked() const { return m_nLocks > 0; }

private:
    int m_nLocks = 0;
    CString m_strFileName;
    std::unique_ptr<AcDbDatabase> m_pDatabase;
};

/// Is told about documents, on the main thread, in the order of registration.
/// Not owned by the manager.
class PLATFORM_API AcApDocManagerReactor : public AcRxObject {
public:
    virtual void documentToBeDestroyed(AcApDocument* /*pDoc*/) {}
    /// The document is gone; only its file name is left.
    virtual void documentDestroyed(const wchar_t* /*lpszFileName*/) {}
    /// Null when the last document has gone.
    virtual void documentBecameCurrent(AcApDocument* /*pDoc*/) {}
    virtual void documentToBeDeactivated(AcApDocument* /*pDoc*/) {}
};

class PLATFORM_API AcApDocManager {
public:
    AcApDocManager() = default;
    AcApDocManager(const AcApDocManager&) = delete;
    AcApDocManager& operator=(const AcApDocManager&) = delete;

    void addReactor(AcApDocManagerReactor* pReactor);
    void removeReactor(AcApDocManagerReactor* pReactor);

    int documentCount() const { return static_cast<int>(m_documents.size()); }
    /// Null if there is no document.
    AcApDocument* curDocument() const { return m_pCurrent; }

    /// Opens a new empty drawing under a name and makes it current.
    AcApDocument* newDocument(const wchar_t* fileName);
    /// Makes a document current: the old one is told first that it will no longer be.
    void setCurDocument(AcApDocument* pDoc);
    /// Destroys a document; the one opened last of the others becomes current. False, and
    /// nothing happens, for a locked document and for one that is not open.
    bool closeDocument(AcApDocument* pDoc);

    /// Makes a module's dialogs and icons the ones that are found first.
    void pushResourceHandle(HINSTANCE hInstance) { m_resources.push_back(hInstance); }
    void popResourceHandle();
    /// Null while nothing was pushed.
    HINSTANCE resourceHandle() const { return m_resources.empty() ? nullptr : m_resources.back(); }

private:
    template <class Call>
    void Tell(Call call);

    std::vector<std::unique_ptr<AcApDocument>> m_documents;
    AcApDocument* m_pCurrent = nullptr;
    std::vector<AcApDocManagerReactor*> m_reactors;
    std::vector<HINSTANCE> m_resources;
};

/// Never null.
PLATFORM_API AcApDocManager* acDocManagerPtr();
