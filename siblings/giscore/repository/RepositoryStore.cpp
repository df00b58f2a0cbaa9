#include "siblings/giscore/repository/RepositoryStore.h"

#include <algorithm>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/repository/RepositoryMessages.h"
#include "siblings/giscore/utility/GisTexts.h"

namespace Orvane {

namespace {

using System::ISystemEvents;

template <class Event>
void Tell(Event event, const CRepositoryStore& store, const CRepositoryItem& item) {
    System::CGisEvents::Instance()->Raise(event, store.GetSystem(), store.GetTag().GetString(),
                                          item.GetGuid().GetString());
}

bool StandsBefore(const RepositoryItemHead& left, const RepositoryItemHead& right) {
    const int order = left.name.CompareNoCase(right.name);
    return order != 0 ? order < 0 : left.guid < right.guid;
}

CString KeyOf(const CString& guid) {
    return CString(guid).MakeUpper();
}

bool IsIn(const RepositoryItemHead& head, enmEntityType type) {
    return type == EntityNone || head.entityType == type;
}

} // namespace

CRepositoryStore::Entry CRepositoryStore::MakeEntry(const CString& source, const CString& guid,
                                                    const CString& text) const {
    Entry entry{source, text, {guid, {}, EntityNone}, {}};
    const ItemPtr item = ReadRepositoryItem(text, m_strTag, entry.fault);
    if (item && item->GetGuid().CompareNoCase(guid) != 0) {
        entry.fault = MessageText(GisMsg::OtherGuid, item->GetGuid());
    } else if (item) {
        entry.head = {guid, item->GetName(), item->GetEntityType()};
    }
    return entry;
}

void CRepositoryStore::AddEntry(Entries& entries, Entry&& entry, std::vector<CString>& problems) {
    const CString source = entry.source;
    if (!entries.try_emplace(KeyOf(entry.head.guid), std::move(entry)).second) {
        problems.push_back(source + L": " + MessageText(GisMsg::SameGuid));
    }
}

std::shared_ptr<const CRepositoryStore::Entries>
CRepositoryStore::LookFor(std::vector<CString>& problems) const {
    auto entries = GetEntries(problems);
    for (const auto& [key, entry] : *entries) {
        if (!entry.fault.IsEmpty()) {
            problems.push_back(entry.source + L": " + entry.fault);
        }
    }
    return entries;
}

std::shared_ptr<const CRepositoryStore::Entries> CRepositoryStore::Look() const {
    std::vector<CString> problems;
    auto entries = LookFor(problems);
    CModuleConfiguration::Instance()->SetProblems(ProblemKey(), std::move(problems));
    return entries;
}

std::vector<CString> CRepositoryStore::GetProblems() const {
    std::vector<CString> problems;
    LookFor(problems);
    return problems;
}

std::vector<RepositoryItemHead> CRepositoryStore::GetHeads(enmEntityType type) const {
    std::vector<RepositoryItemHead> heads;
    const auto entries = Look();
    for (const auto& [key, entry] : *entries) {
        if (entry.fault.IsEmpty() && IsIn(entry.head, type)) {
            heads.push_back(entry.head);
        }
    }
    std::sort(heads.begin(), heads.end(), StandsBefore);
    return heads;
}

std::vector<CRepositoryStore::ItemPtr> CRepositoryStore::GetItems(enmEntityType type) const {
    std::vector<ItemPtr> items;
    for (const RepositoryItemHead& head : GetHeads(type)) {
        if (auto item = GetItem(head.guid)) {
            items.push_back(std::move(item));
        }
    }
    return items;
}

CRepositoryStore::ItemPtr CRepositoryStore::GetItem(const wchar_t* guid) const {
    const auto text = TextOf(guid);
    CString reason;
    const ItemPtr item = text ? ReadRepositoryItem(*text, m_strTag, reason) : ItemPtr();
    return item && item->GetGuid().CompareNoCase(guid) == 0 ? item : ItemPtr();
}

CRepositoryStore::ItemPtr CRepositoryStore::GetItemByName(const wchar_t* name,
                                                          enmEntityType type) const {
    const RepositoryItemHead* pFirst = nullptr;
    const auto entries = Look();
    for (const auto& [key, entry] : *entries) {
        if (entry.fault.IsEmpty() && IsIn(entry.head, type) &&
            entry.head.name.CompareNoCase(name) == 0 &&
            (!pFirst || StandsBefore(entry.head, *pFirst))) {
            pFirst = &entry.head;
        }
    }
    return pFirst ? GetItem(pFirst->guid) : ItemPtr();
}

CString CRepositoryStore::WhyNot(const CRepositoryItem& item) const {
    if (item.GetName().IsEmpty()) {
        return RepositoryMessage(kMsgItemWithoutName);
    }
    const auto entries = Look();
    for (const auto& [key, entry] : *entries) {
        if (entry.fault.IsEmpty() && IsIn(entry.head, item.GetEntityType()) &&
            entry.head.name.CompareNoCase(item.GetName()) == 0 &&
            entry.head.guid.CompareNoCase(item.GetGuid()) != 0) {
            return RepositoryMessage(kMsgItemNameTaken, item.GetName());
        }
    }
    return {};
}

CString CRepositoryStore::Add(const CRepositoryItem& item) {
    Renew();
    CString reason =
        TextOf(item.GetGuid()) ? RepositoryMessage(kMsgItemIsThere, item.GetName()) : WhyNot(item);
    reason = reason.IsEmpty() ? Write(item, true) : reason;
    if (reason.IsEmpty()) {
        Tell(&ISystemEvents::OnNewConfigDefinitionAdded, *this, item);
    }
    return reason;
}

CString CRepositoryStore::Replace(const CRepositoryItem& item) {
    Renew();
    CString reason = TextOf(item.GetGuid()) ? WhyNot(item) : RepositoryMessage(kMsgItemIsGone);
    reason = reason.IsEmpty() ? Write(item, false) : reason;
    if (reason.IsEmpty()) {
        Tell(&ISystemEvents::OnConfigDefinitionChanged, *this, item);
    }
    return reason;
}

CString CRepositoryStore::Rename(const wchar_t* guid, const wchar_t* name) {
    Renew();
    const ItemPtr item = GetItem(guid);
    if (!item) {
        return RepositoryMessage(kMsgItemIsGone);
    }
    item->SetName(CString(name).Trim());
    return Replace(*item);
}

CString CRepositoryStore::Remove(const wchar_t* guid) {
    Renew();
    const ItemPtr item = GetItem(guid);
    if (!item) {
        return RepositoryMessage(kMsgItemIsGone);
    }
    Tell(&ISystemEvents::OnBeforeConfigDefinitionDeleted, *this, *item);
    return Erase(*item);
}

CString CRepositoryStore::SetDefault(const wchar_t* guid) {
    const ItemPtr item = GetItem(guid);
    if (!item) {
        return RepositoryMessage(kMsgItemIsGone);
    }
    CString reason = WriteDefault(*item);
    if (reason.IsEmpty()) {
        Tell(&ISystemEvents::OnConfigBecomeDefault, *this, *item);
    }
    return reason;
}

CString CRepositoryStore::WriteDefault(const CRepositoryItem& /*item*/) {
    return RepositoryMessage(kMsgNoDefaultHere);
}

CString FreeItemName(const CRepositoryStore& store, enmEntityType type, const CString& wanted) {
    const std::vector<RepositoryItemHead> heads = store.GetHeads(type);
    CString name = wanted;
    for (int number = 2;
         std::any_of(heads.begin(), heads.end(),
                     [&](const auto& head) { return head.name.CompareNoCase(name) == 0; });
         ++number) {
        name.Format(L"%s (%d)", wanted, number);
    }
    return name;
}

} // namespace Orvane
