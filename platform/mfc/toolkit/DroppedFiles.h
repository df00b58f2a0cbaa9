// The files of a drop. For sources only.
#pragma once

#include <vector>

#include "platform/win/String.h"

struct DroppedFiles {
    std::vector<CString> paths;
};

/// The files of the current drop.
inline DroppedFiles& FilesInHand() {
    static DroppedFiles files;
    return files;
}
