// What users are told when two programs work on one drawing, or a file is not what it was.
#pragma once

#include <string>
#include <vector>

#include "platform/arx/DbConflict.h"

namespace Tessaly {

/// Why a save was refused, with who saved when.
CString ConflictReason(const AcDbConflict& conflict);
/// "mary on desk7, tessaly (4711), 2026-01-31 14:05:09 UTC"
CString SaverText(const AcDbSaveNote& note);
/// Another program keeps the file locked; its name, or empty if that is not known.
CString LockedReason(const std::string& program);
CString WaitStoppedReason();
CString ReplacedMeanwhileReason();
CString ChangedMeanwhileReason();
CString LinkLoopReason();
CString MissingTablesReason(const std::vector<std::string>& tables);
CString CannotCompareReason();
CString NoConflictReason();

} // namespace Tessaly
