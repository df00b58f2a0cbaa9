#include "platform/win/Library.h"

#include <algorithm>
#include <cstring>
#include <elf.h>
#include <gtest/gtest.h>

#include "platform/win/ErrorText.h"
#include "platform/win/FileVersion.h"
#include "tests/support/TestHost.h"

namespace {

constexpr const char* kModule = TESSALY_STAGE_DIR "/ORVZConversion.arx";

std::string ModuleBytes() {
    std::ostringstream bytes;
    bytes << std::ifstream(kModule, std::ios::binary).rdbuf();
    return bytes.str();
}

/// End of the last mapped segment; the rest of the file is not needed for loading.
std::size_t LoadedEnd(const std::string& module) {
    Elf64_Ehdr header{};
    std::memcpy(&header, module.data(), sizeof header);
    std::size_t end = 0;
    for (std::size_t i = 0; i < header.e_phnum; ++i) {
        Elf64_Phdr segment{};
        std::memcpy(&segment, module.data() + header.e_phoff + i * sizeof segment, sizeof segment);
        end = segment.p_type == PT_LOAD ? std::max(end, segment.p_offset + segment.p_filesz) : end;
    }
    return end;
}

} // namespace

TEST(FileVersion, IsReadWithoutLoadingTheModule) {
    const auto version = ReadFileVersion(Utf8ToWide(kModule).c_str());
    ASSERT_TRUE(version);
    EXPECT_EQ(version->major, 8);
    EXPECT_EQ(ReadFileVersionText(Utf8ToWide(kModule).c_str()).Str(), L"8.0.0.0");
}

TEST(FileVersion, IsEmptyForOtherFiles) {
    const TempFolder folder;
    folder.Write("empty", "");
    folder.Write("text", "not a module at all, but long enough for the header of one ..........");
    folder.Write("header", ModuleBytes().substr(0, 64));
    for (const char* name : {"none", "empty", "text", "header"}) {
        EXPECT_FALSE(ReadFileVersion(folder.Wide(name))) << name;
    }
    EXPECT_EQ(ReadFileVersionText(folder.Wide("text")).Str(), L"");
}

TEST(Library, ATruncatedFileIsNotLoaded) {
    const std::string whole = ModuleBytes();
    const TempFolder folder;
    const std::size_t end = LoadedEnd(whole);
    for (const std::size_t length : {std::size_t{0}, std::size_t{10}, std::size_t{64},
                                     std::size_t{300}, end / 4, end / 2, end - 1}) {
        folder.Write("cut.arx", whole.substr(0, length));
        SetLastErrorText(L"");
        EXPECT_EQ(LoadLibrary(folder.Wide("cut.arx")), nullptr) << length;
        EXPECT_NE(LastErrorText().Find(L"cut.arx"), -1) << length;
    }
    EXPECT_EQ(LoadLibrary(folder.Wide("none.arx")), nullptr);
    EXPECT_EQ(LastErrorText().Str(), L"No such file or directory");
}

TEST(Library, FindsOwnEntriesButNotThoseOfDependencies) {
    HINSTANCE library = LoadLibrary(Utf8ToWide(kModule).c_str());
    ASSERT_NE(library, nullptr);
    EXPECT_NE(GetProcAddress(library, "_ZN6Orvane20CAnsi2UnicodeUtility8InstanceEv"), nullptr);
    EXPECT_EQ(GetProcAddress(library, "malloc"), nullptr);
    EXPECT_EQ(GetProcAddress(library, "nothing"), nullptr);
    EXPECT_EQ(GetProcAddress(nullptr, "malloc"), nullptr);
    EXPECT_TRUE(FreeLibrary(library));
    EXPECT_FALSE(FreeLibrary(nullptr));
}
