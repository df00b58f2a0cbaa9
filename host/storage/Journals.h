// Journals beside a drawing's file, which are left by writes that were not finished, and the
// locks of other programs.
#pragma once

#include <string>

#include "platform/win/String.h"

namespace Tessaly {

/// A write that a process began and did not finish has to be taken back from the file.
bool HasHotJournal(const std::string& path);
/// A journal of any kind lies beside the file: somebody writes, or died doing so.
bool HasJournal(const std::string& path);
/// Removes what a process left that died before it changed the file. Only for who has locked
/// the file against writers.
void RemoveColdJournal(const std::string& path);
/// Removes journals whose file is gone; false if it is there.
bool RemoveOrphans(const std::string& path);
/// Lets a write that another process left unfinished be taken back. Empty on success.
CString SettleJournal(const std::string& path);
/// The same for a file that is to be replaced: no journal of its may be left, since it would
/// be taken for one of the new file. Empty on success.
CString ClearJournals(const std::string& path);

} // namespace Tessaly
