// By what a file is known to have stayed as it was.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/Api.h"

/// Changes when a file is written or replaced. One that was rewritten in place with as many
/// bytes, within the resolution of the file system's clock, keeps it.
struct FileStamp {
    std::int64_t time = 0; ///< of the last change, in nanoseconds
    std::int64_t size = 0;
    std::uint64_t inode = 0;
    friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

/// Nothing if there is no such file, or it cannot be looked at.
PLATFORM_API std::optional<FileStamp> FileStampOf(const wchar_t* path);
