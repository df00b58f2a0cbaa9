// Choosing one of the 255 colours that drawings share.
#pragma once

#include "platform/Api.h"

/// Lets the user choose a colour. Without a desktop its index is asked for at the prompt.
/// \param nColor the present index, from 1 to 255, and the chosen one
/// \param bAllowMetaColor taken as false: there is no choice "by layer" or "by block"
/// \param nCurLayerColor of no use without that choice
/// \return false, and the index stays, if the user cancels
PLATFORM_API bool acedSetColorDialog(int& nColor, bool bAllowMetaColor, int nCurLayerColor);
