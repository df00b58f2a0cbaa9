// What checks, journals and replacements of a drawing's file have in common: the calls of the
// operating system. Internal to this folder.
#pragma once

#include <fcntl.h>
#include <string>
#include <unistd.h>

#include "platform/win/String.h"

namespace Tessaly {

/// A file of the operating system that is open; false if it could not be opened.
class Descriptor {
public:
    Descriptor(const std::string& path, int flags, mode_t mode = 0)
        : m_number(open(path.c_str(), flags | O_CLOEXEC, mode)) {}
    ~Descriptor() {
        if (m_number >= 0) {
            close(m_number);
        }
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    explicit operator bool() const { return m_number >= 0; }
    int Number() const { return m_number; }

private:
    int m_number;
};

/// Why the operating system refused, from its number.
CString ErrnoText(int number);

/// Tells a file from one that takes its name; the same for all names of a file.
struct FileNumber {
    dev_t device = 0;
    ino_t number = 0;
    bool operator==(const FileNumber&) const = default;
};
/// All zero if there is no such file.
FileNumber FileNumberOf(const std::string& path);

/// The file itself: that is what is replaced, and what journals lie beside. Of links that lead
/// to no file yet, the place where it would be; of links that lead in a circle, the path.
std::string BehindLinks(const std::string& path);

/// Removes a file with the journals beside it.
void RemoveWithJournals(const std::string& path);

} // namespace Tessaly
