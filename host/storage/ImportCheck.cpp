#include "host/storage/ImportCheck.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <gdal_priv.h>

#include "host/Texts.h"
#include "host/storage/FileChecks.h"

namespace Tessaly {

namespace {

/// What is wrong with a file in the text form of DXF. GDAL's reader never comes back from a
/// file that ends within the end of a line, or has a NUL there.
CString WhyNoDxf(std::ifstream& file) {
    std::array<char, 65536> part{};
    std::string tail;
    while (file.read(part.data(), part.size()), file.gcount() > 0) {
        const std::string_view read(part.data(), static_cast<std::size_t>(file.gcount()));
        if (read.find('\0') != read.npos) {
            return Text(Msg::BadDxf);
        }
        tail += read.substr(read.size() - std::min<std::size_t>(read.size(), 100));
        tail.erase(0, tail.size() - std::min<std::size_t>(tail.size(), 100));
    }
    const std::size_t end = tail.find_last_not_of(" \t\r\n");
    const bool isWhole =
        end != tail.npos && end >= 2 && tail.compare(end - 2, 3, "EOF") == 0 && tail.back() != '\r';
    return isWhole ? CString() : Text(Msg::DxfIsCut);
}

CString WhyNoFile(const std::string& path) {
    constexpr std::string_view kDatabase = "SQLite";
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return Text(Msg::CannotOpen);
    }
    std::array<char, kDatabase.size()> start{};
    file.read(start.data(), start.size());
    if (file.gcount() == 0) {
        return Text(Msg::IsEmpty);
    }
    if (std::string_view(start.data(), start.size()) == kDatabase) {
        return WhyNoDatabase(path);
    }
    // Asked alone: where another driver takes the file for its own and then cannot open it,
    // GDAL goes on to this one.
    static const char* const kDxf[] = {"DXF", nullptr};
    if (GDALIdentifyDriverEx(path.c_str(), GDAL_OF_VECTOR, kDxf, nullptr)) {
        file.clear();
        file.seekg(0);
        return WhyNoDxf(file);
    }
    return {};
}

} // namespace

CString WhyNotImportable(const std::string& path) {
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status)) {
        return Text(Msg::NoSuchFile);
    }
    if (std::filesystem::is_directory(status)) {
        return {};
    }
    // A pipe would be waited for.
    return std::filesystem::is_regular_file(status) ? WhyNoFile(path) : Text(Msg::NotRegularFile);
}

} // namespace Tessaly
