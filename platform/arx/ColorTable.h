// Colours by their index in the table that drawings share.
#pragma once

#include <cstdint>

#include "platform/Api.h"
#include "platform/win/Types.h"

namespace Tessaly {

/// An opaque colour as 0xffRRGGBB.
using Rgb = std::uint32_t;

/// What the drawing stands on; decides what is told apart from it.
enum class Background { Dark, Light };

/// The colour of an index from 1 to 255. Index 7, and any number outside the table, is the
/// colour that contrasts most: white on dark, black on light.
PLATFORM_API Rgb AciColor(int index, Background background);

/// A mixture: 0 gives `below`, 255 gives `above`.
PLATFORM_API Rgb MixColors(Rgb below, Rgb above, int share);

} // namespace Tessaly

/// The same as a colour of windows (red in the lowest byte); index 7 is white.
PLATFORM_API COLORREF acedGetRGB(int colorIndex);
