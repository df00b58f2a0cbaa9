#include "plugins/network/NetworkFormats.h"

#include "plugins/network/InpReader.h"
#include "plugins/network/NetworkDrawing.h"

namespace Orvane::Network {

namespace {

NetworkFile ReadInpNetwork(const wchar_t* path, const AcDbProgress& progress) {
    InpResult read = ReadInpFile(path, progress);
    NetworkFile file;
    file.ok = read.ok;
    file.function = read.format == InpFormat::Swmm ? kFunctionSewer : kFunctionWater;
    file.warnings = ProblemTexts(read, Severity::Warning);
    file.errors = ProblemTexts(read, Severity::Error);
    file.model = std::move(read.model);
    return file;
}

/// To add a format, add a row with a reader that returns a NetworkFile.
constexpr NetworkFormat kFormats[] = {
    {L".inp", ReadInpNetwork}, // EPANET and SWMM
};

} // namespace

const NetworkFormat* NetworkFormatOf(const CString& file) {
    for (const NetworkFormat& format : kFormats) {
        const CString extension = format.extension;
        if (file.Right(extension.GetLength()).CompareNoCase(extension) == 0) {
            return &format;
        }
    }
    return nullptr;
}

const NetworkFormat& DefaultNetworkFormat() {
    return kFormats[0];
}

} // namespace Orvane::Network
