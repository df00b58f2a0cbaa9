// The files of a drop. For sources only.
#pragma once

#include <vector>

#include "platform/win/String.h"

struct DroppedFiles {
    std::vector<CString> paths;
};

/// Those of the drop in hand.
inline DroppedFiles& FilesInHand() {
    static DroppedFiles files;
    return files;
}
