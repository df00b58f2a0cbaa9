// Where the command line's input comes from.
#pragma once

#include <cstdio>
#include <memory>
#include <optional>

#include "platform/win/String.h"

namespace Tessaly {

/// Hands out lines without their line ends, with their number from 1.
class IInputLines {
public:
    virtual ~IInputLines() = default;
    /// Nothing at the end of the input. A last line without line end counts.
    virtual std::optional<CString> Next() = 0;
    /// Number of the line handed out last; 0 before the first.
    virtual int LineNumber() const = 0;
    /// What errors call the input; empty for a user's own typing.
    virtual CString Name() const = 0;
    /// Lines have to be shown as they are taken, since nobody typed them on the screen.
    virtual bool WantsEcho() const = 0;
};

/// Lines of an open stream, UTF-8. Does not own it.
std::unique_ptr<IInputLines> StreamLines(std::FILE* stream);

/// Lines of a file; null if it cannot be read, with LastErrorText set.
std::unique_ptr<IInputLines> FileLines(const wchar_t* path);

} // namespace Tessaly
