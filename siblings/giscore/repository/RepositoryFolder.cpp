#include "siblings/giscore/repository/RepositoryFolder.h"

#include <chrono>

#include "platform/win/CodePage.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"
#include "platform/win/FileLock.h"
#include "siblings/giscore/repository/RepositoryMessages.h"
#include "siblings/giscore/utility/GisTexts.h"
#include "siblings/giscore/utility/Guid.h"

namespace Orvane {

namespace {

constexpr std::wstring_view kSuffix = L".xml";
constexpr std::wstring_view kDraft = L".xml.new-"; // ReplaceFileBytes
constexpr std::chrono::seconds kTimeOfADraft(10);
constexpr int kPatience = 2000; // milliseconds

/// What stands before ".xml" if that can be a GUID, else an empty text.
CString GuidOf(const CString& fileName) {
    std::wstring_view name = fileName.View();
    if (!name.ends_with(kSuffix)) {
        return {};
    }
    name.remove_suffix(kSuffix.size());
    return IsGuid(name) ? CString(name) : CString();
}

/// Hidden files, such as the lock and what file systems and file managers leave behind; and what
/// another program is just writing.
bool IsNoBusinessOfOurs(const CString& name, const FileStamp& stamp) {
    if (name.View().starts_with(L'.')) {
        return true;
    }
    if (name.View().find(kDraft) == std::wstring_view::npos) {
        return false;
    }
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return stamp == FileStamp() || now - std::chrono::nanoseconds(stamp.time) < kTimeOfADraft;
}

} // namespace

CRepositoryFolder::CRepositoryFolder(const wchar_t* tag, const CString& folder, CString problemKey,
                                     MissingFolder missing)
    : CRepositoryStore(tag), m_strRoot(folder), m_missing(missing),
      m_strFolder(WithSeparator(folder) + tag + L"/"), m_strProblemKey(std::move(problemKey)),
      m_pEntries(std::make_shared<Entries>()) {
    Reload();
}

/// Why the folder of all families cannot be used; empty if it can, or if it is made when it is
/// needed.
CString CRepositoryFolder::WhyOutOfReach() const {
    if (FileIsMissing(m_strRoot)) {
        return m_missing == MissingFolder::IsMade ? CString()
                                                  : MessageText(GisMsg::NoSuchFolder, m_strRoot);
    }
    return FolderIsReadable(m_strRoot) ? CString() : m_strRoot + L": " + LastErrorText();
}

/// The files with their stamps. What cannot be listed is noted.
CRepositoryFolder::Listing CRepositoryFolder::ListFiles(std::vector<CString>& problems) const {
    const CString reason = WhyOutOfReach();
    if (!reason.IsEmpty()) {
        problems.push_back(reason);
        return {};
    }
    if (FileIsMissing(m_strFolder)) {
        return {};
    }
    const auto names = ListFileNames(m_strFolder);
    if (!names) {
        problems.push_back(m_strFolder + L": " + LastErrorText());
        return {};
    }
    Listing listing;
    for (const CString& name : *names) {
        const FileStamp stamp = FileStampOf(m_strFolder + name).value_or(FileStamp());
        if (!IsNoBusinessOfOurs(name, stamp)) {
            listing.emplace_back(name, stamp);
        }
    }
    return listing;
}

bool CRepositoryFolder::Reload() {
    std::vector<CString> problems;
    Listing listing = ListFiles(problems);
    // Looked at before every command: that nothing has changed has to be known quickly.
    if (m_isLookedAt && problems.empty() && listing == m_listing) {
        return false;
    }
    m_listing = std::move(listing);
    const auto pOld = std::exchange(m_pEntries, std::make_shared<Entries>());
    const auto unreadable = std::exchange(m_unreadable, std::move(problems));
    for (const auto& [name, stamp] : m_listing) {
        ReadFile(name, stamp, *pOld);
    }
    Look(); // notes the problems
    m_isLookedAt = GetProblems().empty();
    return *pOld != *m_pEntries || unreadable != m_unreadable;
}

/// Takes what was found in the file before if it has stayed as it was. A file with a fault is
/// read again: the fault may have been that nobody made items of the family yet.
/// \param stamp from before the content is read: what changes in between is read again the next
/// time
void CRepositoryFolder::ReadFile(const CString& name, const FileStamp& stamp, const Entries& old) {
    const CString path = m_strFolder + name;
    const CString guid = GuidOf(name);
    const auto known = m_stamps.find(path);
    const auto entry = old.find(CString(guid).MakeUpper());
    if (known != m_stamps.end() && known->second == stamp && entry != old.end() &&
        entry->second.source == path && entry->second.fault.IsEmpty()) {
        AddEntry(*m_pEntries, Entry(entry->second), m_unreadable);
        return;
    }
    const auto bytes = guid.IsEmpty() ? std::nullopt : ReadFileBytes(path);
    if (!bytes && FileIsMissing(path)) {
        return; // somebody has just deleted it
    }
    if (!bytes) {
        m_unreadable.push_back(
            path + L": " +
            (guid.IsEmpty() ? MessageText(GisMsg::NotNamedAfterGuid) : LastErrorText()));
        return;
    }
    AddEntry(*m_pEntries, MakeEntry(path, guid, Utf8ToWide(*bytes)), m_unreadable);
    m_stamps.insert_or_assign(path, stamp);
}

/// The file of an item, whose name may differ from its GUID in case; else the one it will have.
CString CRepositoryFolder::PathOf(const CString& guid) const {
    const auto hit = m_pEntries->find(CString(guid).MakeUpper());
    return hit != m_pEntries->end() ? hit->second.source : m_strFolder + guid + CString(kSuffix);
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

std::optional<RepositoryConflict>
CRepositoryFolder::FindConflict(const CRepositoryItem& item) const {
    if (item.GetOrigin().IsEmpty() || !WhyOutOfReach().IsEmpty()) {
        return std::nullopt;
    }
    const CString path = PathOf(item.GetGuid());
    // The stamp before the content, as for reading.
    const auto stamp = FileStampOf(path);
    const auto bytes = ReadFileBytes(path);
    if (!bytes) {
        return FileIsMissing(path) ? std::optional(RepositoryConflict{true, {}, {}, {}})
                                   : std::nullopt;
    }
    const CString text(Utf8ToWide(*bytes));
    if (text == item.GetOrigin() || text == item.GetXML()) {
        return std::nullopt;
    }
    return RepositoryConflict{false, FileOwner(path), LocalTimeText(stamp.value_or(FileStamp())),
                              text};
}

CString CRepositoryFolder::WhyNotWritable(const CRepositoryItem& item, const CString& path,
                                          bool isNew) const {
    if (isNew && !FileIsMissing(path)) {
        return RepositoryMessage(kMsgItemIsThere, item.GetName());
    }
    if (const auto conflict = isNew ? std::nullopt : FindConflict(item)) {
        return conflict->isDeleted ? RepositoryMessage(kMsgItemDeleted, item.GetName())
                                   : RepositoryMessage(kMsgItemChanged, item.GetName(),
                                                       conflict->who, conflict->when);
    }
    return FileIsWriteProtected(path) ? RepositoryMessage(kMsgItemNotWritten, item.GetName(),
                                                          RepositoryMessage(kMsgWriteProtected))
                                      : CString();
}

CString CRepositoryFolder::Write(const CRepositoryItem& item, bool isNew) {
    const auto notWritten = [&](const CString& reason) {
        return RepositoryMessage(kMsgItemNotWritten, item.GetName(), reason);
    };
    CString reason = WhyOutOfReach();
    if (!reason.IsEmpty()) {
        return notWritten(reason);
    }
    if (!IsGuid(item.GetGuid().View()) || !MakeFolder(m_strFolder)) {
        return notWritten(LastErrorText());
    }
    // From the last look at the file until it is replaced.
    const auto lock = FileLock::Take(m_strFolder + L".lock", kPatience);
    if (!lock) {
        return notWritten(RepositoryMessage(kMsgOthersWrite));
    }
    const CString path = PathOf(item.GetGuid());
    reason = WhyNotWritable(item, path, isNew);
    if (!reason.IsEmpty()) {
        return reason;
    }
    const CString text = item.GetXML();
    if (!ReplaceFileBytes(path, WideToUtf8(text.View()))) {
        return notWritten(LastErrorText());
    }
    item.SetOrigin(text);
    m_isLookedAt = false;
    m_pEntries->insert_or_assign(CString(item.GetGuid()).MakeUpper(),
                                 MakeEntry(path, item.GetGuid(), text));
    m_stamps.insert_or_assign(path, FileStampOf(path).value_or(FileStamp()));
    return {};
}

CString CRepositoryFolder::Erase(const CRepositoryItem& item) {
    const CString path = PathOf(item.GetGuid());
    if (FileIsWriteProtected(path)) {
        return RepositoryMessage(kMsgItemNotErased, item.GetName(),
                                 RepositoryMessage(kMsgWriteProtected));
    }
    if (!FileIsMissing(path) && !RemoveFile(path)) {
        return RepositoryMessage(kMsgItemNotErased, item.GetName(), LastErrorText());
    }
    m_isLookedAt = false;
    m_pEntries->erase(CString(item.GetGuid()).MakeUpper());
    m_stamps.erase(path);
    return {};
}

} // namespace Orvane
