#include "siblings/giscore/repository/RepositoryStore.h"

#include <algorithm>
#include <set>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/repository/RepositoryMessages.h"

namespace Orvane {

namespace {

using System::ISystemEvents;

template <class Event>
void Tell(Event event, const CRepositoryStore& store, const CRepositoryItem& item) {
    System::CGisEvents::Instance()->Raise(event, store.GetSystem(), store.GetTag().GetString(),
                                          item.GetGuid().GetString());
}

bool StandsBefore(const CRepositoryStore::ItemPtr& left, const CRepositoryStore::ItemPtr& right) {
    const int order = left->GetName().CompareNoCase(right->GetName());
    return order != 0 ? order < 0 : left->GetGuid() < right->GetGuid();
}

} // namespace

std::vector<CRepositoryStore::ItemPtr> CRepositoryStore::GetItems() const {
    std::vector<CString> problems;
    std::vector<ItemPtr> items;
    std::set<CString> guids;
    for (const Entry& entry : Entries(problems)) {
        CString reason;
        ItemPtr item = ReadRepositoryItem(entry.text, m_strTag, reason);
        if (item && item->GetGuid().CompareNoCase(entry.guid) != 0) {
            reason = FormatText(L"it has the GUID \"%s\"", item->GetGuid());
        } else if (item && !guids.insert(CString(item->GetGuid()).MakeUpper()).second) {
            reason = L"there is another item of its GUID";
        }
        if (reason.IsEmpty()) {
            items.push_back(item);
        } else {
            problems.push_back(entry.source + L": " + reason);
        }
    }
    CModuleConfiguration::Instance()->SetProblems(ProblemKey(), std::move(problems));
    std::sort(items.begin(), items.end(), StandsBefore);
    return items;
}

std::vector<CRepositoryStore::ItemPtr> CRepositoryStore::GetItems(enmEntityType type) const {
    std::vector<ItemPtr> items = GetItems();
    if (type != EntityNone) {
        std::erase_if(items, [type](const auto& item) { return item->GetEntityType() != type; });
    }
    return items;
}

CRepositoryStore::ItemPtr CRepositoryStore::GetItem(const wchar_t* guid) const {
    const auto text = TextOf(guid);
    CString reason;
    const ItemPtr item = text ? ReadRepositoryItem(*text, m_strTag, reason) : ItemPtr();
    return item && item->GetGuid().CompareNoCase(guid) == 0 ? item : ItemPtr();
}

CRepositoryStore::ItemPtr CRepositoryStore::GetItemByName(const wchar_t* name) const {
    for (const ItemPtr& item : GetItems()) {
        if (item->GetName().CompareNoCase(name) == 0) {
            return item;
        }
    }
    return {};
}

CString CRepositoryStore::WhyNot(const CRepositoryItem& item) const {
    if (item.GetName().IsEmpty()) {
        return RepositoryMessage(kMsgItemWithoutName);
    }
    for (const ItemPtr& other : GetItems(item.GetEntityType())) {
        if (other->GetName().CompareNoCase(item.GetName()) == 0 &&
            other->GetGuid() != item.GetGuid()) {
            return RepositoryMessage(kMsgItemNameTaken, item.GetName());
        }
    }
    return {};
}

CString CRepositoryStore::Add(const CRepositoryItem& item) {
    CString reason =
        TextOf(item.GetGuid()) ? RepositoryMessage(kMsgItemIsThere, item.GetName()) : WhyNot(item);
    reason = reason.IsEmpty() ? Write(item) : reason;
    if (reason.IsEmpty()) {
        Tell(&ISystemEvents::OnNewConfigDefinitionAdded, *this, item);
    }
    return reason;
}

CString CRepositoryStore::Replace(const CRepositoryItem& item) {
    CString reason = TextOf(item.GetGuid()) ? WhyNot(item) : RepositoryMessage(kMsgItemIsGone);
    reason = reason.IsEmpty() ? Write(item) : reason;
    if (reason.IsEmpty()) {
        Tell(&ISystemEvents::OnConfigDefinitionChanged, *this, item);
    }
    return reason;
}

CString CRepositoryStore::Rename(const wchar_t* guid, const wchar_t* name) {
    const ItemPtr item = GetItem(guid);
    if (!item) {
        return RepositoryMessage(kMsgItemIsGone);
    }
    item->SetName(CString(name).Trim());
    return Replace(*item);
}

CString CRepositoryStore::Remove(const wchar_t* guid) {
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
    const std::vector<CRepositoryStore::ItemPtr> items = store.GetItems(type);
    CString name = wanted;
    for (int number = 2;
         std::any_of(items.begin(), items.end(),
                     [&](const auto& item) { return item->GetName().CompareNoCase(name) == 0; });
         ++number) {
        name.Format(L"%s (%d)", wanted, number);
    }
    return name;
}

} // namespace Orvane
