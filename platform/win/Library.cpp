#include "platform/win/Library.h"

#include <dlfcn.h>
#include <link.h>

#include "platform/win/CodePage.h"
#include "platform/win/ElfFile.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"
#include "platform/win/PlatformTexts.h"

namespace {

bool HasItsWholeLength(const wchar_t* path) {
    const FileHandle file = OpenRegularFile(path);
    if (!file) {
        return false;
    }
    const std::optional<ElfFile> elf = ElfFile::Read(file.get());
    CString reason;
    if (!elf) {
        reason = MessageText(PlatformMsg::NotALibrary, path);
    } else if (elf->IsCut()) {
        reason = MessageText(PlatformMsg::LibraryIsCut, path, elf->fileLength, elf->loadedEnd);
    }
    SetLastErrorText(reason);
    return reason.IsEmpty();
}

} // namespace

HINSTANCE LoadLibrary(const wchar_t* path) {
    if (!HasItsWholeLength(path)) {
        return nullptr;
    }
    // The loader would search a path without a slash in the library path.
    std::string native = NativePath(path);
    if (native.find('/') == std::string::npos) {
        native.insert(0, "./");
    }
    HINSTANCE library = dlopen(native.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        SetLastErrorText(Utf8ToWide(dlerror()));
    }
    return library;
}

void* GetProcAddress(HINSTANCE library, const char* name) {
    void* const address = library ? dlsym(library, name) : nullptr;
    // dlsym also searches the library's dependencies and could return another module's entry.
    link_map* own = nullptr;
    Dl_info found{};
    link_map* owner = nullptr;
    const bool isOwn =
        address && dlinfo(library, RTLD_DI_LINKMAP, &own) == 0 &&
        dladdr1(address, &found, reinterpret_cast<void**>(&owner), RTLD_DL_LINKMAP) != 0 &&
        owner == own;
    return isOwn ? address : nullptr;
}

CString LibraryOfAddress(const void* address) {
    Dl_info found{};
    const bool isFound = dladdr(address, &found) != 0 && found.dli_fname;
    return isFound ? FileNameOf(CString(Utf8ToWide(found.dli_fname))) : CString();
}

bool FreeLibrary(HINSTANCE library) {
    return library && dlclose(library) == 0;
}
