// A host for tests with scripted answers, captured output and a temporary support folder.
#pragma once

#include <cstdlib>
#include <deque>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

#include "platform/arx/HostOptions.h"
#include "platform/arx/HostPort.h"
#include "platform/win/CodePage.h"

/// A temporary folder, deleted at the end of its lifetime.
class TempFolder {
public:
    TempFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "tessaly-XXXXXX").string();
        if (!mkdtemp(name.data())) {
            throw std::runtime_error("cannot create a temporary folder");
        }
        m_path = name;
    }
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    std::filesystem::path operator/(const std::string& name) const { return m_path / name; }
    CString Wide(const std::string& name) const { return Utf8ToWide((m_path / name).string()); }
    std::string Native(const std::string& name) const { return (m_path / name).string(); }
    void Write(const std::string& name, const std::string& content) const {
        std::ofstream(m_path / name, std::ios::binary) << content;
    }
    std::string Read(const std::string& name) const {
        std::ostringstream text;
        text << std::ifstream(m_path / name, std::ios::binary).rdbuf();
        return text.str();
    }
    bool Has(const std::string& name) const { return std::filesystem::exists(m_path / name); }

private:
    std::filesystem::path m_path;
};

class TestHost final : public IHostPort {
public:
    TestHost() {
        m_pBefore = SetHostPort(this);
        SetHostOption(kHostOptionSupport, m_support.Wide(""));
        SetHostOption(kHostOptionInstall, L"" TESSALY_STAGE_DIR "/");
    }
    ~TestHost() override { SetHostPort(m_pBefore); }
    TestHost(const TestHost&) = delete;
    TestHost& operator=(const TestHost&) = delete;

    const TempFolder& Support() const { return m_support; }
    std::string Output() const { return WideToUtf8(m_output); }
    std::string TakeOutput() { return WideToUtf8(std::exchange(m_output, {})); }
    const std::vector<std::wstring>& Alerts() const { return m_alerts; }
    int Escapes() const { return m_nEscapes; }
    /// Adds answers to prompts; L"\x1B" stands for Escape.
    void Answer(std::initializer_list<const wchar_t*> answers) {
        m_answers.insert(m_answers.end(), answers.begin(), answers.end());
    }
    bool AllAnswered() const { return m_answers.empty(); }

    void Print(std::wstring_view text) override { m_output += text; }
    PromptEnd GetString(bool, std::wstring_view prompt, CString& answer) override {
        m_output += prompt;
        if (m_answers.empty()) {
            throw std::runtime_error("unexpected prompt");
        }
        answer = m_answers.front();
        m_answers.pop_front();
        return answer == L"\x1B" ? PromptEnd::Cancelled : PromptEnd::Answered;
    }
    void Alert(std::wstring_view text, std::wstring_view) override { m_alerts.emplace_back(text); }
    void Escape() override { ++m_nEscapes; }
    bool IsPrompting() const override { return m_isPrompting; }
    void CancelPrompts() override { ++m_nCancelled; }

    /// Simulates a prompt waiting outside any command.
    bool m_isPrompting = false;
    int m_nCancelled = 0;

private:
    TempFolder m_support;
    IHostPort* m_pBefore = nullptr;
    std::wstring m_output;
    std::vector<std::wstring> m_alerts;
    int m_nEscapes = 0;
    std::deque<CString> m_answers;
};
