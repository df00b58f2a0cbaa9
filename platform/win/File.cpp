#include "platform/win/File.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/win/CodePage.h"
#include "platform/win/ErrorText.h"
#include "platform/win/PlatformTexts.h"

namespace {

/// Renames unless the target exists; then it fails with EEXIST.
bool RenameToFree(const char* from, const char* to) {
    if (renameat2(AT_FDCWD, from, AT_FDCWD, to, RENAME_NOREPLACE) == 0) {
        return true;
    }
    if (errno != EINVAL) {
        return false;
    }
    // The file system does not support an atomic rename without replacing.
    struct stat info {};
    if (lstat(to, &info) == 0) {
        errno = EEXIST;
        return false;
    }
    return std::rename(from, to) == 0;
}

/// Stands for a byte that is not UTF-8: an unpaired surrogate, which no valid text contains.
constexpr wchar_t kByteBase = 0xDC00;

bool IsByte(wchar_t character) {
    return character >= kByteBase + 0x80 && character <= kByteBase + 0xFF;
}

} // namespace

std::string NativePath(const wchar_t* path) {
    std::string native;
    std::wstring_view rest = path ? path : L"";
    while (!rest.empty()) {
        const auto byte = std::find_if(rest.begin(), rest.end(), IsByte);
        const auto length = static_cast<std::size_t>(byte - rest.begin());
        native += WideToUtf8(rest.substr(0, length));
        if (byte != rest.end()) {
            native += static_cast<char>(*byte - kByteBase);
        }
        rest.remove_prefix(std::min(length + 1, rest.size()));
    }
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

CString WidePath(std::string_view native) {
    std::wstring wide = Utf8ToWide(native);
    if (WideToUtf8(wide) == native) {
        return wide;
    }
    wide.clear();
    constexpr std::size_t kLongestSequence = 4;
    while (!native.empty()) {
        // One character, or a byte that is not part of one.
        std::size_t length = 1;
        std::wstring next = Utf8ToWide(native.substr(0, length));
        while (length < std::min(kLongestSequence, native.size()) &&
               WideToUtf8(next) != native.substr(0, length)) {
            next = Utf8ToWide(native.substr(0, ++length));
        }
        if (next.size() != 1 || WideToUtf8(next) != native.substr(0, length)) {
            length = 1;
            next.assign(
                1, static_cast<wchar_t>(kByteBase + static_cast<unsigned char>(native.front())));
        }
        wide += next;
        native.remove_prefix(length);
    }
    return wide;
}

FileHandle OpenFile(const wchar_t* path, const char* mode) {
    FileHandle file(std::fopen(NativePath(path).c_str(), mode));
    if (!file) {
        SetLastErrorNumber(errno);
    }
    return file;
}

FileHandle OpenRegularFile(const wchar_t* path) {
    // Without O_NONBLOCK, opening a named pipe would block until it is opened for writing.
    const int descriptor = open(NativePath(path).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    struct stat info {};
    const bool isKnown = descriptor >= 0 && fstat(descriptor, &info) == 0;
    if (isKnown && !S_ISREG(info.st_mode)) {
        S_ISDIR(info.st_mode) ? SetLastErrorNumber(EISDIR)
                              : SetLastErrorText(MessageText(PlatformMsg::NotRegularFile));
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
    // Otherwise the rename could reach the disk before the content does.
    isWritten = isWritten && std::fflush(file.get()) == 0 && fsync(fileno(file.get())) == 0;
    struct stat old {};
    if (isWritten && stat(target.c_str(), &old) == 0) {
        constexpr mode_t kPermissions = 07777;
        fchmod(fileno(file.get()), old.st_mode & kPermissions);
    }
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

bool FileIsMissing(const wchar_t* path) {
    struct stat info {};
    return lstat(NativePath(path).c_str(), &info) != 0 && errno == ENOENT;
}

bool FileIsWriteProtected(const wchar_t* path) {
    const std::string native = NativePath(path);
    struct stat info {};
    // The administrator may write to any file, so the marks count as well.
    return stat(native.c_str(), &info) == 0 &&
           ((info.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 ||
            access(native.c_str(), W_OK) != 0);
}

bool FolderIsReadable(const wchar_t* path) {
    const std::string native = NativePath(path);
    struct stat info {};
    if (stat(native.c_str(), &info) != 0 || access(native.c_str(), R_OK | X_OK) != 0) {
        SetLastErrorNumber(errno);
        return false;
    }
    if (!S_ISDIR(info.st_mode)) {
        SetLastErrorNumber(ENOTDIR);
        return false;
    }
    return true;
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
            names.emplace_back(WidePath(at->path().filename().string()));
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
