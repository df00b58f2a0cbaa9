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
        return Utf8ToWide(whole.string()); // a folder, which whoever opens it will say
    }
    const fs::path folder = fs::weakly_canonical(whole.parent_path(), error);
    if (!error) {
        whole = folder / name;
    }
    // A file that is there is meant by its name; to a new one belongs the extension.
    const bool hasExtension =
        CString(Utf8ToWide(name.extension().string())).CompareNoCase(extension) == 0;
    if (!hasExtension && !fs::exists(whole, error)) {
        whole += WideToUtf8(extension.View());
    }
    return Utf8ToWide(whole.string());
}
