// The version of a module file, readable without loading it.
//
// The version is an ELF note with owner "Tessaly", type 1 and four 16-bit numbers. Notes survive
// stripping and stay in a loadable segment. OrvModule.cmake compiles one into every module.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/win/String.h"

struct FileVersion {
    std::uint16_t major = 0;
    std::uint16_t minor = 0;
    std::uint16_t build = 0;
    std::uint16_t revision = 0;
    bool operator==(const FileVersion&) const = default;
};

/// The version of a module file; nothing if the file cannot be read, is not an ELF file of this
/// machine's word size, is truncated or has no version note.
PLATFORM_API std::optional<FileVersion> ReadFileVersion(const wchar_t* path);

/// The version as "major.minor.build.revision"; empty if the file has none.
PLATFORM_API CString ReadFileVersionText(const wchar_t* path);
