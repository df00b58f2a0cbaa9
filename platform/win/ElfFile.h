// Reads a shared library's headers before it is mapped.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>
#include <vector>

/// Program headers of an ELF file of this machine's word size, checked against the actual file
/// size.
struct ElfFile {
    struct Range {
        std::uint64_t offset;
        std::uint64_t size;
    };
    std::uint64_t fileLength = 0;
    /// End of the last loadable segment; a shorter file is truncated.
    std::uint64_t loadedEnd = 0;
    std::vector<Range> notes;

    bool IsCut() const { return loadedEnd > fileLength; }

    /// Nothing if it is not such a file or its header table is truncated.
    static std::optional<ElfFile> Read(std::FILE* file);
};
