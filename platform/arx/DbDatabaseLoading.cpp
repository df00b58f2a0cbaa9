// Filling a database from a file.

#include <algorithm>
#include <stdexcept>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"

namespace {

constexpr const wchar_t* kLayerZero = L"0";

} // namespace

void AcDbDatabase::reset() {
    beginLoading(1);
    m_layerZero = layer(kLayerZero);
    m_modelSpace = block(kModelSpace);
    m_nFirstUnstored = nextId();
    m_bLoading = false;
}

void AcDbDatabase::beginLoading(std::uint32_t nextId) {
    if (m_nOpen > 0) {
        throw std::logic_error("Cannot read a drawing while objects of it are open.");
    }
    m_bLoading = true;
    m_pUndo->clear();
    m_unsaved.clear();
    m_layersByName.clear();
    m_blocksByName.clear();
    m_dictionariesByName.clear();
    m_layerZero = {};
    m_modelSpace = {};
    m_nEntities = 0;
    m_strCoordinateSystem.Empty();
    m_bHeaderUnsaved = false;
    m_objects.clear();
    m_objects.resize(std::max<std::uint32_t>(nextId, 1));
}

void AcDbDatabase::cancelLoading() {
    reset();
}

void AcDbDatabase::load(AcDbObjectId id, std::unique_ptr<AcDbObject> pObject, AcDbObjectId block) {
    const bool free = id.number() < m_objects.size() && !m_objects[id.number()];
    if (!m_bLoading || !pObject || id.isNull() || !free) {
        throw std::logic_error("Cannot read an object into the drawing with the number " +
                               std::to_string(id.number()) + ".");
    }
    CString key;
    const Names* const pNames = namesOf(*pObject, key);
    if (pNames && pNames->contains(key)) {
        throw std::logic_error("The drawing has two objects of the same name (object " +
                               std::to_string(id.number()) + ").");
    }
    if (pObject->m_bEntity) {
        static_cast<AcDbEntity&>(*pObject).m_block = block;
    }
    adopt(id, std::move(pObject));
}

void AcDbDatabase::endLoading() {
    m_layerZero = layer(kLayerZero);
    m_modelSpace = block(kModelSpace);
    placeLoadedEntities();
    m_nFirstUnstored = nextId();
    m_bLoading = false;
    tellReplaced();
}

void AcDbDatabase::takeContent(AcDbDatabase& other) {
    if (m_nOpen > 0 || other.m_nOpen > 0) {
        throw std::logic_error("A drawing was to be replaced while objects of it are open.");
    }
    m_pUndo->clear();
    other.m_pUndo->clear();
    m_objects = std::move(other.m_objects);
    for (const auto& pObject : m_objects) {
        if (pObject) {
            pObject->m_pDatabase = this;
        }
    }
    m_unsaved = std::move(other.m_unsaved);
    m_layersByName = std::move(other.m_layersByName);
    m_blocksByName = std::move(other.m_blocksByName);
    m_dictionariesByName = std::move(other.m_dictionariesByName);
    m_layerZero = other.m_layerZero;
    m_modelSpace = other.m_modelSpace;
    m_nEntities = other.m_nEntities;
    m_strCoordinateSystem = other.m_strCoordinateSystem;
    m_bHeaderUnsaved = other.m_bHeaderUnsaved;
    other.reset();
    tellReplaced();
}

void AcDbDatabase::placeLoadedEntities() {
    // Consecutive entities mostly share both, so caching the last ones is enough.
    AcDbObjectId knownLayer;
    AcDbObjectId knownBlock;
    AcDbBlockTableRecord* pBlock = nullptr;
    for (const auto& pObject : m_objects) {
        if (!pObject || !pObject->m_bEntity) {
            continue;
        }
        auto& entity = static_cast<AcDbEntity&>(*pObject);
        if (entity.m_layer != knownLayer || knownLayer.isNull()) {
            entity.m_layer =
                live<AcDbLayerTableRecord>(entity.m_layer) ? entity.m_layer : m_layerZero;
            knownLayer = entity.m_layer;
        }
        if (entity.m_block != knownBlock || !pBlock) {
            pBlock = live<AcDbBlockTableRecord>(entity.m_block);
            if (!pBlock) {
                pBlock = live<AcDbBlockTableRecord>(m_modelSpace);
            }
            entity.m_block = knownBlock = pBlock->objectId();
        }
        pBlock->m_entities.push_back(entity.objectId());
    }
}
