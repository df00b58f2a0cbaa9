// Settings files: sections of "key=value" lines, UTF-8, ";" or "#" before a comment.
#pragma once

#include <vector>

#include "platform/win/String.h"

/// One settings file as it was read. Sections and keys keep their order in the file and
/// are found without regard to case; a key that stands twice in a section counts once,
/// the first time.
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

    /// Reads a file. A line that is neither section, entry, comment nor blank is noted in
    /// GetProblems and passed over. False if the file cannot be read; LastErrorText tells why.
    bool Load(const wchar_t* path);
    /// Reads the content of a file; `name` is what problems call it.
    void Parse(std::string_view utf8, const wchar_t* name);

    const std::vector<Section>& GetSections() const { return m_sections; }
    const Section* FindSection(const wchar_t* name) const;
    /// The value of a key; null if the section or the key is not there.
    const CString* Find(const wchar_t* section, const wchar_t* key) const;
    /// One text for each line that was passed over: file, line and reason.
    const std::vector<CString>& GetProblems() const { return m_problems; }

private:
    void ReadLine(std::string_view line, int number, const wchar_t* name);

    std::vector<Section> m_sections;
    std::vector<CString> m_problems;
};

/// The content of a settings file with one value changed, or added behind the others of its
/// section. Everything else stays as it was written, comments included.
PLATFORM_API std::string WithIniValue(std::string_view utf8, const wchar_t* section,
                                      const wchar_t* key, const CString& value);
