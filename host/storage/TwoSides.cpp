#include "host/storage/TwoSides.h"

#include <set>

#include "platform/arx/DbReferences.h"

namespace Tessaly {

namespace {

const AcDbDictionary* DictionaryOf(const AcDbDatabase& database, const CString& name) {
    return static_cast<const AcDbDictionary*>(database.peek(database.findDictionary(name)));
}

const AcDbDictionary* AsDictionary(const AcDbObject* pObject) {
    return pObject && pObject->isA() == AcDbDictionary::desc()
               ? static_cast<const AcDbDictionary*>(pObject)
               : nullptr;
}

const AcDbLayerTableRecord* AsLayer(const AcDbObject* pObject) {
    return pObject && pObject->isA() == AcDbLayerTableRecord::desc()
               ? static_cast<const AcDbLayerTableRecord*>(pObject)
               : nullptr;
}

/// What users call it: a system has a name of its own.
CString LabelOf(const AcDbDictionary& dictionary) {
    const CString* const pName = SystemNumber(dictionary.name())
                                     ? dictionary.getAt(AcDbReferences::kSystemName.data())
                                     : nullptr;
    return pName ? *pName : dictionary.name();
}

/// Every save writes it, and takes the numbers of all systems along.
bool IsSharedByAll(const CString& dictionary) {
    return dictionary.View() == AcDbReferences::kSaveStamp ||
           dictionary.View() == AcDbReferences::kSystems;
}

bool IsSameLayer(const AcDbLayerTableRecord& a, const AcDbLayerTableRecord& b) {
    return a.colorIndex() == b.colorIndex() && a.isOff() == b.isOff();
}

bool HasChanged(const RememberedFile& base, const AcDbDictionary& dictionary) {
    const auto known = base.dictionaries.find(dictionary.name());
    if (known == base.dictionaries.end() || known->second.size() != dictionary.records().size()) {
        return true;
    }
    for (const auto& [name, text] : dictionary.records()) {
        const auto sum = known->second.find(name);
        if (sum == known->second.end() || sum->second != SumOf(text)) {
            return true;
        }
    }
    return false;
}

class Comparison {
public:
    explicit Comparison(const TwoSides& sides) : m_sides(sides) {}

    AcDbComparison Make() {
        for (const AcDbObjectId id : m_sides.mine.unsavedObjects()) {
            const AcDbObject* const pObject = m_sides.mine.peek(id);
            if (pObject->isEntity()) {
                AddMyEntity(*pObject);
            } else if (const AcDbDictionary* const pDictionary = AsDictionary(pObject)) {
                AddMyDictionary(*pDictionary);
            } else if (const AcDbLayerTableRecord* const pLayer = AsLayer(pObject)) {
                AddMyLayer(*pLayer);
            }
        }
        for (const NumberRun& run : m_sides.theirChanges.Runs()) {
            for (std::uint32_t i = 0; i < run.count; ++i) {
                AddTheirEntity(AcDbObjectId(run.first + i));
            }
        }
        AddTheirDictionaries();
        return std::move(m_result);
    }

private:
    void AddMyEntity(const AcDbObject& object) {
        const AcDbObjectId id = object.objectId();
        if (m_sides.IsNew(id)) {
            if (!object.isErased()) {
                m_result.mine.added.push_back(id);
            }
            return;
        }
        (object.isErased() ? m_result.mine.removed : m_result.mine.changed).push_back(id);
        const bool isGoneInBoth = object.isErased() && !m_sides.theirs.peek(id);
        if (m_sides.theirChanges.Contains(id.number()) && !isGoneInBoth) {
            m_result.both.push_back(id);
        }
    }

    void AddTheirEntity(AcDbObjectId id) {
        const AcDbObject* const pTheirs = m_sides.theirs.peek(id);
        if (m_sides.IsNew(id)) {
            if (pTheirs && pTheirs->isEntity()) {
                m_result.theirs.added.push_back(id);
            }
        } else if (pTheirs && pTheirs->isEntity()) {
            m_result.theirs.changed.push_back(id);
        } else if (const AcDbObject* const pMine = m_sides.mine.peek(id);
                   !pTheirs && pMine && pMine->isEntity()) {
            m_result.theirs.removed.push_back(id);
        }
    }

    void AddMyLayer(const AcDbLayerTableRecord& layer) {
        const AcDbObjectId id = layer.objectId();
        if (m_sides.IsNew(id) || !m_sides.theirChanges.Contains(id.number())) {
            return;
        }
        const AcDbLayerTableRecord* const pTheirs =
            AsLayer(m_sides.theirs.peek(m_sides.theirs.findLayer(layer.getName())));
        const bool isSame =
            pTheirs ? !layer.isErased() && IsSameLayer(layer, *pTheirs) : layer.isErased();
        if (!isSame) {
            m_result.bothNames.push_back(layer.getName());
        }
    }

    void AddMyDictionary(const AcDbDictionary& mine) {
        const bool isKnown = m_sides.base.dictionaries.contains(mine.name());
        if (SystemNumber(mine.name()) && (isKnown || !mine.isErased())) {
            AcDbSideChanges& changes = m_result.mine;
            if (mine.isErased()) {
                changes.removedSystems.push_back(LabelOf(mine));
            } else if (!isKnown) {
                changes.addedSystems.push_back(LabelOf(mine));
            } else if (HasChanged(m_sides.base, mine)) {
                changes.changedSystems.push_back(LabelOf(mine));
            }
        }
        // One that is new on both sides becomes two if it is a system's.
        if (!IsSharedByAll(mine.name()) && (isKnown || !SystemNumber(mine.name()))) {
            AddRecordsOfBoth(mine);
        }
    }

    void AddRecordsOfBoth(const AcDbDictionary& mine) {
        const AcDbDictionary* const pTheirs = DictionaryOf(m_sides.theirs, mine.name());
        std::set<CString, CStringLess> names;
        for (const auto& [name, text] : mine.records()) {
            names.insert(name);
        }
        if (const auto base = m_sides.base.dictionaries.find(mine.name());
            base != m_sides.base.dictionaries.end()) {
            for (const auto& [name, sum] : base->second) {
                names.insert(name);
            }
        }
        for (const CString& name : names) {
            const CString* const pMine = mine.isErased() ? nullptr : mine.getAt(name);
            const CString* const pText = pTheirs ? pTheirs->getAt(name) : nullptr;
            const RecordSides changes =
                CompareRecord(m_sides.base, mine.name(), name, pMine, pText);
            const bool isSame = pMine && pText ? *pMine == *pText : pMine == pText;
            if (changes.isMineChanged && changes.isTheirsChanged && !isSame) {
                m_result.bothNames.push_back(LabelOf(mine) + L": " + name);
            }
        }
    }

    void AddTheirDictionaries() {
        AcDbSideChanges& changes = m_result.theirs;
        for (const AcDbObjectId id : m_sides.theirs.dictionaries()) {
            const AcDbDictionary& theirs = *AsDictionary(m_sides.theirs.peek(id));
            if (!SystemNumber(theirs.name())) {
                continue;
            }
            if (!m_sides.base.dictionaries.contains(theirs.name())) {
                changes.addedSystems.push_back(LabelOf(theirs));
            } else if (HasChanged(m_sides.base, theirs)) {
                changes.changedSystems.push_back(LabelOf(theirs));
            }
        }
        for (const auto& [name, records] : m_sides.base.dictionaries) {
            const AcDbDictionary* const pMine = DictionaryOf(m_sides.mine, name);
            if (SystemNumber(name) && !DictionaryOf(m_sides.theirs, name)) {
                changes.removedSystems.push_back(pMine ? LabelOf(*pMine) : name);
            }
        }
    }

    const TwoSides& m_sides;
    AcDbComparison m_result;
};

} // namespace

std::optional<int> SystemNumber(const CString& dictionary) {
    if (!dictionary.View().starts_with(AcDbReferences::kSystemDictionary)) {
        return std::nullopt;
    }
    const std::wstring_view digits =
        dictionary.View().substr(AcDbReferences::kSystemDictionary.size());
    constexpr std::size_t kMostDigits = 9;
    int number = 0;
    for (const wchar_t digit : digits) {
        if (digit < L'0' || digit > L'9' || digits.size() > kMostDigits) {
            return std::nullopt;
        }
        number = number * 10 + (digit - L'0');
    }
    return number > 0 && digits.front() != L'0' ? std::optional(number) : std::nullopt;
}

RecordSides CompareRecord(const RememberedFile& base, const CString& dictionary,
                          const CString& record, const CString* mine, const CString* theirs) {
    const auto known = base.dictionaries.find(dictionary);
    const std::size_t* pSum = nullptr;
    if (known != base.dictionaries.end()) {
        const auto sum = known->second.find(record);
        pSum = sum != known->second.end() ? &sum->second : nullptr;
    }
    const auto hasChanged = [pSum](const CString* text) {
        return text && pSum ? SumOf(*text) != *pSum : (text != nullptr) != (pSum != nullptr);
    };
    return {hasChanged(mine), hasChanged(theirs)};
}

AcDbComparison CompareSides(const TwoSides& sides) {
    return Comparison(sides).Make();
}

} // namespace Tessaly
