// Where drawings are kept. Implemented by the host; modules never see a file format.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/win/String.h"

class AcDbDatabase;

/// Says how far a long operation is, from 0 to 100; false asks it to stop.
using AcDbProgress = std::function<bool(int percent)>;

/// Result of reading or writing. An empty reason means success. A reason names the file and
/// says why; after a failure the database, and the file, are as they were before.
struct AcDbStorageResult {
    CString reason;
    std::vector<CString> warnings; ///< what was passed over, a text each
    bool ok() const { return reason.IsEmpty(); }
};

class PLATFORM_API IDbStorage {
public:
    virtual ~IDbStorage() = default;
    /// With which the names of its files end, as ".abc".
    virtual CString Extension() const = 0;
    /// Why a file cannot be written, as far as that can be told without trying; names the file.
    /// Asked before modules hear of a save, which may put something into the drawing.
    virtual CString WhyNotWritable(const wchar_t* /*path*/) { return {}; }
    /// Reads a file into an empty database.
    virtual AcDbStorageResult Read(AcDbDatabase& database, const wchar_t* path,
                                   const AcDbProgress& progress) = 0;
    /// Writes what has changed into the file that the database was read from or last
    /// written to.
    virtual AcDbStorageResult Save(AcDbDatabase& database, const wchar_t* path,
                                   const AcDbProgress& progress) = 0;
    /// Writes the whole drawing to another file. `from` is the file it was read from, empty
    /// for a new drawing; what that holds beside the drawing is copied along.
    virtual AcDbStorageResult SaveAs(AcDbDatabase& database, const wchar_t* from,
                                     const wchar_t* path, const AcDbProgress& progress) = 0;
    /// Forgets what it remembers of a database, which goes.
    virtual void Close(const AcDbDatabase& database) = 0;
};
