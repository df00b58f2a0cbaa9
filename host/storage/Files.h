// Files of drawings below the level of their content: checks before they are opened, whole
// copies, and putting a finished file in the place of another.
#pragma once

#include <cstdint>
#include <string>

#include "platform/win/String.h"

namespace Tessaly {

/// Absolute, so that no name can be taken for one of GDAL's own notations.
std::string AbsolutePath(const wchar_t* path);

/// Why a file cannot be a drawing to read; empty if it can be one. Tells a cut file from
/// the size that it states itself.
CString WhyNoDatabase(const std::string& path);
/// Why a file, or one beside it, cannot be written; empty if both can.
CString WhyNotWritable(const std::string& path);

/// A write that a process began and did not finish has to be taken back from the file.
bool HasHotJournal(const std::string& path);
/// A journal of any kind lies beside the file: somebody writes, or died doing so.
bool HasJournal(const std::string& path);
/// Removes what a process left that died before it changed the file. Only for who has locked
/// the file against writers.
void RemoveColdJournal(const std::string& path);
/// Removes journals whose file is gone; false if it is there.
bool RemoveOrphans(const std::string& path);
/// Number that the file's content carries and every write changes; 0 if there is none.
std::uint32_t ChangeCounter(const std::string& path);

/// A file under another name beside its target until it is complete. Gone with its journals
/// unless it was put in place. Those of processes that died are cleared away.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const std::string& target);
    ~UnfinishedFile();
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;

    const std::string& Path() const { return m_path; }
    /// Fills it with another file's bytes. Empty on success, else why not.
    CString CopyFrom(const std::string& source) const;
    /// To the disk, and then in the target's place at one stroke. Empty on success.
    CString PutInPlace();

private:
    std::string m_target; ///< behind links: a link itself is not replaced
    std::string m_path;
};

} // namespace Tessaly
