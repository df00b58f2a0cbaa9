// A drawing and its file have both been changed since they were the same: what each side did,
// and how the changes of the drawing are put upon those of the file.
#pragma once

#include <optional>

#include "host/storage/RememberedFile.h"
#include "host/storage/SaveHistory.h"
#include "platform/arx/DbDatabase.h"

namespace Tessaly {

struct TwoSides {
    const AcDbDatabase& mine;
    const RememberedFile& base;     ///< what both had; its ids mean the same on both sides
    const NumberRuns& theirChanges; ///< objects that they wrote or erased
    const AcDbDatabase& theirs;     ///< read from the file as it is now

    /// The object came after both were the same.
    bool IsNew(AcDbObjectId id) const { return id.number() >= base.firstUnwritten; }
};

AcDbComparison CompareSides(const TwoSides& sides);

/// Number of the system that a dictionary holds, from its name.
std::optional<int> SystemNumber(const CString& dictionary);

/// What became of a record.
struct RecordSides {
    bool isMineChanged = false;
    bool isTheirsChanged = false;
};
/// \param mine, theirs texts; null where the side has no such record
RecordSides CompareRecord(const RememberedFile& base, const CString& dictionary,
                          const CString& record, const CString* mine, const CString* theirs);

/// Writes what the drawing has unsaved into `merged`, which holds what the file does. Objects
/// and systems that are new in the drawing get numbers that are free.
void ApplyMine(const TwoSides& sides, AcDbDatabase& merged);

} // namespace Tessaly
