#include "platform/win/ElfFile.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <elf.h>
#include <sys/stat.h>

namespace {

bool ReadAt(std::FILE* file, std::uint64_t offset, void* target, std::size_t size) {
    return std::fseek(file, static_cast<long>(offset), SEEK_SET) == 0 &&
           std::fread(target, size, 1, file) == 1;
}

bool IsOurKind(const Elf64_Ehdr& header) {
    return std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0 &&
           header.e_ident[EI_CLASS] == ELFCLASS64 && header.e_phentsize == sizeof(Elf64_Phdr);
}

} // namespace

std::optional<ElfFile> ElfFile::Read(std::FILE* file) {
    struct stat info {};
    Elf64_Ehdr header{};
    if (fstat(fileno(file), &info) != 0 || !ReadAt(file, 0, &header, sizeof header) ||
        !IsOurKind(header)) {
        return std::nullopt;
    }
    ElfFile elf;
    elf.fileLength = static_cast<std::uint64_t>(info.st_size);
    for (std::uint64_t i = 0; i < header.e_phnum; ++i) {
        Elf64_Phdr segment{};
        if (!ReadAt(file, header.e_phoff + i * sizeof segment, &segment, sizeof segment)) {
            return std::nullopt;
        }
        if (segment.p_type == PT_LOAD) {
            std::uint64_t end = 0;
            if (__builtin_add_overflow(segment.p_offset, segment.p_filesz, &end)) {
                end = UINT64_MAX;
            }
            elf.loadedEnd = std::max(elf.loadedEnd, end);
        } else if (segment.p_type == PT_NOTE) {
            elf.notes.push_back({segment.p_offset, segment.p_filesz});
        }
    }
    return elf;
}
