// The drawing's database and the services by which modules reach the current one.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "platform/arx/DbDictionary.h"
#include "platform/arx/DbEntity.h"
#include "platform/arx/DbSymbolTables.h"

class AcDbUndo;

/// Hears of changes of a database. Not owned. Called when an object that was changed is
/// closed, and when undo or redo changed it; the object may be read, not opened. Reactors may
/// come and go during a call: one that comes hears from the next event on.
class PLATFORM_API AcDbDatabaseReactor {
public:
    virtual ~AcDbDatabaseReactor() = default;
    virtual void objectAppended(const AcDbDatabase*, const AcDbObject*) {}
    virtual void objectModified(const AcDbDatabase*, const AcDbObject*) {}
    /// False: it is back, by undoing its erasure or redoing its creation among others.
    virtual void objectErased(const AcDbDatabase*, const AcDbObject*, bool /*bErased*/) {}
    /// The whole content is another one: the drawing was read.
    virtual void databaseReplaced(const AcDbDatabase*) {}
    /// The database is about to go, and will not ask for its reactors to be removed.
    virtual void goodbye(const AcDbDatabase*) {}
};

/// One drawing's content. Owned by its document. Main thread only.
class PLATFORM_API AcDbDatabase : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    /// With layer "0" and the model space.
    AcDbDatabase();
    ~AcDbDatabase() override;
    AcDbDatabase(const AcDbDatabase&) = delete;
    AcDbDatabase& operator=(const AcDbDatabase&) = delete;

    // Adding. The database takes ownership and gives the id.
    /// To the model space, or to a block. The entity's layer is layer "0" unless it has one.
    /// Throws std::logic_error for a null entity, and for a layer or block that the database
    /// does not have.
    AcDbObjectId appendEntity(std::unique_ptr<AcDbEntity> pEntity, AcDbObjectId block = {});
    /// The layer of a name; made if there is none. An erased one comes back as it was (a
    /// dictionary without its records): a name belongs to one object for good.
    AcDbObjectId layer(const wchar_t* name);
    /// Null id if there is none.
    AcDbObjectId findLayer(const wchar_t* name) const;
    AcDbObjectId block(const wchar_t* name); ///< without regard to case, as layers
    AcDbObjectId findBlock(const wchar_t* name) const;
    AcDbObjectId modelSpace() const { return m_modelSpace; }
    AcDbObjectId dictionary(const wchar_t* name); ///< told apart by case
    AcDbObjectId findDictionary(const wchar_t* name) const;
    /// In the order of creation, without erased ones.
    std::vector<AcDbObjectId> layers() const;
    std::vector<AcDbObjectId> blocks() const;
    std::vector<AcDbObjectId> dictionaries() const;

    /// For whoever only reads, without opening. Null for an unknown id; an erased object is
    /// given too.
    const AcDbObject* peek(AcDbObjectId id) const;
    /// The same for entities of the model space: calls visit(const AcDbEntity&) for each
    /// that is not erased, in the order of adding. What is added meanwhile is not visited.
    template <class Visit>
    void forEachEntity(Visit&& visit) const;
    std::size_t entityCount() const { return m_nEntities; } ///< not erased, all blocks

    /// The coordinate reference system of all positions, as text (WKT); empty if unknown.
    const CString& coordinateSystem() const { return m_strCoordinateSystem; }
    void setCoordinateSystem(const wchar_t* wkt);

    // Undo. A group is what one UNDO takes back; outside of groups, what was changed between
    // the opening and the closing of one object is one.
    AcDbUndo& undo() { return *m_pUndo; }
    /// While it is switched off, changes leave no trace in the history. Calls do not nest.
    void disableUndoRecording(bool bDisable);
    bool isUndoRecordingDisabled() const;

    // What a storage needs.
    /// Something differs from the file.
    bool isModified() const { return !m_unsaved.empty() || m_bHeaderUnsaved; }
    /// Objects that do, each once, erased ones included, in the order of their first change.
    std::span<const AcDbObjectId> unsavedObjects() const { return m_unsaved; }
    bool isHeaderUnsaved() const { return m_bHeaderUnsaved; }
    void markSaved();
    /// The next id to be given; ids below it have been used.
    std::uint32_t nextId() const { return static_cast<std::uint32_t>(m_objects.size()); }
    /// Fills an empty database: objects keep their ids, nothing counts as unsaved or
    /// undoable, and reactors hear of it once, at endLoading. What the database held is
    /// dropped; throws std::logic_error if an object of it is open. Room is made for nextId
    /// objects at once, so the number has to be believable.
    void beginLoading(std::uint32_t nextId);
    /// In any order, but before the layer, block or dictionary of that name is asked for.
    /// Throws std::logic_error, and takes nothing, for a null id, one that is
    /// not below nextId or is in use, and for a second layer, block or dictionary of a name.
    void load(AcDbObjectId id, std::unique_ptr<AcDbObject> pObject, AcDbObjectId block = {});
    /// Entities take their places in their blocks, by number. One on a layer (block) that
    /// was not loaded comes to layer "0" (the model space), which are made if not loaded.
    void endLoading();
    /// Gives up: the database is a new, empty one. Reactors hear nothing.
    void cancelLoading();

    void addReactor(AcDbDatabaseReactor* pReactor);
    void removeReactor(AcDbDatabaseReactor* pReactor);

private:
    friend class AcDbObject;
    friend class AcDbEntity;
    friend class AcDbUndo;
    using Names = std::map<CString, AcDbObjectId, CStringLess>;
    friend Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*&, AcDbObjectId, AcDb::OpenMode, bool,
                                                AcDbDatabase*);

    AcDbObject* object(AcDbObjectId id) const;
    template <class T>
    T* live(AcDbObjectId id) const;
    Acad::ErrorStatus open(AcDbObject*& pObject, AcDbObjectId id, AcDb::OpenMode mode,
                           bool openErased);
    void startWriting(AcDbObject& object);
    void endWriting(AcDbObject& object);

    void reset();
    /// Gives a new object the next id and tells of it.
    AcDbObjectId append(std::unique_ptr<AcDbObject> pObject);
    AcDbObject& adopt(AcDbObjectId id, std::unique_ptr<AcDbObject> pObject);
    /// Null for an object that has no name. Its key there goes to `key`.
    Names* namesOf(const AcDbObject& object, CString& key);
    template <class T>
    AcDbObjectId named(Names& names, const CString& key, const wchar_t* name);
    AcDbObjectId findNamed(const Names& names, const CString& key) const;
    std::vector<AcDbObjectId> inOrder(const Names& names) const;
    void bringBack(AcDbObject& object);
    void placeLoadedEntities();

    bool isInUse(const AcDbObject& object) const;
    Acad::ErrorStatus mayErase(const AcDbObject& object, bool bErasing) const;
    /// Without a note in the history.
    void setErased(AcDbObject& object, bool bErased);
    void markUnsaved(AcDbObject& object);

    template <class Call>
    void tell(Call call);
    void tellAppended(const AcDbObject& object);
    void tellReplaced();
    void tellGoodbye();
    void tellChanges(const AcDbObject& object, bool bErasedChanged, bool bModified);

    // Index is the id's number; 0 stays empty.
    std::vector<std::unique_ptr<AcDbObject>> m_objects;
    std::vector<AcDbObjectId> m_unsaved;
    // With erased ones. Layers and blocks in lower case.
    Names m_layersByName;
    Names m_blocksByName;
    Names m_dictionariesByName;
    AcDbObjectId m_layerZero;
    AcDbObjectId m_modelSpace;
    std::size_t m_nEntities = 0;
    CString m_strCoordinateSystem;
    bool m_bHeaderUnsaved = false;
    bool m_bLoading = false;
    std::size_t m_nOpen = 0; ///< objects, not openings
    std::size_t m_nWriters = 0;
    std::unique_ptr<AcDbUndo> m_pUndo;
    // Null where one went during a call.
    std::vector<AcDbDatabaseReactor*> m_reactors;
    int m_nTelling = 0;
};

class PLATFORM_API AcDbHostApplicationServices {
public:
    /// The database that operations without a database argument work on; null if no
    /// document is current.
    AcDbDatabase* workingDatabase() const { return m_pWorkingDatabase; }
    void setWorkingDatabase(AcDbDatabase* pDatabase) { m_pWorkingDatabase = pDatabase; }

private:
    AcDbDatabase* m_pWorkingDatabase = nullptr;
};

/// Never null.
PLATFORM_API AcDbHostApplicationServices* acdbHostApplicationServices();

template <class T>
T* AcDbDatabase::live(AcDbObjectId id) const {
    auto* const pObject = dynamic_cast<T*>(object(id));
    return pObject && !pObject->isErased() ? pObject : nullptr;
}

template <class Visit>
void AcDbDatabase::forEachEntity(Visit&& visit) const {
    const auto* const pSpace = static_cast<const AcDbBlockTableRecord*>(peek(m_modelSpace));
    const std::size_t count = pSpace ? pSpace->entityIds().size() : 0;
    for (std::size_t i = 0; i < count; ++i) {
        // Looked up each time: a visitor that adds entities moves the list.
        const AcDbObject* const pObject = m_objects[pSpace->entityIds()[i].number()].get();
        if (!pObject->isErased()) {
            visit(static_cast<const AcDbEntity&>(*pObject));
        }
    }
}
