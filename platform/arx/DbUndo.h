// The undo history of a database.
//
// What a group holds are the states before its first change of each part of an object: that
// it is there at all, its body, its layer, its colour, each attribute, each record of a
// dictionary. Undo and redo exchange them with the present ones.
//
// A change made while recording is off wins over the history: of the part that it touched,
// all states noted before, on the undo and on the redo side, are passed over from then on.
// The other parts of the object are still undone. Such a change does not clear the redo side.
// A layer or block on which an entity is put off the record stays, too, and so does a
// dictionary in which a record is written.
//
// Erased objects that neither undo nor redo can bring back any more are released, and ids at
// the upper end that no file has are given again.
#pragma once

#include <memory>

#include "platform/arx/DbDictionary.h"
#include "platform/arx/DbEntity.h"

/// Groups of changes. Owned by its database.
class PLATFORM_API AcDbUndo {
public:
    explicit AcDbUndo(AcDbDatabase& database);
    ~AcDbUndo();
    AcDbUndo(const AcDbUndo&) = delete;
    AcDbUndo& operator=(const AcDbUndo&) = delete;

    /// What follows, up to endGroup, is taken back by one UNDO. Groups nest: the outermost
    /// counts. A group without changes leaves nothing.
    void beginGroup(const wchar_t* name);
    /// Throws std::logic_error if no group is open.
    void endGroup();
    /// How many groups are open, one in the other.
    int openGroups() const;

    /// Name of the group that the next undo (redo) takes, empty for a change outside of
    /// groups; null if there is none. Valid until the history changes.
    const CString* undoName() const;
    const CString* redoName() const;
    /// False if there is nothing, while a group is open, and while an object is open for
    /// writing. Reactors are told when all is done.
    bool undo();
    bool redo();
    /// Nothing is recorded from one to the other. Pauses nest, and hold even if the
    /// database's recording is switched on meanwhile. See AcDbUndoPause.
    void pause();
    void resume();
    /// Forgets all. An open group stays open.
    void clear();
    /// What every change on the record does first. For whoever has to know the database's
    /// nextId before the change. Does nothing while nothing is recorded.
    void dropRedo();

    /// For the history of each drawing, in bytes; 0 for none. When a step is complete, the
    /// oldest ones are dropped until the others fit, but never the newest one.
    static void setMemoryLimit(std::size_t bytes);
    static std::size_t memoryLimit();
    /// About what the complete steps take, with the erased objects that they can bring back.
    std::size_t bytes() const;
    /// Steps that were dropped for the limit since the last call.
    std::size_t takeDropped();

private:
    friend class AcDbDatabase;
    friend class AcDbDictionary;
    friend class AcDbEntity;
    friend class AcDbObject;
    struct State;

    // Each before the change, on or off the record.
    void noteBody(AcDbObject& object);
    void noteLayer(AcDbEntity& entity, AcDbObjectId layer);
    void noteColor(AcDbEntity& entity);
    void noteAttribute(AcDbEntity& entity, AcDbNameId name);
    void noteRecord(AcDbDictionary& dictionary, const CString& record);
    void noteCoordinateSystem();
    void noteCreated(const AcDbObject& object);
    void noteErased(const AcDbObject& object, bool bErased);
    void noteClosed(AcDbObject& object);
    /// Reactors have heard of the change.
    void noteComplete();
    void noteSaved();

    std::unique_ptr<State> m_pState;
};
