#include "siblings/giscore/repository/RepositoryFolder.h"

#include <algorithm>

#include "platform/win/CodePage.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"
#include "siblings/giscore/repository/RepositoryMessages.h"
#include "siblings/giscore/utility/Guid.h"

namespace Orvane {

namespace {

constexpr const wchar_t* kNoFolder = L": there is no such folder";
constexpr std::wstring_view kSuffix = L".xml";

/// What stands before ".xml" if that can be a GUID, else an empty text.
CString GuidOf(const CString& fileName) {
    std::wstring_view name = fileName.View();
    if (!name.ends_with(kSuffix)) {
        return {};
    }
    name.remove_suffix(kSuffix.size());
    return IsGuid(name) ? CString(name) : CString();
}

} // namespace

CRepositoryFolder::CRepositoryFolder(const wchar_t* tag, const CString& folder, CString problemKey,
                                     MissingFolder missing)
    : CRepositoryStore(tag), m_strRoot(folder), m_missing(missing),
      m_strFolder(WithSeparator(folder) + tag + L"/"), m_strProblemKey(std::move(problemKey)) {
    Reload();
}

bool CRepositoryFolder::LacksRoot() const {
    return m_missing == MissingFolder::IsAProblem && !FileExists(m_strRoot);
}

void CRepositoryFolder::Reload() {
    m_entries.clear();
    m_unreadable.clear();
    if (LacksRoot()) {
        m_unreadable.push_back(m_strRoot + kNoFolder);
    } else if (FileExists(m_strFolder)) {
        const auto names = ListFileNames(m_strFolder);
        if (!names) {
            m_unreadable.push_back(m_strFolder + L": " + LastErrorText());
        }
        for (const CString& name : names.value_or(std::vector<CString>())) {
            ReadFile(name);
        }
    }
    GetItems(); // notes the problems
}

void CRepositoryFolder::ReadFile(const CString& name) {
    const CString path = m_strFolder + name;
    const CString guid = GuidOf(name);
    const auto bytes = guid.IsEmpty() ? std::nullopt : ReadFileBytes(path);
    if (bytes) {
        m_entries.push_back({path, guid, Utf8ToWide(*bytes)});
    } else {
        m_unreadable.push_back(
            path + L": " + (guid.IsEmpty() ? L"it is not named after a GUID" : LastErrorText()));
    }
}

CString CRepositoryFolder::PathOf(const CString& guid) const {
    return m_strFolder + guid + CString(kSuffix);
}

std::vector<CRepositoryStore::Entry>
CRepositoryFolder::Entries(std::vector<CString>& problems) const {
    problems = m_unreadable;
    return m_entries;
}

std::optional<CString> CRepositoryFolder::TextOf(const CString& guid) const {
    for (const Entry& entry : m_entries) {
        if (entry.guid.CompareNoCase(guid) == 0) {
            return entry.text;
        }
    }
    return std::nullopt;
}

CString CRepositoryFolder::Write(const CRepositoryItem& item) {
    if (LacksRoot()) {
        return RepositoryMessage(kMsgItemNotWritten, item.GetName(), m_strRoot + kNoFolder);
    }
    const CString text = item.GetXML();
    const CString path = PathOf(item.GetGuid());
    if (!IsGuid(item.GetGuid().View()) || !MakeFolder(m_strFolder) ||
        !ReplaceFileBytes(path, WideToUtf8(text.View()))) {
        return RepositoryMessage(kMsgItemNotWritten, item.GetName(), LastErrorText());
    }
    std::erase_if(m_entries, [&](const Entry& entry) { return entry.source == path; });
    m_entries.push_back({path, item.GetGuid(), text});
    return {};
}

CString CRepositoryFolder::Erase(const CRepositoryItem& item) {
    const CString path = PathOf(item.GetGuid());
    if (FileExists(path) && !RemoveFile(path)) {
        return RepositoryMessage(kMsgItemNotWritten, item.GetName(), LastErrorText());
    }
    std::erase_if(m_entries, [&](const Entry& entry) { return entry.source == path; });
    return {};
}

} // namespace Orvane
