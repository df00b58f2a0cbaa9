// By what a file is known to have stayed as it was, and who changed it when.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/win/String.h"

/// Changes when a file is written or replaced. A change within the resolution of the file system's
/// clock that keeps inode and size is not detected.
struct FileStamp {
    std::int64_t time = 0; ///< last modification, in nanoseconds
    std::int64_t size = 0;
    std::uint64_t inode = 0;
    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// Nothing if the file does not exist or is not accessible.
PLATFORM_API std::optional<FileStamp> FileStampOf(const wchar_t* path);

/// The user to whom a file belongs: who wrote it last, if writing replaces it. The number of
/// one who is not known here; empty if there is no such file.
PLATFORM_API CString FileOwner(const wchar_t* path);

/// "2026-11-22 05:40", in the time zone of this machine.
PLATFORM_API CString LocalTimeText(const FileStamp& stamp);
