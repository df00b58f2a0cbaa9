#include "platform/arx/ColorTable.h"

#include <algorithm>
#include <array>

namespace Tessaly {

namespace {

constexpr Rgb kWhite = 0xffffffff;
constexpr Rgb kBlack = 0xff000000;

constexpr Rgb Make(int red, int green, int blue) {
    return 0xff000000U | static_cast<Rgb>(red) << 16U | static_cast<Rgb>(green) << 8U |
           static_cast<Rgb>(blue);
}

constexpr Rgb Grey(int level) {
    return Make(level, level, level);
}

// Indices 1 to 9; the seventh depends on the background.
constexpr std::array<Rgb, 9> kNamed = {
    Make(255, 0, 0), Make(255, 255, 0), Make(0, 255, 0), Make(0, 255, 255),
    Make(0, 0, 255), Make(255, 0, 255), kWhite,          Grey(128),
    Grey(192)};
constexpr int kContrast = 7;
constexpr int kFirstHue = 10;
constexpr int kFirstGrey = 250;
constexpr std::array<int, 5> kBrightness = {255, 165, 127, 76, 38};
constexpr std::array<int, 6> kGreys = {51, 91, 132, 173, 214, 255};

/// One of the 24 hues, 15 degrees apart.
/// \param high,low largest and smallest component of the colour
constexpr Rgb Hue(int hue, int high, int low) {
    constexpr int kStepsPerSide = 4;
    const int side = hue / kStepsPerSide;
    const int step = hue % kStepsPerSide;
    const int rising = low + (high - low) * step / kStepsPerSide;
    const int falling = low + (high - low) * (kStepsPerSide - step) / kStepsPerSide;
    switch (side) {
    case 0:
        return Make(high, rising, low);
    case 1:
        return Make(falling, high, low);
    case 2:
        return Make(low, high, rising);
    case 3:
        return Make(low, falling, high);
    case 4:
        return Make(rising, low, high);
    default:
        return Make(high, low, falling);
    }
}

constexpr Rgb Shade(int index) {
    const int place = index - kFirstHue;
    const int high = kBrightness[static_cast<std::size_t>(place % 10 / 2)];
    const bool isPale = place % 2 == 1;
    return Hue(place / 10, high, isPale ? high / 2 : 0);
}

} // namespace

Rgb AciColor(int index, Background background) {
    if (index < 1 || index > 255 || index == kContrast) {
        return background == Background::Dark ? kWhite : kBlack;
    }
    if (index < kFirstHue) {
        return kNamed[static_cast<std::size_t>(index - 1)];
    }
    return index < kFirstGrey ? Shade(index)
                              : Grey(kGreys[static_cast<std::size_t>(index - kFirstGrey)]);
}

Rgb MixColors(Rgb below, Rgb above, int share) {
    const auto mix = [&](unsigned shift) {
        const int from = static_cast<int>(below >> shift & 0xffU);
        const int to = static_cast<int>(above >> shift & 0xffU);
        return from + (to - from) * std::clamp(share, 0, 255) / 255;
    };
    return Make(mix(16), mix(8), mix(0));
}

} // namespace Tessaly

COLORREF acedGetRGB(int colorIndex) {
    const Tessaly::Rgb color = Tessaly::AciColor(colorIndex, Tessaly::Background::Dark);
    return (color >> 16 & 0xFFU) | (color & 0xFF00U) | (color & 0xFFU) << 16;
}
