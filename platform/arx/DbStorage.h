// Storage of drawings. Implemented by the host; modules never see a file format.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/arx/DbConflict.h"

class AcDbDatabase;

/// Reports the progress of a long operation, from 0 to 100; returns false to stop it.
using AcDbProgress = std::function<bool(int percent)>;

/// Result of reading or writing. An empty reason means success; otherwise it names the file and the
/// error, and the database and the file are unchanged.
struct AcDbStorageResult {
    CString reason;
    std::vector<CString> warnings; ///< skipped content, one text each
    /// For a failed save: the conflict that the user can resolve.
    AcDbConflict conflict{};
    /// For a successful read: why the drawing should not be saved to its file; empty if it may.
    CString readOnlyReason{};
    bool ok() const { return reason.IsEmpty(); }
};

class PLATFORM_API IDbStorage {
public:
    virtual ~IDbStorage() = default;
    /// File name extension with its dot, such as ".abc".
    virtual CString Extension() const = 0;
    /// Why a file cannot be written, as far as can be determined without writing; names the file.
    /// Empty if it seems writable. Called before modules are notified of a save, as they may change
    /// the drawing then.
    virtual CString WhyNotWritable(const wchar_t* /*path*/) { return {}; }
    /// Reads a file into an empty database.
    virtual AcDbStorageResult Read(AcDbDatabase& database, const wchar_t* path,
                                   const AcDbProgress& progress) = 0;
    /// Writes what has changed into the file that the database was read from or last
    /// written to.
    virtual AcDbStorageResult Save(AcDbDatabase& database, const wchar_t* path,
                                   const AcDbProgress& progress) = 0;
    /// Writes the whole drawing to another file. `from` is the file it was read from, empty for a
    /// new drawing; content of that file that is not part of the drawing is copied as well.
    virtual AcDbStorageResult SaveAs(AcDbDatabase& database, const wchar_t* from,
                                     const wchar_t* path, const AcDbProgress& progress) = 0;
    /// Detects a conflict that prevents saving to the file the database was read from.
    virtual AcDbConflict FindConflict(const AcDbDatabase& /*database*/) { return {}; }
    /// Compares the drawing's changes with those that other programs saved to its file. The result
    /// is empty if the conflict does not allow a comparison.
    virtual AcDbStorageResult Compare(const AcDbDatabase& /*database*/,
                                      const AcDbProgress& /*progress*/,
                                      AcDbComparison& /*comparison*/) {
        return {};
    }
    /// Merges what others have saved into the drawing, as if it had been read from the current file
    /// and then changed. Where both sides added objects with the same ids, the drawing's get new
    /// ones. Where both changed the same object, the drawing keeps its own version, unsaved.
    /// Clears the undo history. Does not write to the file.
    virtual AcDbStorageResult TakeOver(AcDbDatabase& /*database*/, const AcDbProgress& /*progress*/,
                                       AcDbComparison& /*comparison*/) {
        return {};
    }
    /// Other programs that have registered as having a file open.
    virtual std::vector<AcDbOpenMark> OthersWith(const wchar_t* /*path*/) { return {}; }
    /// Registers the file of the database as open, for other programs to see, until the database
    /// is closed or saved to another file.
    virtual void MarkOpen(const AcDbDatabase& /*database*/) {}
    /// Drops all state kept for a database that is about to be destroyed.
    virtual void Close(const AcDbDatabase& database) = 0;
};
