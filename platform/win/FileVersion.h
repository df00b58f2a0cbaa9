// The version that a module file carries, readable without loading it.
//
// It is an ELF note of the owner "Tessaly" and type 1 with four 16-bit numbers. A note
// survives stripping and stays in a loadable segment. OrvModule.cmake compiles one into
// every module.
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

/// The version of a module file; nothing if the file cannot be read, is no ELF file of
/// this machine's word size, is cut short, or has no version note.
PLATFORM_API std::optional<FileVersion> ReadFileVersion(const wchar_t* path);

/// The version as "major.minor.build.revision"; empty if the file has none.
PLATFORM_API CString ReadFileVersionText(const wchar_t* path);
