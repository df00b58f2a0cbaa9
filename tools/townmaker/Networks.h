// The networks of a town as files.
#pragma once

#include <cstdint>
#include <string>

#include "TextFile.h"
#include "Town.h"

namespace TownMaker {

/// Sections of the water network besides those of the streets: intake, pump, two mains to
/// the streets, a pressure valve, and the way to the tank.
inline constexpr std::uint64_t kWaterExtra = 6;
/// The sewer's outfall pipe.
inline constexpr std::uint64_t kSewerExtra = 1;

/// `origin` tells in the title how the file came about. `faults` so many faults lie beside
/// the town, in turn of each kind; they come with nodes and sections of their own.
void WriteWater(const Town& town, const std::string& origin, std::uint64_t faults, TextFile& file);
void WriteSewer(const Town& town, const std::string& origin, std::uint64_t faults, TextFile& file);

} // namespace TownMaker
