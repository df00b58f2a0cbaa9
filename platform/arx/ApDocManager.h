// The host's open documents: which one is current, where they are stored, and the reactors that are
// notified about them.
#pragma once

#include <memory>
#include <vector>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbStorage.h"
#include "platform/win/Types.h"

/// Connects changes of a drawing with its display.
class PLATFORM_API AcTransactionManager {
public:
    /// Updates the view of the current drawing immediately; see IDrawingDisplay::Update.
    void flushGraphics();
};

/// One open drawing. Owned by the document manager.
class PLATFORM_API AcApDocument : public AcRxObject {
public:
    /// A new drawing that has a name but no file yet.
    explicit AcApDocument(const wchar_t* name)
        : m_strTitle(name), m_pDatabase(std::make_unique<AcDbDatabase>()) {}

    /// Path of the drawing's file, or the drawing's name if it has no file yet.
    const wchar_t* fileName() const { return hasFile() ? m_strPath : m_strTitle; }
    /// Absolute path of the drawing's file; empty if it has none.
    const CString& path() const { return m_strPath; }
    bool hasFile() const { return !m_strPath.IsEmpty(); }
    /// The file name without its folder, or the drawing's name if it has no file yet.
    const CString& title() const { return m_strTitle; }
    AcDbDatabase* database() const { return m_pDatabase.get(); }
    AcTransactionManager* transactionManager() { return &m_transactions; }
    /// Updates the view immediately if this is the current drawing. Other drawings are redrawn when
    /// they become current.
    void refreshView();
    /// True if there are changes that have not been saved.
    bool isModified() const { return m_pDatabase->isModified(); }

    /// Why the drawing cannot be saved to its own file; empty if it can.
    const CString& readOnlyReason() const { return m_strReadOnlyReason; }
    bool isReadOnly() const { return !m_strReadOnlyReason.IsEmpty(); }
    void setReadOnly(const CString& reason) { m_strReadOnlyReason = reason; }

    /// A locked document cannot be closed. Locks nest.
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
    CString m_strReadOnlyReason;
    std::unique_ptr<AcDbDatabase> m_pDatabase;
};

/// Notified about documents on the main thread, in the order of registration. Not owned by the
/// manager.
class PLATFORM_API AcApDocManagerReactor : public AcRxObject {
public:
    virtual void documentToBeDestroyed(AcApDocument* /*pDoc*/) {}
    /// The document no longer exists; only its file name is passed.
    virtual void documentDestroyed(const wchar_t* /*lpszFileName*/) {}
    /// Null after the last document was closed. A document opened from a file is fully loaded by
    /// now.
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
    /// Null if no document is open.
    AcApDocument* curDocument() const { return m_pCurrent; }
    /// The document whose file this is, even if the path is spelled differently; null if it is not
    /// open.
    AcApDocument* documentOf(const wchar_t* path) const;

    /// Creates an empty drawing with the given name and makes it current.
    AcApDocument* newDocument(const wchar_t* name);
    /// The same, named with the first free name of "Drawing1", "Drawing2", ...
    AcApDocument* newDocument();
    /// Makes a document current. The previous one is deactivated first.
    void setCurDocument(AcApDocument* pDoc);
    /// Destroys a document; the most recently opened of the remaining ones becomes current. Returns
    /// false and does nothing if the document is locked or not open.
    bool closeDocument(AcApDocument* pDoc);

    // Files. Paths are completed by drawingPath.
    /// The storage of drawings; not owned. Without one, opening and saving are refused.
    void setStorage(IDbStorage* pStorage) { m_pStorage = pStorage; }
    IDbStorage* storage() const { return m_pStorage; }
    /// Completes a path by acdbDrawingPath, with the storage's extension.
    CString drawingPath(const wchar_t* path) const;
    /// Reads a drawing and makes it current. If its file is already open, that document becomes
    /// current instead. On failure pDoc is null and no reactor is called.
    AcDbStorageResult openDocument(const wchar_t* path, const AcDbProgress& progress,
                                   AcApDocument*& pDoc);
    /// Writes a drawing to its file. Editor reactors are called before, with the drawing as the
    /// working database: their changes are part of the save and are not undoable. They are called
    /// again after a successful save. After a failure the drawing counts as modified as before.
    AcDbStorageResult saveDocument(AcApDocument* pDoc, const AcDbProgress& progress);
    /// Writes a drawing to another file, or to its first one, which becomes the drawing's own. An
    /// existing file is replaced. Refused if the file is open in another document. Afterwards the
    /// drawing is no longer read-only.
    AcDbStorageResult saveDocumentAs(AcApDocument* pDoc, const wchar_t* path,
                                     const AcDbProgress& progress);

    /// IDbStorage::Compare and TakeOver for a drawing that has a file. Refused while a command is
    /// running on the drawing.
    AcDbStorageResult compareDocument(AcApDocument* pDoc, const AcDbProgress& progress,
                                      AcDbComparison& comparison);
    AcDbStorageResult takeOverDocument(AcApDocument* pDoc, const AcDbProgress& progress,
                                       AcDbComparison& comparison);

    /// Makes a module's dialogs and icons take precedence over those pushed before.
    void pushResourceHandle(HINSTANCE hInstance) { m_resources.push_back(hInstance); }
    void popResourceHandle();
    /// Null if no module was pushed.
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
    int m_nLastNew = 0; ///< number in the last generated name
    std::vector<AcApDocManagerReactor*> m_reactors;
    std::vector<HINSTANCE> m_resources;
};

/// Never null.
PLATFORM_API AcApDocManager* acDocManagerPtr();
