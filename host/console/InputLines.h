// Sources of command line input.
#pragma once

#include <cstdio>
#include <memory>
#include <optional>

#include "platform/win/String.h"

namespace Tessaly {

/// Reads lines without their line ends, numbered from 1.
class IInputLines {
public:
    virtual ~IInputLines() = default;
    /// Nothing at the end of the input. The last line needs no line end.
    virtual std::optional<CString> Next() = 0;
    /// Number of the line read last; 0 before the first.
    virtual int LineNumber() const = 0;
    /// Name of the input for error messages; empty for interactive input.
    virtual CString Name() const = 0;
    /// Whether lines must be echoed, because they were not typed on the terminal.
    virtual bool WantsEcho() const = 0;
};

/// Lines of an open UTF-8 stream. Does not own the stream.
std::unique_ptr<IInputLines> StreamLines(std::FILE* stream);

/// Lines of a file; null, with LastErrorText set, if it cannot be read.
std::unique_ptr<IInputLines> FileLines(const wchar_t* path);

} // namespace Tessaly
