#include "siblings/logging/LogEngine.h"

#include <gtest/gtest.h>

#include "tests/support/TestHost.h"

using Orvane::CLogEngine;

TEST(LogEngine, WithoutSettingsNothingIsTraced) {
    const TestHost host;
    EXPECT_EQ(CLogEngine::GetLoggingOnOff(), 0);
    EXPECT_EQ(CLogEngine::GetLogFileFullPath(), (host.Support() / "trace.log").string());
}

TEST(LogEngine, TheSettingsSwitchAndNameTheFile) {
    const TestHost host;
    host.Support().Write("Settings.ini", "[Logging]\non=1\nfile=sub\\own.log\n");
    // Asking for the path reads the settings, too.
    EXPECT_EQ(CLogEngine::GetLogFileFullPath(), (host.Support() / "sub/own.log").string());
    EXPECT_EQ(CLogEngine::GetLoggingOnOff(), 1);
}

TEST(LogEngine, AnAbsoluteFileStaysWhereItIs) {
    const TestHost host;
    host.Support().Write("Settings.ini", "[Logging]\non=0\nfile=/elsewhere/a.log\n");
    EXPECT_EQ(CLogEngine::GetLoggingOnOff(), 0);
    EXPECT_EQ(CLogEngine::GetLogFileFullPath(), "/elsewhere/a.log");
}

TEST(LogEngine, TheHostsTraceFileWins) {
    const TestHost host;
    host.Support().Write("Settings.ini", "[Logging]\non=0\nfile=/elsewhere/a.log\n");
    SetHostOption(kHostOptionTrace, L"asked.log");
    EXPECT_EQ(CLogEngine::GetLoggingOnOff(), 1);
    EXPECT_EQ(CLogEngine::GetLogFileFullPath(),
              (std::filesystem::current_path() / "asked.log").string());
}

TEST(LogEngine, BothCanBeChangedLater) {
    const TestHost host;
    EXPECT_EQ(CLogEngine::GetLoggingOnOff(), 0);
    CLogEngine::SetLogging(1, "/tmp/x.log");
    EXPECT_EQ(CLogEngine::GetLoggingOnOff(), 1);
    EXPECT_EQ(CLogEngine::GetLogFileFullPath(), "/tmp/x.log");
}

TEST(LogEngine, VersionsAreRead) {
    const TestHost host;
    EXPECT_EQ(CLogEngine::GetTessalyVersion(), "8.0.0.0");
    const std::string system = CLogEngine::GetWindowsVersion();
    EXPECT_EQ(system.find("Linux "), 0U) << system;
    EXPECT_NE(system.find('.'), std::string::npos) << system;
    EXPECT_EQ(CLogEngine::GetIsTessaly64bit(), "1");
    SetHostOption(kHostOptionInstall, host.Support().Wide(""));
    EXPECT_EQ(CLogEngine::GetTessalyVersion(), "");
}
