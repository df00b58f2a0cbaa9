#include "platform/arx/DrawingPath.h"

#include <filesystem>

#include "platform/win/CodePage.h"
#include "platform/win/File.h"

namespace fs = std::filesystem;

CString acdbDrawingPath(const wchar_t* path, const CString& extension) {
    if (!path || !*path) {
        return {};
    }
    std::error_code error;
    fs::path whole = fs::absolute(NativePath(path), error);
    const fs::path name = whole.filename();
    if (name.empty() || name == "." || name == "..") {
        return WidePath(whole.string()); // a folder: reported by the code that tries to open it
    }
    const fs::path folder = fs::weakly_canonical(whole.parent_path(), error);
    if (!error) {
        whole = folder / name;
    }
    // An existing file is meant by its exact name; only a new one gets the extension.
    const bool hasExtension = WidePath(name.extension().string()).CompareNoCase(extension) == 0;
    if (!hasExtension && !fs::exists(whole, error)) {
        whole += WideToUtf8(extension.View());
    }
    return WidePath(whole.string());
}
