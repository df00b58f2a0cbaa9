#include "plugins/repository/RepositoryConflicts.h"

#include "platform/arx/EdPrompt.h"
#include "plugins/repository/RepositoryPrompts.h"
#include "plugins/repository/RepositoryTexts.h"

namespace Orvane::Repository {

namespace {

using ItemPtr = CRepositoryStore::ItemPtr;

enum class Keep { Mine, Theirs, Both };

/// An empty answer loses nothing. Nothing if the user cancelled.
std::optional<Keep> AskWhatToKeep(const CString& name, const RepositoryConflict& conflict) {
    const PromptChoice mine{L"Mine", Text(Msg::KeepMine)};
    const PromptChoice theirs{L"Theirs", Text(Msg::KeepTheirs)};
    ChoicePrompt prompt{Text(Msg::DeletedMeanwhile, name), {mine, theirs}, 0};
    if (!conflict.isDeleted) {
        prompt = {Text(Msg::ChangedMeanwhile, name, conflict.who, conflict.when),
                  {mine, theirs, {L"Both", Text(Msg::KeepBoth)}},
                  2};
    }
    const auto choice = acedAskChoice(prompt);
    return choice ? std::optional(static_cast<Keep>(*choice)) : std::nullopt;
}

ItemPtr Put(const CString& reason, const ItemPtr& item) {
    if (!reason.IsEmpty()) {
        Refuse(reason);
        return {};
    }
    return item;
}

ItemPtr AddCopy(CRepositoryStore& store, const CRepositoryItem& item) {
    store.Renew(); // their name may be taken now
    const ItemPtr copy =
        CopyRepositoryItem(item, FreeItemName(store, item.GetEntityType(), item.GetName()));
    return Put(store.Add(*copy), copy);
}

} // namespace

ItemPtr GiveBack(CRepositoryStore& store, const ItemPtr& item) {
    // The name by which the user knows it; the item may just have got another one.
    const ItemPtr known = store.GetItem(item->GetGuid());
    const CString name = known ? known->GetName() : item->GetName();
    // Somebody may change it again while the question is being answered.
    while (const auto conflict = store.FindConflict(*item)) {
        const auto keep = AskWhatToKeep(name, *conflict);
        if (keep == Keep::Both) {
            return AddCopy(store, *item);
        }
        if (keep != Keep::Mine) {
            acutPrintf(L"%s\n", Text(Msg::TheirsStays, name));
            return {};
        }
        if (conflict->isDeleted) {
            return Put(store.Add(*item), item);
        }
        item->SetOrigin(conflict->text);
    }
    return Put(store.Replace(*item), item);
}

bool AskDelete(const CRepositoryStore& store, const CRepositoryItem& item) {
    if (!acedAskYes(Text(Msg::ReallyDelete, item.GetName()))) {
        return false;
    }
    const auto conflict = store.FindConflict(item);
    return !conflict || conflict->isDeleted ||
           acedAskYes(Text(Msg::DeleteChanged, item.GetName(), conflict->who, conflict->when));
}

} // namespace Orvane::Repository
