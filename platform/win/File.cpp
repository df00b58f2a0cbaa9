#include "platform/win/File.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/win/CodePage.h"
#include "platform/win/ErrorText.h"

namespace {

/// Renames unless there is something of that name; then errno is EEXIST.
bool RenameToFree(const char* from, const char* to) {
    if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) {
        return true;
    }
    if (errno != EINVAL) {
        return false;
    }
    // The file system cannot do it in one step.
    struct stat info {};
    if (lstat(to, &info) == 0) {
        errno = EEXIST;
        return false;
    }
    return std::rename(from, to) == 0;
}

} // namespace

std::string NativePath(const wchar_t* path) {
    std::string native = WideToUtf8(path ? path : L"");
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

FileHandle OpenFile(const wchar_t* path, const char* mode) {
    FileHandle file(std::fopen(NativePath(path).c_str(), mode));
    if (!file) {
        SetLastErrorNumber(errno);
    }
    return file;
}

FileHandle OpenRegularFile(const wchar_t* path) {
    // Without O_NONBLOCK opening a named pipe would wait until somebody writes to it.
    const int descriptor = open(NativePath(path).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat info {};
    const bool isKnown = descriptor >= 0 && fstat(descriptor, &info) == 0;
    if (isKnown && !S_ISREG(info.st_mode)) {
        S_ISDIR(info.st_mode) ? SetLastErrorNumber(EISDIR)
                              : SetLastErrorText(L"Not a regular file");
    } else if (FileHandle file{isKnown ? fdopen(descriptor, "rb") : nullptr}) {
        return file;
    } else {
        SetLastErrorNumber(errno);
    }
    if (descriptor >= 0) {
        close(descriptor);
    }
    return nullptr;
}

std::optional<std::string> ReadFileBytes(const wchar_t* path) {
    FileHandle file = OpenRegularFile(path);
    struct stat info {};
    if (!file || fstat(fileno(file.get()), &info) != 0) {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(info.st_size), '\0');
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    if (std::ferror(file.get())) {
        SetLastErrorNumber(errno);
        return std::nullopt;
    }
    return bytes;
}

bool ReplaceFileBytes(const wchar_t* path, std::string_view bytes) {
    const std::string target = NativePath(path);
    const std::string draft = target + ".new-" + std::to_string(getpid());
    FileHandle file(std::fopen(draft.c_str(), "wb"));
    bool isWritten = file && std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    // Without this the name could reach the disk before the content does.
    isWritten = isWritten && std::fflush(file.get()) == 0 && fsync(fileno(file.get())) == 0;
    isWritten = isWritten && std::fclose(file.release()) == 0;
    isWritten = isWritten && std::rename(draft.c_str(), target.c_str()) == 0;
    if (!isWritten) {
        SetLastErrorNumber(errno);
        file.reset();
        unlink(draft.c_str());
    }
    return isWritten;
}

std::optional<CString> SetFileAside(const wchar_t* path, const wchar_t* suffix) {
    const std::string source = NativePath(path);
    std::error_code failure;
    if (!std::filesystem::is_regular_file(source, failure)) {
        SetLastErrorNumber(failure ? failure.value() : EINVAL);
        return std::nullopt;
    }
    for (int number = 1;; ++number) {
        CString aside(path);
        aside.AppendFormat(L"%s%d", suffix, number);
        if (RenameToFree(source.c_str(), NativePath(aside).c_str())) {
            return aside;
        }
        if (errno != EEXIST) {
            SetLastErrorNumber(errno);
            return std::nullopt;
        }
    }
}

bool FileExists(const wchar_t* path) {
    std::error_code ignored;
    return std::filesystem::exists(NativePath(path), ignored);
}

bool RemoveFile(const wchar_t* path) {
    if (unlink(NativePath(path).c_str()) != 0) {
        SetLastErrorNumber(errno);
        return false;
    }
    return true;
}

bool MakeFolder(const wchar_t* path) {
    std::error_code error;
    std::filesystem::create_directories(NativePath(path), error);
    if (error) {
        SetLastErrorNumber(error.value());
    }
    return !error;
}

std::optional<std::vector<CString>> ListFileNames(const wchar_t* folder) {
    namespace fs = std::filesystem;
    std::vector<CString> names;
    std::error_code error;
    for (fs::directory_iterator at(NativePath(folder), error); !error && at != fs::end(at);
         at.increment(error)) {
        std::error_code ignored;
        if (!at->is_directory(ignored)) {
            names.emplace_back(Utf8ToWide(at->path().filename().string()));
        }
    }
    if (error) {
        SetLastErrorNumber(error.value());
        return std::nullopt;
    }
    std::sort(names.begin(), names.end());
    return names;
}

CString FileNameOf(const wchar_t* path) {
    const std::wstring_view whole(path ? path : L"");
    return CString(whole.substr(whole.find_last_of(L"\\/") + 1));
}

CString WithSeparator(const wchar_t* folder) {
    CString result(folder);
    if (!result.IsEmpty() && result.View().find_last_of(L"\\/") != result.View().size() - 1) {
        result += L'/';
    }
    return result;
}
