// Ways to write into the undo history that end with a block of code.
#pragma once

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"

/// One group of changes for one UNDO, or a part of the group that is open already. The
/// database has to live as long.
class AcDbUndoGroup {
public:
    AcDbUndoGroup(AcDbDatabase& database, const wchar_t* name) : m_database(database) {
        m_database.undo().beginGroup(name);
    }
    ~AcDbUndoGroup() { m_database.undo().endGroup(); }
    AcDbUndoGroup(const AcDbUndoGroup&) = delete;
    AcDbUndoGroup& operator=(const AcDbUndoGroup&) = delete;

private:
    AcDbDatabase& m_database;
};

/// Changes leave no trace in the history.
class AcDbUndoPause {
public:
    explicit AcDbUndoPause(AcDbDatabase& database) : m_database(database) {
        m_database.undo().pause();
    }
    ~AcDbUndoPause() { m_database.undo().resume(); }
    AcDbUndoPause(const AcDbUndoPause&) = delete;
    AcDbUndoPause& operator=(const AcDbUndoPause&) = delete;

private:
    AcDbDatabase& m_database;
};
