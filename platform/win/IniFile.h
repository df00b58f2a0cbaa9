// Settings files: sections of "key=value" lines in UTF-8; ";" or "#" starts a comment.
#pragma once

#include <vector>

#include "platform/win/String.h"

/// One settings file as read. Sections and keys keep their order in the file and are found ignoring
/// case; of duplicate keys in a section, the first counts.
class PLATFORM_API IniFile {
public:
    struct Entry {
        CString key;
        CString value;
        int line;
    };
    struct Section {
        CString name;
        int line;
        std::vector<Entry> entries;
        const Entry* Find(const wchar_t* key) const;
    };

    /// Reads a file. Malformed lines are skipped and noted in GetProblems. False if the file cannot
    /// be read; LastErrorText then gives the reason.
    bool Load(const wchar_t* path);
    /// Parses the content of a file; `name` identifies it in problems.
    void Parse(std::string_view utf8, const wchar_t* name);

    const std::vector<Section>& GetSections() const { return m_sections; }
    const Section* FindSection(const wchar_t* name) const;
    /// The value of a key; null if the section or the key does not exist.
    const CString* Find(const wchar_t* section, const wchar_t* key) const;
    /// One text for each skipped line: file, line and reason.
    const std::vector<CString>& GetProblems() const { return m_problems; }

private:
    void ReadLine(std::string_view line, int number, const wchar_t* name);

    std::vector<Section> m_sections;
    std::vector<CString> m_problems;
};

/// The content of a settings file with one value changed, or added at the end of its section.
/// Everything else is preserved, including comments.
PLATFORM_API std::string WithIniValue(std::string_view utf8, const wchar_t* section,
                                      const wchar_t* key, const CString& value);
