// The file formats that hold a complete network, with their readers.
#pragma once

#include <string>
#include <vector>

#include "platform/arx/DbStorage.h"
#include "plugins/network/NetworkModel.h"

namespace Orvane::Network {

/// The result of reading a file. Texts are UTF-8 and name file and line.
struct NetworkFile {
    bool ok = false; ///< false: there are errors and the model is empty
    NetworkModel model;
    int function = 0; ///< of the line system to create
    std::vector<std::string> warnings;
    std::vector<std::string> errors;
};

struct NetworkFormat {
    const wchar_t* extension; ///< case-insensitive
    /// \param progress called with 0 to 100; if it returns false, reading stops with an error
    NetworkFile (*read)(const wchar_t* path, const AcDbProgress& progress);
};

/// The format with the file's extension; null if there is none.
const NetworkFormat* NetworkFormatOf(const CString& file);
/// The format to try when nothing else can read the file.
const NetworkFormat& DefaultNetworkFormat();

} // namespace Orvane::Network
