// Opening and erasing of objects, and notification of reactors.

#include <algorithm>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"

namespace {

/// The highest reader count that leaves room for one more in its bit field.
constexpr std::uint32_t kMostReaders = (1U << 20) - 2;

} // namespace

Acad::ErrorStatus AcDbDatabase::open(AcDbObject*& pObject, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased) {
    if (mode != AcDb::kForRead && mode != AcDb::kForWrite) {
        return Acad::eInvalidInput;
    }
    AcDbObject* const pFound = object(id);
    if (!pFound) {
        return id.isNull() ? Acad::eNullObjectId : Acad::eUnknownObject;
    }
    if (pFound->m_bErased && !openErased) {
        return Acad::eWasErased;
    }
    if (pFound->m_bWriter) {
        return Acad::eWasOpenForWrite;
    }
    if (pFound->m_nReaders > (mode == AcDb::kForWrite ? 0 : kMostReaders)) {
        return Acad::eWasOpenForRead;
    }
    m_nOpen += pFound->m_nReaders == 0;
    if (mode == AcDb::kForRead) {
        ++pFound->m_nReaders;
    } else {
        startWriting(*pFound);
    }
    pObject = pFound;
    return Acad::eOk;
}

void AcDbDatabase::startWriting(AcDbObject& object) {
    object.m_bWriter = true;
    object.m_bChanged = false;
    object.m_bWasErased = object.m_bErased;
    ++m_nWriters;
}

void AcDbDatabase::endWriting(AcDbObject& object) {
    object.m_bWriter = false;
    --m_nWriters;
    m_pUndo->noteClosed(object);
    tellChanges(object, object.m_bErased != object.m_bWasErased, object.m_bChanged);
    m_pUndo->noteComplete();
}

bool AcDbDatabase::isInUse(const AcDbObject& object) const {
    if (object.m_bEntity) {
        return false;
    }
    if (object.m_id == m_layerZero || object.m_id == m_modelSpace) {
        return true;
    }
    // Checks every entity: layers and blocks are rarely erased, and keeping a count in each correct
    // through undo and redo would cost more.
    return std::any_of(m_objects.begin(), m_objects.end(), [&](const auto& pOther) {
        if (!pOther || !pOther->m_bEntity || pOther->m_bErased) {
            return false;
        }
        const auto& entity = static_cast<const AcDbEntity&>(*pOther);
        return entity.m_layer == object.m_id || entity.m_block == object.m_id;
    });
}

Acad::ErrorStatus AcDbDatabase::mayErase(const AcDbObject& object, bool bErasing) const {
    if (bErasing) {
        return isInUse(object) ? Acad::eInvalidInput : Acad::eOk;
    }
    if (!object.m_bEntity) {
        return Acad::eOk;
    }
    const auto& entity = static_cast<const AcDbEntity&>(object);
    const bool hasPlace =
        live<AcDbBlockTableRecord>(entity.m_block) && live<AcDbLayerTableRecord>(entity.m_layer);
    return hasPlace ? Acad::eOk : Acad::eInvalidInput;
}

void AcDbDatabase::setErased(AcDbObject& object, bool bErased) {
    if (object.m_bErased == bErased) {
        return;
    }
    object.m_bErased = bErased;
    if (object.m_bEntity) {
        bErased ? --m_nEntities : ++m_nEntities;
    }
    markUnsaved(object);
}

void AcDbDatabase::addReactor(AcDbDatabaseReactor* pReactor) {
    if (pReactor && std::find(m_reactors.begin(), m_reactors.end(), pReactor) == m_reactors.end()) {
        m_reactors.push_back(pReactor);
    }
}

void AcDbDatabase::removeReactor(AcDbDatabaseReactor* pReactor) {
    // Only set to null, as a call may be iterating over them.
    std::replace(m_reactors.begin(), m_reactors.end(), pReactor,
                 static_cast<AcDbDatabaseReactor*>(nullptr));
    if (m_nTelling == 0) {
        std::erase(m_reactors, nullptr);
    }
}

template <class Call>
void AcDbDatabase::tell(Call call) {
    struct Telling {
        explicit Telling(AcDbDatabase& database) : m_database(database) { ++database.m_nTelling; }
        ~Telling() {
            if (--m_database.m_nTelling == 0) {
                std::erase(m_database.m_reactors, nullptr);
            }
        }
        AcDbDatabase& m_database;
    };
    const Telling telling(*this);
    const std::size_t count = m_reactors.size();
    for (std::size_t i = 0; i < count; ++i) {
        if (m_reactors[i]) {
            call(*m_reactors[i]);
        }
    }
}

void AcDbDatabase::tellAppended(const AcDbObject& object) {
    if (!m_bLoading) {
        tell([&](AcDbDatabaseReactor& reactor) { reactor.objectAppended(this, &object); });
    }
}

void AcDbDatabase::tellReplaced() {
    tell([this](AcDbDatabaseReactor& reactor) { reactor.databaseReplaced(this); });
}

void AcDbDatabase::tellIdsFreed() {
    tell([this](AcDbDatabaseReactor& reactor) { reactor.idsFreed(this); });
}

void AcDbDatabase::tellGoodbye() {
    tell([this](AcDbDatabaseReactor& reactor) { reactor.goodbye(this); });
}

void AcDbDatabase::tellChanges(const AcDbObject& object, bool bErasedChanged, bool bModified) {
    if (m_bLoading) {
        return;
    }
    if (bErasedChanged) {
        tell([&](AcDbDatabaseReactor& reactor) {
            reactor.objectErased(this, &object, object.isErased());
        });
    }
    if (bModified && !object.isErased()) {
        tell([&](AcDbDatabaseReactor& reactor) { reactor.objectModified(this, &object); });
    }
}
