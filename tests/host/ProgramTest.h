// Runs the program as a user does, for tests of its commands.
#pragma once

#include <cstdio>
#include <gtest/gtest.h>

#include "tests/support/TestHost.h"

namespace Tessaly {

/// Runs the real program and captures its output.
class ProgramTest : public testing::Test {
protected:
    int Run(const std::string& arguments, const std::string& input = "") {
        return RunIn("", "--console " + arguments, input);
    }
    /// \param environment assignments in shell syntax, placed before the command
    int RunIn(const std::string& environment, const std::string& arguments,
              const std::string& input = "") {
        m_folder.Write("input", input);
        const std::string command = environment + " " TESSALY_STAGE_DIR "/tessaly --support " +
                                    m_folder.Native("support") + " " + arguments + " < " +
                                    m_folder.Native("input") + " > " + m_folder.Native("output") +
                                    " 2>&1";
        const int status = std::system(command.c_str());
        m_output = m_folder.Read("output");
        return WEXITSTATUS(status);
    }
    int RunScript(const std::string& lines) {
        m_folder.Write("script.scr", lines);
        return Run("--script " + m_folder.Native("script.scr"));
    }
    /// Creates an installation whose only plug-in is a test plug-in; pass the result to
    /// "--install".
    std::string InstallOnly(const std::string& fixture) {
        Run("", "QUIT\n"); // creates the settings
        // Registry names are relative to the modules' folder, so replace that by "/".
        m_folder.Write("support/ModuleRegistry.xml",
                       "<moduleRegistry ><module on=\"1\" fileName=\"" TESSALY_FIXTURES_DIR "/" +
                           fixture + "\" ></module></moduleRegistry>");
        const std::string install = m_folder.Native("install");
        std::filesystem::create_directories(install + TESSALY_FIXTURES_DIR);
        for (const auto& entry : std::filesystem::directory_iterator(TESSALY_STAGE_DIR)) {
            std::filesystem::create_symlink(entry.path(),
                                            install + "/" + entry.path().filename().string());
        }
        std::filesystem::create_symlink(TESSALY_FIXTURES_DIR "/" + fixture,
                                        install + TESSALY_FIXTURES_DIR "/" + fixture);
        return install;
    }
    bool Printed(const std::string& text) const { return m_output.find(text) != std::string::npos; }

    int Count(const std::string& text) const {
        int count = 0;
        for (std::size_t at = m_output.find(text); at != std::string::npos;
             at = m_output.find(text, at + text.size())) {
            ++count;
        }
        return count;
    }

    TempFolder m_folder;
    std::string m_output;
};

} // namespace Tessaly
