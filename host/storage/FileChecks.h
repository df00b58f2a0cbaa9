// What can be told of a drawing's file before it is opened: whether it is whole, whether it can
// be written, and whether somebody has written since.
#pragma once

#include <cstdint>
#include <string>

#include "platform/win/String.h"

namespace Tessaly {

/// Absolute, so that no name can be taken for one of GDAL's own notations.
std::string AbsolutePath(const wchar_t* path);

/// Why a file cannot be a drawing to read; empty if it can be one. Tells a cut file from
/// the size that it states itself.
CString WhyNoDatabase(const std::string& path);
/// Why a file, or one beside it, cannot be written; empty if both can.
CString WhyNotWritable(const std::string& path);

/// Number that the file's content carries and every write changes; 0 if there is none.
std::uint32_t ChangeCounter(const std::string& path);

} // namespace Tessaly
