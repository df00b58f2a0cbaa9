// A file that is written whole beside its target and then takes its place.
#pragma once

#include <string>

#include "platform/win/String.h"

namespace Tessaly {

/// Removes what processes that died left unfinished in the folder of a file, whatever they
/// meant to write.
void ClearLeftovers(const std::string& path);

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
