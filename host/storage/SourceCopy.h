// Copies of a drawing's file, and what has to be done to them before the drawing is
// written into them.
#pragma once

#include <string>

#include "platform/win/String.h"

namespace Tessaly {

class UnfinishedFile;

/// The whole file as it is at one moment, whoever else writes to it. Empty on success.
CString CopySource(const std::string& source, const UnfinishedFile& copy);

/// Declares another coordinate system for our tables of a file that nobody else knows; the
/// geometries are to be written anew. Empty on success.
CString SetCoordinateSystem(const std::string& path, const std::string& wkt);

} // namespace Tessaly
