#include "platform/win/FileVersion.h"

#include <cstring>
#include <elf.h>

#include "platform/win/ElfFile.h"
#include "platform/win/File.h"

namespace {

constexpr char kOwner[] = "Tessaly";
constexpr std::uint32_t kVersionNote = 1;

std::uint64_t Aligned(std::uint64_t size) {
    return (size + 3) & ~std::uint64_t{3};
}

std::optional<FileVersion> FindVersion(const std::string& notes) {
    std::uint64_t at = 0;
    while (at + sizeof(Elf64_Nhdr) <= notes.size()) {
        Elf64_Nhdr note{};
        std::memcpy(&note, notes.data() + at, sizeof note);
        const std::uint64_t owner = at + sizeof note;
        const std::uint64_t content = owner + Aligned(note.n_namesz);
        const std::uint64_t end = content + Aligned(note.n_descsz);
        if (end > notes.size()) {
            return std::nullopt;
        }
        if (note.n_type == kVersionNote && note.n_namesz == sizeof kOwner &&
            note.n_descsz == sizeof(FileVersion) &&
            std::memcmp(notes.data() + owner, kOwner, sizeof kOwner) == 0) {
            FileVersion version;
            std::memcpy(&version, notes.data() + content, sizeof version);
            return version;
        }
        at = end;
    }
    return std::nullopt;
}

} // namespace

std::optional<FileVersion> ReadFileVersion(const wchar_t* path) {
    const FileHandle file = OpenRegularFile(path);
    const std::optional<ElfFile> elf = file ? ElfFile::Read(file.get()) : std::nullopt;
    if (!elf) {
        return std::nullopt;
    }
    for (const ElfFile::Range& segment : elf->notes) {
        if (segment.offset > elf->fileLength || segment.size > elf->fileLength - segment.offset) {
            continue;
        }
        std::string notes(segment.size, '\0');
        if (std::fseek(file.get(), static_cast<long>(segment.offset), SEEK_SET) != 0 ||
            std::fread(notes.data(), 1, notes.size(), file.get()) != notes.size()) {
            continue;
        }
        if (const auto version = FindVersion(notes)) {
            return version;
        }
    }
    return std::nullopt;
}

CString ReadFileVersionText(const wchar_t* path) {
    CString text;
    if (const auto version = ReadFileVersion(path)) {
        text.Format(L"%d.%d.%d.%d", version->major, version->minor, version->build,
                    version->revision);
    }
    return text;
}
