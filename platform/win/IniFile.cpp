#include "platform/win/IniFile.h"

#include <algorithm>

#include "platform/win/CodePage.h"
#include "platform/win/File.h"
#include "platform/win/PlatformTexts.h"

namespace {

CString Trimmed(std::string_view text) {
    return CString(Utf8ToWide(text)).Trim();
}

} // namespace

const IniFile::Entry* IniFile::Section::Find(const wchar_t* key) const {
    const auto hit = std::find_if(entries.begin(), entries.end(), [&](const Entry& entry) {
        return entry.key.CompareNoCase(key) == 0;
    });
    return hit == entries.end() ? nullptr : &*hit;
}

bool IniFile::Load(const wchar_t* path) {
    const auto bytes = ReadFileBytes(path);
    if (!bytes) {
        return false;
    }
    Parse(*bytes, path);
    return true;
}

void IniFile::Parse(std::string_view utf8, const wchar_t* name) {
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    m_sections.clear();
    m_problems.clear();
    if (utf8.substr(0, kByteOrderMark.size()) == kByteOrderMark) {
        utf8.remove_prefix(kByteOrderMark.size());
    }
    for (int number = 1; !utf8.empty(); ++number) {
        const std::size_t end = utf8.find('\n');
        ReadLine(utf8.substr(0, end), number, name);
        utf8.remove_prefix(end == std::string_view::npos ? utf8.size() : end + 1);
    }
}

void IniFile::ReadLine(std::string_view line, int number, const wchar_t* name) {
    const CString text = Trimmed(line);
    if (text.IsEmpty() || text.GetAt(0) == L';' || text.GetAt(0) == L'#') {
        return;
    }
    if (text.GetAt(0) == L'[' && text.GetAt(text.GetLength() - 1) == L']') {
        m_sections.push_back({text.Mid(1, text.GetLength() - 2).Trim(), number, {}});
        return;
    }
    const int equals = text.Find(L'=');
    if (equals <= 0 || m_sections.empty()) {
        m_problems.push_back(
            MessageText(equals <= 0 ? PlatformMsg::NotKeyAndValue : PlatformMsg::ValueBeforeSection,
                        name, number));
        return;
    }
    m_sections.back().entries.push_back(
        {text.Left(equals).Trim(), text.Mid(equals + 1).Trim(), number});
}

const IniFile::Section* IniFile::FindSection(const wchar_t* name) const {
    const auto hit =
        std::find_if(m_sections.begin(), m_sections.end(),
                     [&](const Section& section) { return section.name.CompareNoCase(name) == 0; });
    return hit == m_sections.end() ? nullptr : &*hit;
}

const CString* IniFile::Find(const wchar_t* section, const wchar_t* key) const {
    const Section* found = FindSection(section);
    const Entry* entry = found ? found->Find(key) : nullptr;
    return entry ? &entry->value : nullptr;
}

namespace {

/// Offset of the start of a line, counted from 1; the end of the text if there are fewer lines.
std::size_t StartOfLine(std::string_view text, int line) {
    std::size_t place = 0;
    for (int number = 1; number < line; ++number) {
        const std::size_t end = text.find('\n', place);
        if (end == std::string_view::npos) {
            return text.size();
        }
        place = end + 1;
    }
    return place;
}

} // namespace

std::string WithIniValue(std::string_view utf8, const wchar_t* section, const wchar_t* key,
                         const CString& value) {
    IniFile file;
    file.Parse(utf8, L"");
    const std::string_view lineEnd = utf8.find("\r\n") == std::string_view::npos ? "\n" : "\r\n";
    const IniFile::Section* const pSection = file.FindSection(section);
    const IniFile::Entry* const pEntry = pSection ? pSection->Find(key) : nullptr;
    std::string line = WideToUtf8((pEntry ? pEntry->key : CString(key)).View()) + "=" +
                       WideToUtf8(value.View()) + std::string(lineEnd);
    std::string text(utf8);
    if (!text.empty() && text.back() != '\n') {
        text += lineEnd;
    }
    if (pEntry) {
        const std::size_t start = StartOfLine(text, pEntry->line);
        return text.replace(start, StartOfLine(text, pEntry->line + 1) - start, line);
    }
    if (pSection) {
        const int last = pSection->entries.empty() ? pSection->line : pSection->entries.back().line;
        return text.insert(StartOfLine(text, last + 1), line);
    }
    return text + "[" + WideToUtf8(section) + "]" + std::string(lineEnd) + line;
}
