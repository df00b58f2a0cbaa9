// What a drawing has unsaved, put upon another state of its file.
#include <algorithm>
#include <charconv>
#include <map>
#include <unordered_map>

#include "host/storage/TwoSides.h"
#include "platform/arx/DbReferences.h"
#include "platform/arx/DbUndoScopes.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

/// Opens an object for writing, calls, closes.
template <class T, class Change>
void Edit(AcDbDatabase& database, AcDbObjectId id, Change change) {
    T* pObject = nullptr;
    if (acdbOpenObject(pObject, id, AcDb::kForWrite, false, &database) == Acad::eOk) {
        change(*pObject);
        pObject->close();
    }
}

int NumberOf(std::wstring_view text) {
    const std::string bytes = WideToUtf8(text);
    int number = 0;
    std::from_chars(bytes.data(), bytes.data() + bytes.size(), number);
    return number;
}

int NumberOf(const AcDbDatabase& database, std::wstring_view dictionary, std::wstring_view record) {
    const auto* const pDictionary = static_cast<const AcDbDictionary*>(
        database.peek(database.findDictionary(dictionary.data())));
    const CString* const pText = pDictionary ? pDictionary->getAt(record.data()) : nullptr;
    return pText ? NumberOf(pText->View()) : 0;
}

CString TextOf(int number) {
    return FormatText(L"%d", number);
}

/// Makes the shape of one entity that of another of its class.
void CopyShape(const AcDbEntity& from, AcDbEntity& to) {
    if (const auto* const pPoint = dynamic_cast<const AcDbPoint*>(&from)) {
        static_cast<AcDbPoint&>(to).setPosition(pPoint->position());
    } else if (const auto* const pLine = dynamic_cast<const AcDbPolyline*>(&from)) {
        static_cast<AcDbPolyline&>(to).setVertices(pLine->vertices());
        static_cast<AcDbPolyline&>(to).setClosed(pLine->isClosed());
    } else if (const auto* const pArea = dynamic_cast<const AcDbMPolygon*>(&from)) {
        static_cast<AcDbMPolygon&>(to).setRings(pArea->rings());
    } else if (const auto* const pText = dynamic_cast<const AcDbText*>(&from)) {
        auto& text = static_cast<AcDbText&>(to);
        text.setPosition(pText->position());
        text.setText(pText->textUtf8());
        text.setHeight(pText->height());
    }
}

void CopyAttributes(const AcDbEntity& from, AcDbEntity& to) {
    // All of them away first: their order counts, too.
    while (to.attributes().size() > 0) {
        to.removeAttribute(to.attributes().at(to.attributes().size() - 1).name);
    }
    for (std::size_t i = 0; i < from.attributes().size(); ++i) {
        const AcDbAttributes::Item item = from.attributes().at(i);
        to.setAttribute(item.name, item.value);
    }
}

class Applying {
public:
    Applying(const TwoSides& sides, AcDbDatabase& merged) : m_sides(sides), m_merged(merged) {}

    void Run() {
        const AcDbUndoPause pause(m_merged);
        if (m_merged.coordinateSystem().IsEmpty()) {
            m_merged.setCoordinateSystem(m_sides.mine.coordinateSystem());
        }
        NumberSystems();
        for (const AcDbObjectId id : m_sides.mine.unsavedObjects()) {
            ApplyLayerOrBlock(*m_sides.mine.peek(id));
        }
        for (const AcDbObjectId id : m_sides.mine.unsavedObjects()) {
            ApplyEntity(*m_sides.mine.peek(id));
        }
        for (const AcDbObjectId id : m_written) {
            Edit<AcDbEntity>(m_merged, id, [this](AcDbEntity& entity) { FixReferences(entity); });
        }
        for (const AcDbObjectId id : m_sides.mine.unsavedObjects()) {
            const AcDbObject& object = *m_sides.mine.peek(id);
            if (object.isA() == AcDbDictionary::desc()) {
                ApplyDictionary(static_cast<const AcDbDictionary&>(object));
            }
            EraseLayer(object);
        }
    }

private:
    /// A number that both sides gave out stays theirs: it is in the file already.
    void NumberSystems() {
        const int theirLast = LastSystem(m_merged);
        m_nLastSystem = std::max(theirLast, LastSystem(m_sides.mine));
        for (const AcDbObjectId id : m_sides.mine.dictionaries()) {
            const auto& dictionary = static_cast<const AcDbDictionary&>(*m_sides.mine.peek(id));
            const std::optional<int> number = SystemNumber(dictionary.name());
            if (number && *number <= theirLast &&
                !m_sides.base.dictionaries.contains(dictionary.name())) {
                m_systems[*number] = ++m_nLastSystem;
            }
        }
    }

    static int LastSystem(const AcDbDatabase& database) {
        int last = NumberOf(database, AcDbReferences::kSystems, AcDbReferences::kLastSystem);
        for (const AcDbObjectId id : database.dictionaries()) {
            const auto& dictionary = static_cast<const AcDbDictionary&>(*database.peek(id));
            last = std::max(last, SystemNumber(dictionary.name()).value_or(0));
        }
        return last;
    }

    int SystemFor(int mine) const {
        const auto found = m_systems.find(mine);
        return found == m_systems.end() ? mine : found->second;
    }

    void ApplyLayerOrBlock(const AcDbObject& object) {
        if (object.isErased()) {
            return;
        }
        if (object.isA() == AcDbBlockTableRecord::desc()) {
            m_merged.block(static_cast<const AcDbBlockTableRecord&>(object).getName());
        } else if (object.isA() == AcDbLayerTableRecord::desc()) {
            const auto& mine = static_cast<const AcDbLayerTableRecord&>(object);
            // One that is new on both sides is one layer, as they made it.
            const bool isTheirs =
                m_sides.IsNew(mine.objectId()) && !m_merged.findLayer(mine.getName()).isNull();
            if (!isTheirs) {
                CopyLayer(mine);
            }
        }
    }

    void CopyLayer(const AcDbLayerTableRecord& mine) {
        Edit<AcDbLayerTableRecord>(m_merged, m_merged.layer(mine.getName()),
                                   [&mine](AcDbLayerTableRecord& layer) {
                                       layer.setColorIndex(mine.colorIndex());
                                       layer.setIsOff(mine.isOff());
                                   });
    }

    AcDbObjectId LayerFor(const AcDbEntity& mine) {
        const auto* const pMine =
            dynamic_cast<const AcDbLayerTableRecord*>(m_sides.mine.peek(mine.layerId()));
        if (!pMine) {
            return {};
        }
        if (m_merged.findLayer(pMine->getName()).isNull()) {
            CopyLayer(*pMine); // they removed it
        }
        return m_merged.findLayer(pMine->getName());
    }

    AcDbObjectId BlockFor(const AcDbEntity& mine) {
        const auto* const pMine =
            dynamic_cast<const AcDbBlockTableRecord*>(m_sides.mine.peek(mine.blockId()));
        return pMine ? m_merged.block(pMine->getName()) : AcDbObjectId();
    }

    void ApplyEntity(const AcDbObject& object) {
        if (!object.isEntity()) {
            return;
        }
        const auto& mine = static_cast<const AcDbEntity&>(object);
        const AcDbObjectId id = mine.objectId();
        const AcDbObject* const pTheirs = m_sides.IsNew(id) ? nullptr : m_merged.peek(id);
        if (!pTheirs && !mine.isErased()) {
            Add(mine);
        } else if (pTheirs && mine.isErased()) {
            Edit<AcDbEntity>(m_merged, id, [](AcDbEntity& entity) { entity.erase(); });
        } else if (pTheirs && pTheirs->isA() == mine.isA()) {
            Edit<AcDbEntity>(m_merged, id, [&](AcDbEntity& entity) {
                entity.setLayer(LayerFor(mine));
                entity.setColorIndex(mine.colorIndex());
                CopyShape(mine, entity);
                CopyAttributes(mine, entity);
            });
            m_written.push_back(id);
        }
    }

    void Add(const AcDbEntity& mine) {
        std::unique_ptr<AcDbObject> copy = mine.clone();
        std::unique_ptr<AcDbEntity> entity(static_cast<AcDbEntity*>(copy.release()));
        entity->setLayer(LayerFor(mine));
        AcDbObjectId id = mine.objectId();
        if (m_sides.IsNew(id)) {
            id = m_merged.appendEntity(std::move(entity), BlockFor(mine));
            m_ids[mine.objectId()] = id;
        } else {
            // They removed it. A third program that changed it, too, means the same one.
            m_merged.restoreEntity(id, std::move(entity), BlockFor(mine));
        }
        m_written.push_back(id);
    }

    void FixReferences(AcDbEntity& entity) {
        for (const std::string_view attribute : AcDbReferences::kObjectAttributes) {
            const AcDbNameId name = AcDbIntern(attribute);
            const auto id = entity.attribute(name).asInteger();
            const auto moved = id && *id > 0 && *id <= kHighestId
                                   ? m_ids.find(AcDbObjectId(static_cast<std::uint32_t>(*id)))
                                   : m_ids.end();
            if (moved != m_ids.end()) {
                entity.setAttribute(name, std::int64_t{moved->second.number()});
            }
        }
        const AcDbNameId system = AcDbIntern(AcDbReferences::kSystemAttribute);
        const auto number = entity.attribute(system).asInteger();
        const auto renumbered = number && *number > 0 && *number <= kHighestId
                                    ? SystemFor(static_cast<int>(*number))
                                    : 0;
        if (renumbered > 0 && renumbered != *number) {
            entity.setAttribute(system, renumbered);
        }
        const AcDbNameId list = AcDbIntern(AcDbReferences::kSystemListAttribute);
        if (!m_systems.empty() && entity.attributes().has(list)) {
            FixList(entity, list);
        }
    }

    void FixList(AcDbEntity& entity, AcDbNameId name) {
        const AcDbValue value = entity.attribute(name);
        if (const auto single = value.asInteger()) {
            if (*single > 0 && *single <= kHighestId) {
                entity.setAttribute(name, SystemFor(static_cast<int>(*single)));
            }
            return;
        }
        std::string text(value.asText());
        std::string fixed;
        for (std::size_t at = 0; at < text.size();) {
            const std::size_t end = std::min(text.find(' ', at), text.size());
            int number = 0;
            const auto read = std::from_chars(text.data() + at, text.data() + end, number);
            fixed += read.ptr == text.data() + end && end > at ? std::to_string(SystemFor(number))
                                                               : text.substr(at, end - at);
            fixed += end < text.size() ? " " : "";
            at = end + 1;
        }
        entity.setAttribute(name, std::string_view(fixed));
    }

    void EraseLayer(const AcDbObject& object) {
        if (object.isErased() && object.isA() == AcDbLayerTableRecord::desc()) {
            // Stays if they have drawn on it.
            const CString& name = static_cast<const AcDbLayerTableRecord&>(object).getName();
            Edit<AcDbLayerTableRecord>(m_merged, m_merged.findLayer(name),
                                       [](AcDbLayerTableRecord& layer) { layer.erase(); });
        }
    }

    void ApplyDictionary(const AcDbDictionary& mine) {
        const bool isKnown = m_sides.base.dictionaries.contains(mine.name());
        if (mine.isErased()) {
            if (isKnown) {
                Edit<AcDbDictionary>(m_merged, m_merged.findDictionary(mine.name()),
                                     [](AcDbDictionary& dictionary) { dictionary.erase(); });
            }
            return;
        }
        const std::optional<int> system = SystemNumber(mine.name());
        const CString name =
            system ? CString(AcDbReferences::kSystemDictionary.data()) + TextOf(SystemFor(*system))
                   : mine.name();
        const bool wereTheyRid = isKnown && m_merged.findDictionary(name).isNull();
        Edit<AcDbDictionary>(m_merged, m_merged.dictionary(name), [&](AcDbDictionary& theirs) {
            for (const auto& [record, text] : mine.records()) {
                const RecordSides changes =
                    CompareRecord(m_sides.base, mine.name(), record, &text, theirs.getAt(record));
                if (changes.isMineChanged || wereTheyRid) {
                    SetRecord(mine, record, text, theirs);
                }
            }
            RemoveRecords(mine, theirs);
        });
    }

    void RemoveRecords(const AcDbDictionary& mine, AcDbDictionary& theirs) {
        const auto known = m_sides.base.dictionaries.find(mine.name());
        if (known == m_sides.base.dictionaries.end()) {
            return;
        }
        for (const auto& [record, sum] : known->second) {
            if (!mine.getAt(record) && theirs.getAt(record)) {
                theirs.remove(record);
            }
        }
    }

    void SetRecord(const AcDbDictionary& mine, const CString& record, const CString& text,
                   AcDbDictionary& theirs) {
        if (mine.name().View() != AcDbReferences::kSystems) {
            theirs.setAt(record, text);
            return;
        }
        const std::wstring_view name = record.View();
        if (name == AcDbReferences::kLastSystem) {
            theirs.setAt(record, TextOf(m_nLastSystem));
        } else if (name == AcDbReferences::kActiveSystem) {
            theirs.setAt(record, TextOf(SystemFor(NumberOf(text.View()))));
        } else if (name == AcDbReferences::kDrawingGuid) {
            if (!theirs.getAt(record)) {
                theirs.setAt(record, text);
            }
        } else if (name.starts_with(AcDbReferences::kSystemCounter)) {
            SetCounter(record, text, theirs);
        } else {
            theirs.setAt(record, text);
        }
    }

    /// Of two the higher one: neither side may give a name that the other one has given.
    void SetCounter(const CString& record, const CString& text, AcDbDictionary& theirs) {
        const std::wstring_view behind =
            record.View().substr(AcDbReferences::kSystemCounter.size());
        const std::size_t dot = std::min(behind.find(L'.'), behind.size());
        const CString name = CString(AcDbReferences::kSystemCounter.data()) +
                             TextOf(SystemFor(NumberOf(behind.substr(0, dot)))) +
                             CString(std::wstring(behind.substr(dot)));
        const CString* const pTheirs = theirs.getAt(name);
        if (!pTheirs || NumberOf(pTheirs->View()) < NumberOf(text.View())) {
            theirs.setAt(name, text);
        }
    }

    const TwoSides& m_sides;
    AcDbDatabase& m_merged;
    std::map<int, int> m_systems; ///< numbers of mine that had to change
    int m_nLastSystem = 0;
    std::unordered_map<AcDbObjectId, AcDbObjectId> m_ids; ///< of entities that were added
    std::vector<AcDbObjectId> m_written;
};

} // namespace

void ApplyMine(const TwoSides& sides, AcDbDatabase& merged) {
    Applying(sides, merged).Run();
}

} // namespace Tessaly
