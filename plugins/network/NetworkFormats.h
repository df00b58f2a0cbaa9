// The kinds of files that hold a whole network, by what reads them.
#pragma once

#include <string>
#include <vector>

#include "platform/arx/DbStorage.h"
#include "plugins/network/NetworkModel.h"

namespace Orvane::Network {

/// What a reader found. Texts are UTF-8 and name file and line.
struct NetworkFile {
    bool ok = false; ///< false: there is an error and the model is empty
    NetworkModel model;
    int function = 0; ///< of the line system that it becomes
    std::vector<std::string> warnings;
    std::vector<std::string> errors;
};

struct NetworkFormat {
    const wchar_t* extension; ///< case does not count
    /// \param progress told from 0 to 100; once it answers false, reading ends with an error
    NetworkFile (*read)(const wchar_t* path, const AcDbProgress& progress);
};

/// The format whose extension a file has; null for a file that is none of them.
const NetworkFormat* NetworkFormatOf(const CString& file);
/// For files of any name, where nothing else can read them.
const NetworkFormat& DefaultNetworkFormat();

} // namespace Orvane::Network
