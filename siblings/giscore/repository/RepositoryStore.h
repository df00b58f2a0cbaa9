// Where the configurations of a family are kept: a folder on disk or on the net, or a
// system of a drawing.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "siblings/giscore/repository/RepositoryItem.h"

namespace Orvane {

namespace System {
class CGisSystem;
}

/// What lists show of an item.
struct RepositoryItemHead {
    CString guid;
    CString name;
    enmEntityType entityType = EntityNone;
    friend bool operator==(const RepositoryItemHead&, const RepositoryItemHead&) = default;
};

/// What somebody else has done to an item since it was read.
struct RepositoryConflict {
    bool isDeleted = false;
    CString who; ///< of a changed one
    CString when;
    CString text; ///< as it is now
};

/// The items of one family in one place. What is handed out are copies: changes count once
/// they are given back by Replace. Items that cannot be read are left out, and noted with
/// CModuleConfiguration::SetProblems. Every change is told to the observers of the GIS core.
/// Operations that return a text give an empty one, or the reason, for the user, why nothing
/// was changed. Main thread only.
class GISCORE_API CRepositoryStore {
public:
    using ItemPtr = boost::shared_ptr<CRepositoryItem>;

    virtual ~CRepositoryStore() = default;
    CRepositoryStore(const CRepositoryStore&) = delete;
    CRepositoryStore& operator=(const CRepositoryStore&) = delete;

    const CString& GetTag() const { return m_strTag; }
    /// The system under which the items stand; null for a folder.
    virtual System::CGisSystem* GetSystem() const { return nullptr; }

    /// Those of an entity folder, by name; of all if it is EntityNone. Each is a new copy.
    std::vector<ItemPtr> GetItems(enmEntityType type = EntityNone) const;
    /// The same without their contents, which are not read for it.
    std::vector<RepositoryItemHead> GetHeads(enmEntityType type = EntityNone) const;
    /// Null if there is none, or if it cannot be read.
    ItemPtr GetItem(const wchar_t* guid) const;
    /// The first of a name in an entity folder, or in any if it is EntityNone; without
    /// regard to case.
    ItemPtr GetItemByName(const wchar_t* name, enmEntityType type = EntityNone) const;

    /// What is wrong with items that were left out, each with where it stands, and why a place
    /// cannot be reached.
    std::vector<CString> GetProblems() const;

    /// Looks for what others have changed; each change of a store begins with it.
    virtual void Renew() {}
    /// What has become of an item since it was read; nothing if it is as it was, or as it is to
    /// be, and for items that are new.
    virtual std::optional<RepositoryConflict> FindConflict(const CRepositoryItem& /*item*/) const {
        return std::nullopt;
    }

    /// Names are no keys, but people tell items apart by them: a name that another item of
    /// the same entity folder has is refused.
    CString Add(const CRepositoryItem& item);
    /// Refused if somebody else has changed the item since it was read; what to do then is the
    /// user's to say (FindConflict).
    CString Replace(const CRepositoryItem& item);
    CString Rename(const wchar_t* guid, const wchar_t* name);
    CString Remove(const wchar_t* guid);

    /// GUID of the default item for a kind of entity; empty if there is none.
    virtual CString GetDefault(enmEntityType /*type*/) const { return {}; }
    /// Makes an item the default one of its entity folder.
    CString SetDefault(const wchar_t* guid);

protected:
    explicit CRepositoryStore(CString tag) : m_strTag(std::move(tag)) {}

    /// One text as it is kept, and what was found when it was read.
    struct Entry {
        CString source; ///< what problems call it
        CString text;
        RepositoryItemHead head; ///< with the GUID under which it is kept
        CString fault;           ///< why it is no item; empty for those that are
        friend bool operator==(const Entry&, const Entry&) = default;
    };
    /// By their GUIDs in capital letters.
    using Entries = std::map<CString, Entry, CStringLess>;

    /// Reads a text as an item of the family.
    Entry MakeEntry(const CString& source, const CString& guid, const CString& text) const;
    /// Takes an entry unless there is one of its GUID, which is a problem.
    static void AddEntry(Entries& entries, Entry&& entry, std::vector<CString>& problems);

    /// \param problems gets what could not even be read
    virtual std::shared_ptr<const Entries> GetEntries(std::vector<CString>& problems) const = 0;
    virtual std::optional<CString> TextOf(const CString& guid) const = 0;
    /// \param isNew there is nothing to be replaced yet
    virtual CString Write(const CRepositoryItem& item, bool isNew) = 0;
    virtual CString Erase(const CRepositoryItem& item) = 0;
    virtual CString WriteDefault(const CRepositoryItem& item);
    /// The name under which problems are noted.
    virtual CString ProblemKey() const = 0;
    /// All entries; those with a fault are noted as problems.
    std::shared_ptr<const Entries> Look() const;

private:
    std::shared_ptr<const Entries> LookFor(std::vector<CString>& problems) const;
    CString WhyNot(const CRepositoryItem& item) const;

    CString m_strTag;
};

/// A wanted name, or "wanted (2)" and so on if the store has it for that entity folder.
GISCORE_API CString FreeItemName(const CRepositoryStore& store, enmEntityType type,
                                 const CString& wanted);

} // namespace Orvane
