// What the platform reads of a shared library's headers before anybody maps it.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <vector>

/// Program headers of an ELF file of this machine's word size, checked against the
/// file's real length.
struct ElfFile {
    struct Range {
        std::uint64_t offset;
        std::uint64_t size;
    };
    std::uint64_t fileLength = 0;
    /// End of the last loadable segment; a library shorter than this is cut.
    std::uint64_t loadedEnd = 0;
    std::vector<Range> notes;

    bool IsCut() const { return loadedEnd > fileLength; }

    /// Nothing if the file is no such file or its header table itself is cut.
    static std::optional<ElfFile> Read(std::FILE* file);
};
