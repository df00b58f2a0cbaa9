// The host's open documents, which of them is current, where they are kept, and who is told
// about it.
#pragma once

#include <memory>
#include <vector>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbStorage.h"
#include "platform/win/Types.h"

/// What stands between the changes of a drawing and its picture.
class PLATFORM_API AcTransactionManager {
public:
    /// Has the view of the current drawing show at once what has changed; see
    /// IDrawingDisplay::Update.
    void flushGraphics();
};

/// One open drawing. Owned by the document manager.
class PLATFORM_API AcApDocument : public AcRxObject {
public:
    /// A drawing that has a name and no file yet.
    explicit AcApDocument(const wchar_t* name)
        : m_strTitle(name), m_pDatabase(std::make_unique<AcDbDatabase>()) {}

    /// Path of the drawing's file, or the name of a new drawing that has none yet.
    const wchar_t* fileName() const { return hasFile() ? m_strPath : m_strTitle; }
    /// Absolute path of the drawing's file; empty for a new drawing.
    const CString& path() const { return m_strPath; }
    bool hasFile() const { return !m_strPath.IsEmpty(); }
    /// The file name without its folder, or the name of a new drawing.
    const CString& title() const { return m_strTitle; }
    AcDbDatabase* database() const { return m_pDatabase.get(); }
    AcTransactionManager* transactionManager() { return &m_transactions; }
    /// Shows at once what has changed, if the drawing is the current one. Others are shown
    /// as they are when they become current.
    void refreshView();
    /// It has changes that are not in its file.
    bool isModified() const { return m_pDatabase->isModified(); }

    /// A document is not closed while somebody holds a lock on it. Locks nest.
    void lock() { ++m_nLocks; }
    void unlock() { --m_nLocks; }
    bool isLocked() const { return m_nLocks > 0; }

private:
    friend class AcApDocManager;
    void setPath(const CString& path);

    int m_nLocks = 0;
    AcTransactionManager m_transactions;
    CString m_strPath;
    CString m_strTitle;
    std::unique_ptr<AcDbDatabase> m_pDatabase;
};

/// Is told about documents, on the main thread, in the order of registration.
/// Not owned by the manager.
class PLATFORM_API AcApDocManagerReactor : public AcRxObject {
public:
    virtual void documentToBeDestroyed(AcApDocument* /*pDoc*/) {}
    /// The document is gone; only its file name is left.
    virtual void documentDestroyed(const wchar_t* /*lpszFileName*/) {}
    /// Null when the last document has gone. One that was opened is read whole.
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
    /// In the order of opening.
    const std::vector<std::unique_ptr<AcApDocument>>& documents() const { return m_documents; }
    /// Null if there is no document.
    AcApDocument* curDocument() const { return m_pCurrent; }
    /// The document whose file this is, by whatever name; null if none has it open.
    AcApDocument* documentOf(const wchar_t* path) const;

    /// Opens a new empty drawing under a name and makes it current.
    AcApDocument* newDocument(const wchar_t* name);
    /// The same under the next name that is free of "Drawing1", "Drawing2", ...
    AcApDocument* newDocument();
    /// Makes a document current: the old one is told first that it will no longer be.
    void setCurDocument(AcApDocument* pDoc);
    /// Destroys a document; the one opened last of the others becomes current. False, and
    /// nothing happens, for a locked document and for one that is not open.
    bool closeDocument(AcApDocument* pDoc);

    // Files. A path is completed as drawingPath does.
    /// Where drawings are kept; not owned. Without one, opening and saving are refused.
    void setStorage(IDbStorage* pStorage) { m_pStorage = pStorage; }
    /// acdbDrawingPath with the extension of the storage.
    CString drawingPath(const wchar_t* path) const;
    /// Reads a drawing and makes it current; one whose file is open already only becomes
    /// current. After a failure pDoc is null, and no reactor has heard of anything.
    AcDbStorageResult openDocument(const wchar_t* path, const AcDbProgress& progress,
                                   AcApDocument*& pDoc);
    /// Writes a drawing into its file. Editor reactors are told before, with the drawing as
    /// the working database: what they change is part of the save, and no step of the undo
    /// history. They are told again after a success. After a failure the drawing counts as
    /// modified as before.
    AcDbStorageResult saveDocument(AcApDocument* pDoc, const AcDbProgress& progress);
    /// The same into another file, or for the first time, which becomes the drawing's own. An
    /// existing file is replaced. Refused for a file that another document has open.
    AcDbStorageResult saveDocumentAs(AcApDocument* pDoc, const wchar_t* path,
                                     const AcDbProgress& progress);

    /// Makes a module's dialogs and icons the ones that are found first.
    void pushResourceHandle(HINSTANCE hInstance) { m_resources.push_back(hInstance); }
    void popResourceHandle();
    /// Null while nothing was pushed.
    HINSTANCE resourceHandle() const { return m_resources.empty() ? nullptr : m_resources.back(); }

private:
    class Saving;

    template <class Call>
    void Tell(Call call);
    bool IsOpen(const AcApDocument* pDoc) const;
    template <class Write>
    AcDbStorageResult Save(AcApDocument& document, const CString& path, Write write);

    std::vector<std::unique_ptr<AcApDocument>> m_documents;
    AcApDocument* m_pCurrent = nullptr;
    IDbStorage* m_pStorage = nullptr;
    int m_nLastNew = 0; ///< number in the last name that was given to a new drawing
    std::vector<AcApDocManagerReactor*> m_reactors;
    std::vector<HINSTANCE> m_resources;
};

/// Never null.
PLATFORM_API AcApDocManager* acDocManagerPtr();
