// Writes the networks of a town to files.
#pragma once

#include <cstdint>
#include <string>

#include "TextFile.h"
#include "Town.h"

namespace TownMaker {

/// Sections of the water network in addition to those of the streets: intake, pump, two mains to
/// the streets, a pressure valve, and the connection to the tank.
inline constexpr std::uint64_t kWaterExtra = 6;
/// The sewer's outfall pipe.
inline constexpr std::uint64_t kSewerExtra = 1;

/// `origin` is written to the title and documents how the file was generated. `faults` is the
/// number of faults beside the town, of alternating kinds, with their own nodes and sections.
void WriteWater(const Town& town, const std::string& origin, std::uint64_t faults, TextFile& file);
void WriteSewer(const Town& town, const std::string& origin, std::uint64_t faults, TextFile& file);

} // namespace TownMaker
