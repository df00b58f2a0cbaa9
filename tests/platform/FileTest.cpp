#include "platform/win/File.h"

#include <functional>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/win/ErrorText.h"
#include "platform/win/FileVersion.h"
#include "platform/win/IniFile.h"
#include "platform/win/Library.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"

TEST(File, ABackslashSeparatesFoldersToo) {
    const TempFolder folder;
    std::filesystem::create_directory(folder / "Öl");
    folder.Write("Öl/a.txt", "content");
    EXPECT_EQ(ReadFileBytes(folder.Wide("") + L"\\Öl\\a.txt"), "content");
    EXPECT_TRUE(FileExists(folder.Wide("Öl\\a.txt")));
    EXPECT_EQ(FileNameOf(L"a/b\\c.txt").Str(), L"c.txt");
    EXPECT_EQ(FileNameOf(L"a\\b/c.txt").Str(), L"c.txt");
    EXPECT_EQ(FileNameOf(L"c.txt").Str(), L"c.txt");
    EXPECT_EQ(FileNameOf(L"c/").Str(), L"");
    EXPECT_EQ(FileNameOf(nullptr).Str(), L"");
}

TEST(File, WithSeparatorAddsOneAtMost) {
    EXPECT_EQ(WithSeparator(L"").Str(), L"");
    EXPECT_EQ(WithSeparator(L"/a").Str(), L"/a/");
    EXPECT_EQ(WithSeparator(L"/a/").Str(), L"/a/");
    EXPECT_EQ(WithSeparator(L"a\\").Str(), L"a\\");
    EXPECT_EQ(WithSeparator(L"/").Str(), L"/");
}

TEST(File, AFailedReadSetsAReason) {
    const TempFolder folder;
    EXPECT_FALSE(ReadFileBytes(folder.Wide("none")));
    EXPECT_EQ(LastErrorText().Str(), L"No such file or directory");
    EXPECT_FALSE(ReadFileBytes(folder.Wide("")));
    EXPECT_EQ(LastErrorText().Str(), L"Is a directory");
    EXPECT_FALSE(ReadFileBytes(nullptr));
}

TEST(File, OnlyRegularFilesAreRead) {
    const TempFolder folder;
    ASSERT_EQ(mkfifo(folder.Native("pipe").c_str(), 0600), 0);
    std::filesystem::create_symlink("/dev/zero", folder / "device");
    alarm(30); // opening the pipe would block
    for (const char* const name : {"pipe", "device"}) {
        const CString path = folder.Wide(name);
        const std::pair<const char*, std::function<bool()>> readers[] = {
            {"bytes", [&] { return ReadFileBytes(path).has_value(); }},
            {"settings", [&] { return IniFile().Load(path); }},
            {"module", [&] { return LoadLibrary(path) != nullptr; }},
            {"version", [&] { return ReadFileVersion(path).has_value(); }}};
        for (const auto& [what, read] : readers) {
            SetLastErrorText(L"");
            EXPECT_FALSE(read()) << what << " of a " << name;
            EXPECT_EQ(LastErrorText(), L"not a regular file") << what << " of a " << name;
        }
    }
}

TEST(File, ErrorsAtTheVeryEndOfTheProcessAreHarmless) {
    EXPECT_EXIT(
        {
            // Modules save their data when unloaded, after the main thread's objects were
            // destroyed.
            SetLastErrorText(CString(L'x', 5000));
            std::atexit([] {
                ReadFileBytes(L"/none");
                std::_Exit(LastErrorText().IsEmpty() ? 7 : 8);
            });
            std::exit(0);
        },
        testing::ExitedWithCode(7), "");
}

TEST(File, ReadingAnEmptyFileSucceeds) {
    const TempFolder folder;
    folder.Write("empty", "");
    EXPECT_EQ(ReadFileBytes(folder.Wide("empty")), "");
}

TEST(IniFile, ReadsSectionsInOrder) {
    IniFile file;
    file.Parse("\xEF\xBB\xBF; comment\r\n[ One ]\r\n key = a=b \r\nKEY=second\r\n# c\n"
               "[two]\nempty=\nlast=Straße",
               L"x.ini");
    EXPECT_TRUE(file.GetProblems().empty());
    ASSERT_EQ(file.GetSections().size(), 2U);
    EXPECT_EQ(file.GetSections()[0].name.Str(), L"One");
    EXPECT_EQ(file.GetSections()[1].line, 6);
    EXPECT_EQ(file.GetSections()[1].entries[1].line, 8);
    EXPECT_EQ(file.Find(L"ONE", L"Key")->Str(), L"a=b"); // the first of two
    EXPECT_EQ(file.Find(L"two", L"empty")->Str(), L"");
    EXPECT_EQ(file.Find(L"two", L"last")->Str(), L"Straße");
    EXPECT_EQ(file.Find(L"two", L"key"), nullptr);
    EXPECT_EQ(file.Find(L"three", L"key"), nullptr);
}

TEST(IniFile, ReportsEachSkippedLine) {
    IniFile file;
    file.Parse("early=1\n[a]\nno equals\n=no key\n[unclosed\nk=v\n", L"f.ini");
    ASSERT_EQ(file.GetProblems().size(), 4U);
    const wchar_t* const places[] = {L"f.ini:1: ", L"f.ini:3: ", L"f.ini:4: ", L"f.ini:5: "};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(file.GetProblems()[i].Find(places[i]), 0) << i;
    }
    EXPECT_EQ(file.Find(L"a", L"k")->Str(), L"v");
}

TEST(IniFile, LoadingAgainReplacesTheContent) {
    const TempFolder folder;
    folder.Write("a.ini", "[s]\nk=1\nbad\n");
    IniFile file;
    ASSERT_TRUE(file.Load(folder.Wide("a.ini")));
    file.Parse("[t]\n", L"b");
    EXPECT_EQ(file.Find(L"s", L"k"), nullptr);
    EXPECT_TRUE(file.GetProblems().empty());
    EXPECT_FALSE(file.Load(folder.Wide("none.ini")));
}

TEST(File, SetsAFileAsideUnderTheFirstFreeName) {
    const TempFolder folder;
    folder.Write("a.damaged-1", "earlier");
    std::filesystem::create_directory(folder / "a.damaged-2");
    std::filesystem::create_symlink("nowhere", folder / "a.damaged-3");
    folder.Write("a", "content");
    EXPECT_EQ(SetFileAside(folder.Wide("a"), L".damaged-"), folder.Wide("a.damaged-4"));
    EXPECT_FALSE(folder.Has("a"));
    EXPECT_EQ(folder.Read("a.damaged-1"), "earlier");
    EXPECT_EQ(folder.Read("a.damaged-4"), "content");

    EXPECT_FALSE(SetFileAside(folder.Wide("a"), L".damaged-"));
    EXPECT_EQ(LastErrorText().Str(), L"No such file or directory");
    EXPECT_FALSE(SetFileAside(folder.Wide("a.damaged-2"), L".damaged-"));
    EXPECT_TRUE(folder.Has("a.damaged-2"));
}

TEST(IniFile, ChangingAValuePreservesEverythingElse) {
    const Rows<const char*, const char*, const char*> cases = {
        {"a value", "; a\n[General]\nx = 1\n Key=old \ny=2\n",
         "; a\n[General]\nx = 1\nKey=ä=b\ny=2\n"},
        {"case of the names", "[GENERAL]\nKEY=1", "[GENERAL]\nKEY=ä=b\n"},
        {"the first of two", "[General]\nkey=1\nkey=2\n", "[General]\nkey=ä=b\nkey=2\n"},
        {"another section's", "[A]\nkey=1\n[General]\n", "[A]\nkey=1\n[General]\nkey=ä=b\n"},
        {"a new key, before the comment that follows", "[General]\nx=1\n; end\n[B]\n",
         "[General]\nx=1\nkey=ä=b\n; end\n[B]\n"},
        {"no section", "[A]\nx=1", "[A]\nx=1\n[General]\nkey=ä=b\n"},
        {"no file", "", "[General]\nkey=ä=b\n"},
        {"other line ends", "[General]\r\nkey=1\r\nx=1\r\n", "[General]\r\nkey=ä=b\r\nx=1\r\n"},
        {"a malformed line", "[General]\n???\nkey=1\n", "[General]\n???\nkey=ä=b\n"},
        {"a byte order mark", "\xEF\xBB\xBF[General]\nkey=1\n", "\xEF\xBB\xBF[General]\nkey=ä=b\n"},
    };
    for (const auto& [what, before, after] : cases) {
        const std::string text = WithIniValue(before, L"General", L"key", L"ä=b");
        EXPECT_EQ(text, after) << what;
        IniFile file;
        file.Parse(text, L"");
        EXPECT_EQ(*file.Find(L"General", L"key"), L"ä=b") << what;
    }
}
