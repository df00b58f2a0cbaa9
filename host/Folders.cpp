#include "host/Folders.h"

#include <cstdlib>
#include <filesystem>

#include "platform/win/CodePage.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace fs = std::filesystem;

namespace {

CString ToText(const fs::path& path) {
    return WidePath(path.string());
}

} // namespace

CString ProgramFolder() {
    std::error_code ignored;
    return WithSeparator(ToText(fs::read_symlink("/proc/self/exe", ignored).parent_path()));
}

CString UserSupportFolder() {
    const char* const data = std::getenv("XDG_DATA_HOME");
    const char* const home = std::getenv("HOME");
    fs::path base = data && *data   ? fs::path(data)
                    : home && *home ? fs::path(home) / ".local/share"
                                    : fs::temp_directory_path();
    return WithSeparator(ToText(base / "tessaly/support"));
}

bool FillSupportFolder(const CString& defaults, const CString& support) {
    std::error_code error;
    const fs::path target = NativePath(support);
    fs::create_directories(target, error);
    if (error) {
        SetLastErrorText(support + L": " + ErrorNumberText(error.value()));
        return false;
    }
    for (const fs::directory_entry& file : fs::directory_iterator(NativePath(defaults), error)) {
        const fs::path copy = target / file.path().filename();
        // Folders are copied only as a whole, so files the user has deleted do not come back.
        if (!fs::exists(copy)) {
            fs::copy(file.path(), copy, fs::copy_options::recursive, error);
            if (error) {
                SetLastErrorText(ToText(copy) + L": " + ErrorNumberText(error.value()));
                return false;
            }
        }
    }
    return true;
}

} // namespace Tessaly
