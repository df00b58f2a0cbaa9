// Choice of one of the 255 colours shared by all drawings.
#pragma once

#include "platform/Api.h"

/// Lets the user choose a colour. Without a desktop, the prompt asks for its index.
/// \param nColor in: the current index, from 1 to 255; out: the chosen one
/// \param bAllowMetaColor taken as false: "by layer" and "by block" are not offered
/// \param nCurLayerColor unused, as "by layer" is not offered
/// \return false, with nColor unchanged, if the user cancels
PLATFORM_API bool acedSetColorDialog(int& nColor, bool bAllowMetaColor, int nCurLayerColor);
