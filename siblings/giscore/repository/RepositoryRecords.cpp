#include "siblings/giscore/repository/RepositoryRecords.h"

#include "platform/arx/DbUndoScopes.h"
#include "siblings/giscore/repository/RepositoryMessages.h"
#include "siblings/giscore/systems/DrawingRecords.h"
#include "siblings/giscore/utility/GisTexts.h"
#include "siblings/giscore/utility/Guid.h"

namespace Orvane {

namespace {

constexpr const wchar_t* kDefault = L"DEFAULT.";

constexpr std::size_t kKnownPlaces = 100;

CString ResultOf(bool isWritten) {
    return isWritten ? CString() : RepositoryMessage(kMsgDrawingIsBusy);
}

} // namespace

CRepositoryRecords::CRepositoryRecords(const wchar_t* tag, System::CGisSystem& system)
    : CRepositoryStore(tag), m_system(system),
      m_strPrefix(CString(System::kItemPrefix) + tag + L".") {}

std::shared_ptr<const CRepositoryStore::Entries>
CRepositoryRecords::GetEntries(std::vector<CString>& problems) const {
    // By the name for problems. What comes from a drawing that is closed is dropped with the
    // others, some time.
    static std::map<CString, std::shared_ptr<const Entries>, CStringLess> known;
    if (known.size() > kKnownPlaces) {
        known.clear();
    }
    std::shared_ptr<const Entries>& before = known[ProblemKey()];
    auto entries = std::make_shared<Entries>();
    const AcDbDictionary* const pDictionary = m_system.GetRecords().Dictionary();
    if (!pDictionary) {
        return entries;
    }
    const AcDbDictionary::Records& records = pDictionary->records();
    for (auto at = records.lower_bound(m_strPrefix);
         at != records.end() && at->first.View().starts_with(m_strPrefix.View()); ++at) {
        const CString key = at->first.Mid(m_strPrefix.GetLength());
        const CString source = m_system.GetSystemName() + L": " + at->first;
        if (IsGuid(key.View())) {
            AddEntry(*entries, KnownEntry(before.get(), source, key, at->second), problems);
        } else if (!key.View().starts_with(kDefault)) {
            problems.push_back(source + L": " + MessageText(GisMsg::NotNamedAfterGuid));
        }
    }
    before = entries;
    return entries;
}

/// One with a fault is read again: somebody may make items of the family by now.
CRepositoryStore::Entry CRepositoryRecords::KnownEntry(const Entries* pBefore,
                                                       const CString& source, const CString& guid,
                                                       const CString& text) const {
    const auto hit = pBefore ? pBefore->find(CString(guid).MakeUpper()) : Entries::const_iterator();
    const bool isKnown = pBefore && hit != pBefore->end() && hit->second.source == source &&
                         hit->second.text == text && hit->second.fault.IsEmpty();
    return isKnown ? hit->second : MakeEntry(source, guid, text);
}

std::optional<CString> CRepositoryRecords::TextOf(const CString& guid) const {
    const AcDbDictionary* const pDictionary = m_system.GetRecords().Dictionary();
    const CString* const pText = pDictionary ? pDictionary->getAt(m_strPrefix + guid) : nullptr;
    return pText ? std::optional(*pText) : std::nullopt;
}

CString CRepositoryRecords::Write(const CRepositoryItem& item, bool /*isNew*/) {
    return ResultOf(m_system.GetRecords().Set(m_strPrefix + item.GetGuid(), item.GetXML()));
}

CString CRepositoryRecords::Erase(const CRepositoryItem& item) {
    const AcDbUndoGroup step(*m_system.GetDatabase(), item.GetName());
    System::DrawingRecords records = m_system.GetRecords();
    if (GetDefault(item.GetEntityType()) == item.GetGuid()) {
        records.Remove(DefaultRecord(item.GetEntityType()));
    }
    return ResultOf(records.Remove(m_strPrefix + item.GetGuid()));
}

CString CRepositoryRecords::DefaultRecord(enmEntityType type) const {
    return m_strPrefix + CString(FormatText(L"%s%d", kDefault, type));
}

CString CRepositoryRecords::GetDefault(enmEntityType type) const {
    return m_system.GetRecords().Get(DefaultRecord(type));
}

CString CRepositoryRecords::WriteDefault(const CRepositoryItem& item) {
    return ResultOf(m_system.GetRecords().Set(DefaultRecord(item.GetEntityType()), item.GetGuid()));
}

} // namespace Orvane
