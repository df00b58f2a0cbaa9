// Files by wide paths. A backslash separates folders as a slash does.
#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/win/String.h"

/// The path as the operating system takes it: UTF-8, backslashes turned to slashes.
PLATFORM_API std::string NativePath(const wchar_t* path);

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Opens with the modes of the C library. On failure the handle is empty and
/// LastErrorText (ErrorText.h) tells why.
/// Waits, as the C library does, for the other end of a named pipe.
PLATFORM_API FileHandle OpenFile(const wchar_t* path, const char* mode);

/// Opens a regular file for reading. Anything else, such as a folder or a named pipe, is
/// refused at once, with LastErrorText set.
PLATFORM_API FileHandle OpenRegularFile(const wchar_t* path);

/// The whole content of a regular file; nothing on failure, with LastErrorText set.
PLATFORM_API std::optional<std::string> ReadFileBytes(const wchar_t* path);

/// Writes a file whole or not at all: under another name beside it, to the disk, and then into
/// its place, so that at any moment there is the old one or the new one. False on failure,
/// with LastErrorText set and the old one as it was.
PLATFORM_API bool ReplaceFileBytes(const wchar_t* path, std::string_view bytes);

/// Gives a regular file the first free name of path + suffix + 1, 2, 3 and so on, and returns
/// that; nothing on failure, with LastErrorText set. No other file is ever replaced.
PLATFORM_API std::optional<CString> SetFileAside(const wchar_t* path, const wchar_t* suffix);

PLATFORM_API bool FileExists(const wchar_t* path);
/// False on failure, with LastErrorText set; also if there is no such file.
PLATFORM_API bool RemoveFile(const wchar_t* path);
/// Makes a folder and those above it. True if it is there already.
PLATFORM_API bool MakeFolder(const wchar_t* path);
/// Names of the files of a folder, without folders, by code point. Nothing on failure, with
/// LastErrorText set.
PLATFORM_API std::optional<std::vector<CString>> ListFileNames(const wchar_t* folder);
/// The part behind the last separator.
PLATFORM_API CString FileNameOf(const wchar_t* path);
/// The path with a separator at its end, unless it is empty.
PLATFORM_API CString WithSeparator(const wchar_t* folder);
