// The table of indexed colours shared by all drawings.
#pragma once

#include <cstdint>

#include "platform/Api.h"
#include "platform/win/Types.h"

namespace Tessaly {

/// An opaque colour as 0xffRRGGBB.
using Rgb = std::uint32_t;

/// Background of the drawing; decides which colours contrast with it.
enum class Background { Dark, Light };

/// The colour of an index from 1 to 255. Index 7, like any number outside the table, gives the most
/// contrasting colour: white on dark, black on light.
PLATFORM_API Rgb AciColor(int index, Background background);

/// Blends two colours: share 0 gives `below`, 255 gives `above`.
PLATFORM_API Rgb MixColors(Rgb below, Rgb above, int share);

} // namespace Tessaly

/// The same as a window colour (red in the lowest byte); index 7 is white.
PLATFORM_API COLORREF acedGetRGB(int colorIndex);
