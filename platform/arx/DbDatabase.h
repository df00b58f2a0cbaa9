// The drawing's database and the services through which modules reach the current one.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "platform/arx/DbDictionary.h"
#include "platform/arx/DbEntity.h"
#include "platform/arx/DbSymbolTables.h"

class AcDbUndo;

/// Notified of changes of a database. Not owned. Called when a changed object is closed and when
/// undo or redo has changed it; the object may be read but not opened. Reactors may be added and
/// removed during a call; an added one is called from the next event on.
class PLATFORM_API AcDbDatabaseReactor {
public:
    virtual ~AcDbDatabaseReactor() = default;
    virtual void objectAppended(const AcDbDatabase*, const AcDbObject*) {}
    virtual void objectModified(const AcDbDatabase*, const AcDbObject*) {}
    /// False: restored, for instance by undoing its erasure or redoing its creation.
    virtual void objectErased(const AcDbDatabase*, const AcDbObject*, bool /*bErased*/) {}
    /// The entire content was replaced: a drawing was read.
    virtual void databaseReplaced(const AcDbDatabase*) {}
    /// Ids from the database's nextId on, whose objects were erased before, are given again.
    virtual void idsFreed(const AcDbDatabase*) {}
    /// The database is about to go, and will not ask for its reactors to be removed.
    virtual void goodbye(const AcDbDatabase*) {}
};

/// The content of one drawing. Owned by its document. Main thread only.
class PLATFORM_API AcDbDatabase : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    /// Contains layer "0" and the model space.
    AcDbDatabase();
    ~AcDbDatabase() override;
    AcDbDatabase(const AcDbDatabase&) = delete;
    AcDbDatabase& operator=(const AcDbDatabase&) = delete;

    // Adding. The database takes ownership and assigns the id.
    /// Adds an entity to the model space or to a block. An entity without a layer is put on layer
    /// "0". Throws std::logic_error for a null entity and for a layer or block that is not in the
    /// database.
    AcDbObjectId appendEntity(std::unique_ptr<AcDbEntity> pEntity, AcDbObjectId block = {});
    /// The layer of a name; made if there is none. An erased one that the undo history can
    /// bring back comes back as it was (a dictionary without its records).
    AcDbObjectId layer(const wchar_t* name);
    /// Null id if it does not exist.
    AcDbObjectId findLayer(const wchar_t* name) const;
    AcDbObjectId block(const wchar_t* name); ///< not case-sensitive, like layers
    AcDbObjectId findBlock(const wchar_t* name) const;
    AcDbObjectId modelSpace() const { return m_modelSpace; }
    AcDbObjectId dictionary(const wchar_t* name); ///< case-sensitive
    AcDbObjectId findDictionary(const wchar_t* name) const;
    /// In the order of creation, without erased ones.
    std::vector<AcDbObjectId> layers() const;
    std::vector<AcDbObjectId> blocks() const;
    std::vector<AcDbObjectId> dictionaries() const;

    /// For whoever only reads, without opening. Null for an unknown id; an erased object is
    /// given too, as long as the undo history can bring it back.
    const AcDbObject* peek(AcDbObjectId id) const;
    /// Calls visit(const AcDbEntity&) for each entity of the model space that is not erased, in the
    /// order of adding. Entities added meanwhile are not visited.
    template <class Visit>
    void forEachEntity(Visit&& visit) const;
    std::size_t entityCount() const { return m_nEntities; } ///< not erased, all blocks

    /// The coordinate reference system of all positions, as text (WKT); empty if unknown.
    const CString& coordinateSystem() const { return m_strCoordinateSystem; }
    void setCoordinateSystem(const wchar_t* wkt);

    // Undo. A group is one undo step; outside groups, the changes between opening and closing one
    // object form a step.
    AcDbUndo& undo() { return *m_pUndo; }
    /// While disabled, changes are not recorded in the history. Calls do not nest.
    void disableUndoRecording(bool bDisable);
    bool isUndoRecordingDisabled() const;

    // For storages.
    /// True if anything differs from the file.
    bool isModified() const { return !m_unsaved.empty() || m_bHeaderUnsaved; }
    /// Objects that differ from the file, each once, including erased ones, in the order of their
    /// first change.
    std::span<const AcDbObjectId> unsavedObjects() const { return m_unsaved; }
    bool isHeaderUnsaved() const { return m_bHeaderUnsaved; }
    void markSaved();
    /// The next id to be given; ids below it have been used. Undoing and changing something
    /// else makes it lower again, but not below what it was when the drawing was read or saved.
    std::uint32_t nextId() const { return static_cast<std::uint32_t>(m_objects.size()); }
    /// Prepares for loading into an empty database. Loaded objects keep their ids and are neither
    /// unsaved nor undoable; reactors are notified once, by endLoading. Existing content is
    /// dropped; throws std::logic_error if one of its objects is open. Allocates room for nextId
    /// objects at once, so the caller must have checked the number.
    void beginLoading(std::uint32_t nextId);
    /// Adds a loaded object, in any order, but before the layer, block or dictionary of its name is
    /// asked for. Throws std::logic_error and adds nothing for a null id, an id that is in use or
    /// not below nextId, and a second layer, block or dictionary of the same name.
    void load(AcDbObjectId id, std::unique_ptr<AcDbObject> pObject, AcDbObjectId block = {});
    /// Adds the entities to their blocks, ordered by id. Entities whose layer (block) was not
    /// loaded are put on layer "0" (into the model space), which are created if necessary.
    void endLoading();
    /// Aborts loading and leaves a new, empty database. Reactors are not notified.
    void cancelLoading();

    /// Restores an entity that was not loaded, with its former id, which must be below nextId and
    /// unused. It counts as unsaved. Otherwise the same as appendEntity.
    void restoreEntity(AcDbObjectId id, std::unique_ptr<AcDbEntity> pEntity, AcDbObjectId block);
    /// Moves another database's content into this one, keeping ids and unsaved states; the other
    /// one is empty afterwards. Reactors are notified as after loading. Previous content and undo
    /// history are dropped. Throws std::logic_error if an object of either database is open.
    void takeContent(AcDbDatabase& other);

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
    /// Assigns the next id to a new object and notifies the reactors.
    AcDbObjectId append(std::unique_ptr<AcDbObject> pObject);
    AcDbObject& adopt(AcDbObjectId id, std::unique_ptr<AcDbObject> pObject);
    /// The map that holds the object's name, and in `key` its key there. Null for an unnamed
    /// object.
    Names* namesOf(const AcDbObject& object, CString& key);
    template <class T>
    AcDbObjectId named(Names& names, const CString& key, const wchar_t* name);
    AcDbObjectId findNamed(const Names& names, const CString& key) const;
    std::vector<AcDbObjectId> inOrder(const Names& names) const;
    void bringBack(AcDbObject& object);
    void placeLoadedEntities();

    bool isInUse(const AcDbObject& object) const;
    Acad::ErrorStatus mayErase(const AcDbObject& object, bool bErasing) const;
    /// Not recorded in the history.
    void setErased(AcDbObject& object, bool bErased);
    void markUnsaved(AcDbObject& object);

    /// Nobody is in the middle of looking at objects.
    bool mayReleaseObjects() const;
    /// The file may have a row for it that the next save has to delete.
    bool isRowLeft(const AcDbObject& object) const;
    /// In the order of numbers; erased, and not to be brought back.
    void releaseObjects(std::span<const std::uint32_t> numbers);
    void freeIds();

    template <class Call>
    void tell(Call call);
    void tellAppended(const AcDbObject& object);
    void tellReplaced();
    void tellIdsFreed();
    void tellGoodbye();
    void tellChanges(const AcDbObject& object, bool bErasedChanged, bool bModified);

    struct Visiting {
        explicit Visiting(const AcDbDatabase& database) : m_database(database) {
            ++m_database.m_nVisiting;
        }
        ~Visiting() { --m_database.m_nVisiting; }
        Visiting(const Visiting&) = delete;
        Visiting& operator=(const Visiting&) = delete;
        const AcDbDatabase& m_database;
    };

    // Index is the id's number; 0 stays empty, as do released objects.
    std::vector<std::unique_ptr<AcDbObject>> m_objects;
    /// Ids below it may stand in a file.
    std::uint32_t m_nFirstUnstored = 0;
    std::vector<AcDbObjectId> m_unsaved;
    // Including erased ones. Layer and block names in lower case.
    Names m_layersByName;
    Names m_blocksByName;
    Names m_dictionariesByName;
    AcDbObjectId m_layerZero;
    AcDbObjectId m_modelSpace;
    std::size_t m_nEntities = 0;
    CString m_strCoordinateSystem;
    bool m_bHeaderUnsaved = false;
    bool m_bLoading = false;
    std::size_t m_nOpen = 0; ///< objects, however often each is open
    std::size_t m_nWriters = 0;
    std::unique_ptr<AcDbUndo> m_pUndo;
    // Reactors removed during a call are replaced by null.
    std::vector<AcDbDatabaseReactor*> m_reactors;
    int m_nTelling = 0;
    mutable int m_nVisiting = 0;
};

class PLATFORM_API AcDbHostApplicationServices {
public:
    /// The database used by operations that do not name one; null if no document is current.
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
    const Visiting visiting(*this);
    const auto* const pSpace = static_cast<const AcDbBlockTableRecord*>(peek(m_modelSpace));
    const std::size_t count = pSpace ? pSpace->entityIds().size() : 0;
    for (std::size_t i = 0; i < count; ++i) {
        // Looked up each time: a visitor that adds entities may reallocate the list.
        const AcDbObject* const pObject = m_objects[pSpace->entityIds()[i].number()].get();
        if (!pObject->isErased()) {
            visit(static_cast<const AcDbEntity&>(*pObject));
        }
    }
}
