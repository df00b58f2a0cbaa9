// Keeps programs that write to the same folder apart.
#pragma once

#include <optional>
#include <utility>

#include "platform/Api.h"

/// An exclusive lock on a file, which is made for it and stays. The operating system ends the
/// lock with the process that holds it, however that ends. Where a file system has no locks,
/// or the file cannot be opened, everybody gets one: the lock narrows a gap, and what protects
/// the content has to stand without it.
class PLATFORM_API FileLock {
public:
    /// Waits at most that long. Nothing if somebody else still holds it then.
    static std::optional<FileLock> Take(const wchar_t* path, int milliseconds);

    ~FileLock();
    FileLock(FileLock&& other) noexcept : m_nFile(std::exchange(other.m_nFile, -1)) {}
    FileLock& operator=(FileLock&&) = delete;

private:
    explicit FileLock(int file) : m_nFile(file) {}
    int m_nFile;
};
