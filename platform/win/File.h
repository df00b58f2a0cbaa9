// File access by wide paths. Backslashes separate folders as slashes do.
#pragma once

#include <cstdio>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win/String.h"

/// The path in the operating system's form: UTF-8, with backslashes converted to slashes.
PLATFORM_API std::string NativePath(const wchar_t* path);
/// The inverse of NativePath. Paths are bytes to the operating system: bytes that are not UTF-8
/// become characters that no valid text contains, which NativePath converts back.
PLATFORM_API CString WidePath(std::string_view native);

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a file with a mode of fopen. On failure the handle is empty and LastErrorText
/// (ErrorText.h) gives the reason. Blocks on a named pipe until its other end is opened.
PLATFORM_API FileHandle OpenFile(const wchar_t* path, const char* mode);

/// Opens a regular file for reading. Fails at once for anything else, such as a folder or a
/// named pipe, with LastErrorText set.
PLATFORM_API FileHandle OpenRegularFile(const wchar_t* path);

/// The whole content of a regular file; nothing on failure, with LastErrorText set.
PLATFORM_API std::optional<std::string> ReadFileBytes(const wchar_t* path);

/// Writes a file whole or not at all: under another name beside it, to the disk, and then into
/// its place, so that at any moment there is the old one or the new one, with the permissions of
/// the old one. False on failure, with LastErrorText set and the old one as it was.
PLATFORM_API bool ReplaceFileBytes(const wchar_t* path, std::string_view bytes);

/// Renames a regular file to the first free name of path + suffix + 1, 2, 3 and so on, and returns
/// that name; nothing on failure, with LastErrorText set. Never replaces another file.
PLATFORM_API std::optional<CString> SetFileAside(const wchar_t* path, const wchar_t* suffix);

PLATFORM_API bool FileExists(const wchar_t* path);
/// There is nothing of that name, as opposed to something that cannot be looked at.
PLATFORM_API bool FileIsMissing(const wchar_t* path);
/// There is a file that this user may not write to, or that nobody may, the administrator
/// included.
PLATFORM_API bool FileIsWriteProtected(const wchar_t* path);
/// False if there is no such folder or its files cannot be listed, with LastErrorText set.
PLATFORM_API bool FolderIsReadable(const wchar_t* path);
/// False on failure, with LastErrorText set; also if there is no such file.
PLATFORM_API bool RemoveFile(const wchar_t* path);
/// Creates a folder and its parents. True if it already exists.
PLATFORM_API bool MakeFolder(const wchar_t* path);
/// Names of the files in a folder, without subfolders, sorted by code point. Nothing on failure,
/// with LastErrorText set.
PLATFORM_API std::optional<std::vector<CString>> ListFileNames(const wchar_t* folder);
/// The part after the last separator.
PLATFORM_API CString FileNameOf(const wchar_t* path);
/// The path with a trailing separator; empty for an empty path.
PLATFORM_API CString WithSeparator(const wchar_t* folder);
