// Keeps programs that share a folder from writing into it at the same time.
#pragma once

#include "platform/win/String.h"

/// Holds the folder that a file stands in, as long as other programs ask in the same way.
/// Ends with the process at the latest, and leaves nothing behind. A program that hangs must
/// not make others hang: after a quarter of a second they go on without it, as they do where
/// the file system knows no locks.
class PLATFORM_API FolderLock {
public:
    explicit FolderLock(const wchar_t* file);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    bool IsHeld() const { return m_bHeld; }

private:
    int m_nFolder;
    bool m_bHeld = false;
};
