// Conflicts between programs working on the same drawing: who saved it, who has it open, and how
// the two sides differ. Plain data, provided by the storage.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/arx/DbObject.h"
#include "platform/win/String.h"

/// Record of one save of a drawing.
struct AcDbSaveNote {
    std::int64_t revision = 0;
    CString user;
    CString host;
    CString program; ///< with its process number
    CString time;    ///< UTC, as "2026-01-31 14:05:09"
};

/// Why a drawing cannot simply be saved to its file.
struct AcDbConflict {
    enum class Kind {
        None,
        SavedByOthers, ///< the file has newer saves by others
        Older,         ///< the file is an earlier state of the drawing, or a branch of one
        Replaced,      ///< the file now contains another drawing
    };
    Kind kind = Kind::None;
    /// The saves by others, oldest first; the last save if the file was replaced.
    std::vector<AcDbSaveNote> saves;
    /// True if the file records the changes of these saves, so that they can be merged.
    bool canTakeOver = false;
    explicit operator bool() const { return kind != Kind::None; }
};

/// The changes of one side since both had the same drawing. Systems, other dictionaries and layers
/// are identified by name.
struct AcDbSideChanges {
    std::vector<AcDbObjectId> added; ///< entities
    std::vector<AcDbObjectId> changed;
    std::vector<AcDbObjectId> removed;
    std::vector<CString> addedSystems;
    std::vector<CString> changedSystems;
    std::vector<CString> removedSystems;
    bool IsEmpty() const {
        return added.empty() && changed.empty() && removed.empty() && addedSystems.empty() &&
               changedSystems.empty() && removedSystems.empty();
    }
};

struct AcDbComparison {
    AcDbSideChanges mine;
    AcDbSideChanges theirs;
    /// Entities changed on both sides, and the names of such records and layers.
    std::vector<AcDbObjectId> both;
    std::vector<CString> bothNames;
    bool HasBoth() const { return !both.empty() || !bothNames.empty(); }
};

/// Another program that has a drawing open.
struct AcDbOpenMark {
    CString user;
    CString host;
    CString program;
    CString time; ///< when it was opened, UTC
};
