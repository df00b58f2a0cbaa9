#include "siblings/giscore/repository/RepositoryFolder.h"

#include <algorithm>

#include "platform/win/CodePage.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"
#include "siblings/giscore/repository/RepositoryMessages.h"
#include "siblings/giscore/utility/GisTexts.h"
#include "siblings/giscore/utility/Guid.h"

namespace Orvane {

namespace {

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
      m_strFolder(WithSeparator(folder) + tag + L"/"), m_strProblemKey(std::move(problemKey)),
      m_pEntries(std::make_shared<Entries>()) {
    Reload();
}

bool CRepositoryFolder::LacksRoot() const {
    return m_missing == MissingFolder::IsAProblem && !FileExists(m_strRoot);
}

void CRepositoryFolder::Reload() {
    const auto pOld = std::exchange(m_pEntries, std::make_shared<Entries>());
    m_unreadable.clear();
    if (LacksRoot()) {
        m_unreadable.push_back(MessageText(GisMsg::NoSuchFolder, m_strRoot));
    } else if (FileExists(m_strFolder)) {
        const auto names = ListFileNames(m_strFolder);
        if (!names) {
            m_unreadable.push_back(m_strFolder + L": " + LastErrorText());
        }
        for (const CString& name : names.value_or(std::vector<CString>())) {
            ReadFile(name, *pOld);
        }
    }
    Look(); // notes the problems
}

/// Takes what was found in the file before if it has stayed as it was. A file with a fault is
/// read again: the fault may have been that nobody made items of the family yet.
void CRepositoryFolder::ReadFile(const CString& name, const Entries& old) {
    const CString path = m_strFolder + name;
    const CString guid = GuidOf(name);
    // The stamp before the content: what changes in between is read again the next time.
    const auto stamp = FileStampOf(path);
    const auto known = m_stamps.find(path);
    const auto entry = old.find(CString(guid).MakeUpper());
    if (stamp && known != m_stamps.end() && known->second == *stamp && entry != old.end() &&
        entry->second.source == path && entry->second.fault.IsEmpty()) {
        AddEntry(*m_pEntries, entry->second, m_unreadable);
        return;
    }
    const auto bytes = guid.IsEmpty() ? std::nullopt : ReadFileBytes(path);
    if (!bytes) {
        m_unreadable.push_back(
            path + L": " +
            (guid.IsEmpty() ? MessageText(GisMsg::NotNamedAfterGuid) : LastErrorText()));
        return;
    }
    AddEntry(*m_pEntries, MakeEntry(path, guid, Utf8ToWide(*bytes)), m_unreadable);
    m_stamps.insert_or_assign(path, stamp.value_or(FileStamp()));
}

CString CRepositoryFolder::PathOf(const CString& guid) const {
    return m_strFolder + guid + CString(kSuffix);
}

std::shared_ptr<const CRepositoryStore::Entries>
CRepositoryFolder::GetEntries(std::vector<CString>& problems) const {
    problems = m_unreadable;
    return m_pEntries;
}

std::optional<CString> CRepositoryFolder::TextOf(const CString& guid) const {
    const auto hit = m_pEntries->find(CString(guid).MakeUpper());
    return hit == m_pEntries->end() ? std::nullopt : std::optional(hit->second.text);
}

CString CRepositoryFolder::Write(const CRepositoryItem& item) {
    if (LacksRoot()) {
        return RepositoryMessage(kMsgItemNotWritten, item.GetName(),
                                 MessageText(GisMsg::NoSuchFolder, m_strRoot));
    }
    const CString text = item.GetXML();
    const CString path = PathOf(item.GetGuid());
    if (!IsGuid(item.GetGuid().View()) || !MakeFolder(m_strFolder) ||
        !ReplaceFileBytes(path, WideToUtf8(text.View()))) {
        return RepositoryMessage(kMsgItemNotWritten, item.GetName(), LastErrorText());
    }
    m_pEntries->insert_or_assign(CString(item.GetGuid()).MakeUpper(),
                                 MakeEntry(path, item.GetGuid(), text));
    m_stamps.insert_or_assign(path, FileStampOf(path).value_or(FileStamp()));
    return {};
}

CString CRepositoryFolder::Erase(const CRepositoryItem& item) {
    const CString path = PathOf(item.GetGuid());
    if (FileExists(path) && !RemoveFile(path)) {
        return RepositoryMessage(kMsgItemNotWritten, item.GetName(), LastErrorText());
    }
    m_pEntries->erase(CString(item.GetGuid()).MakeUpper());
    m_stamps.erase(path);
    return {};
}

} // namespace Orvane
