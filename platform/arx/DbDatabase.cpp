#include "platform/arx/DbDatabase.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "platform/arx/DbClass.h"
#include "platform/arx/DbUndo.h"

namespace {

CString LowerCase(const wchar_t* name) {
    return CString(name).MakeLower();
}

} // namespace

AcRxClass* AcDbDatabase::desc() {
    static AcRxClass* const pClass = acdbRegisterClass(L"AcDbDatabase", AcRxObject::desc());
    return pClass;
}

AcDbDatabase::AcDbDatabase() : m_pUndo(std::make_unique<AcDbUndo>(*this)) {
    reset();
}

AcDbDatabase::~AcDbDatabase() {
    AcDbHostApplicationServices* const pServices = acdbHostApplicationServices();
    if (pServices->workingDatabase() == this) {
        pServices->setWorkingDatabase(nullptr);
    }
    tellGoodbye();
}

AcDbObject* AcDbDatabase::object(AcDbObjectId id) const {
    return id.number() < m_objects.size() ? m_objects[id.number()].get() : nullptr;
}

const AcDbObject* AcDbDatabase::peek(AcDbObjectId id) const {
    return object(id);
}

AcDbObject& AcDbDatabase::adopt(AcDbObjectId id, std::unique_ptr<AcDbObject> pObject) {
    pObject->m_pDatabase = this;
    pObject->m_id = id;
    CString key;
    if (Names* const pNames = namesOf(*pObject, key)) {
        pNames->emplace(std::move(key), id);
    }
    m_nEntities += pObject->m_bEntity;
    return *(m_objects[id.number()] = std::move(pObject));
}

AcDbObjectId AcDbDatabase::append(std::unique_ptr<AcDbObject> pObject) {
    m_pUndo->dropRedo(); // its ids may be free then
    const AcDbObjectId id(nextId());
    m_objects.emplace_back();
    AcDbObject& object = adopt(id, std::move(pObject));
    markUnsaved(object);
    m_pUndo->noteCreated(object);
    tellAppended(object);
    return id;
}

AcDbObjectId AcDbDatabase::appendEntity(std::unique_ptr<AcDbEntity> pEntity, AcDbObjectId block) {
    if (!pEntity) {
        throw std::logic_error("Cannot add a null entity to the drawing.");
    }
    if (m_bLoading) {
        pEntity->m_block = block;
        return append(std::move(pEntity)); // endLoading adds it to its block
    }
    pEntity->m_block = block.isNull() ? m_modelSpace : block;
    if (pEntity->m_layer.isNull()) {
        pEntity->m_layer = m_layerZero;
    }
    auto* const pBlock = live<AcDbBlockTableRecord>(pEntity->m_block);
    if (!pBlock || !live<AcDbLayerTableRecord>(pEntity->m_layer)) {
        throw std::logic_error("An entity was added to a block, or on a layer, that the drawing "
                               "does not have.");
    }
    m_pUndo->dropRedo();
    pBlock->m_entities.push_back(AcDbObjectId(nextId()));
    return append(std::move(pEntity));
}

void AcDbDatabase::restoreEntity(AcDbObjectId id, std::unique_ptr<AcDbEntity> pEntity,
                                 AcDbObjectId block) {
    auto* const pBlock = live<AcDbBlockTableRecord>(block);
    const bool isFree = id.number() > 0 && id.number() < m_objects.size() && !object(id);
    if (m_bLoading || !pEntity || !pBlock || !isFree ||
        !live<AcDbLayerTableRecord>(pEntity->m_layer)) {
        throw std::logic_error("An entity cannot be brought back under the number " +
                               std::to_string(id.number()) + ".");
    }
    pEntity->m_block = block;
    // At the position it would have if it had been read with the others.
    std::vector<AcDbObjectId>& ids = pBlock->m_entities;
    ids.insert(std::lower_bound(ids.begin(), ids.end(), id), id);
    AcDbObject& restored = adopt(id, std::move(pEntity));
    markUnsaved(restored);
    m_pUndo->noteCreated(restored);
    tellAppended(restored);
}

AcDbDatabase::Names* AcDbDatabase::namesOf(const AcDbObject& object, CString& key) {
    if (object.m_bEntity) {
        return nullptr; // the most frequent case; avoids the casts
    }
    if (const auto* const pLayer = dynamic_cast<const AcDbLayerTableRecord*>(&object)) {
        key = LowerCase(pLayer->getName());
        return &m_layersByName;
    }
    if (const auto* const pBlock = dynamic_cast<const AcDbBlockTableRecord*>(&object)) {
        key = LowerCase(pBlock->getName());
        return &m_blocksByName;
    }
    if (const auto* const pDictionary = dynamic_cast<const AcDbDictionary*>(&object)) {
        key = pDictionary->name();
        return &m_dictionariesByName;
    }
    return nullptr;
}

AcDbObjectId AcDbDatabase::findNamed(const Names& names, const CString& key) const {
    const auto hit = names.find(key);
    const bool live = hit != names.end() && !object(hit->second)->isErased();
    return live ? hit->second : AcDbObjectId();
}

template <class T>
AcDbObjectId AcDbDatabase::named(Names& names, const CString& key, const wchar_t* name) {
    const AcDbObjectId live = findNamed(names, key);
    if (!live.isNull()) {
        return live;
    }
    m_pUndo->dropRedo(); // may release the erased one
    const auto hit = names.find(key);
    if (hit == names.end()) {
        return append(std::make_unique<T>(CString(name)));
    }
    const AcDbObjectId id = hit->second;
    bringBack(*object(id));
    return id;
}

void AcDbDatabase::bringBack(AcDbObject& object) {
    m_pUndo->beginGroup(L"");
    if (auto* const pDictionary = dynamic_cast<AcDbDictionary*>(&object)) {
        pDictionary->removeAll();
    }
    m_pUndo->noteErased(object, false);
    m_pUndo->endGroup();
    setErased(object, false);
    tellChanges(object, true, false);
}

AcDbObjectId AcDbDatabase::layer(const wchar_t* name) {
    return named<AcDbLayerTableRecord>(m_layersByName, LowerCase(name), name);
}

AcDbObjectId AcDbDatabase::findLayer(const wchar_t* name) const {
    return findNamed(m_layersByName, LowerCase(name));
}

AcDbObjectId AcDbDatabase::block(const wchar_t* name) {
    return named<AcDbBlockTableRecord>(m_blocksByName, LowerCase(name), name);
}

AcDbObjectId AcDbDatabase::findBlock(const wchar_t* name) const {
    return findNamed(m_blocksByName, LowerCase(name));
}

AcDbObjectId AcDbDatabase::dictionary(const wchar_t* name) {
    return named<AcDbDictionary>(m_dictionariesByName, CString(name), name);
}

AcDbObjectId AcDbDatabase::findDictionary(const wchar_t* name) const {
    return findNamed(m_dictionariesByName, CString(name));
}

std::vector<AcDbObjectId> AcDbDatabase::layers() const {
    return inOrder(m_layersByName);
}

std::vector<AcDbObjectId> AcDbDatabase::blocks() const {
    return inOrder(m_blocksByName);
}

std::vector<AcDbObjectId> AcDbDatabase::dictionaries() const {
    return inOrder(m_dictionariesByName);
}

std::vector<AcDbObjectId> AcDbDatabase::inOrder(const Names& names) const {
    std::vector<AcDbObjectId> ids;
    for (const auto& [key, id] : names) {
        if (!object(id)->isErased()) {
            ids.push_back(id);
        }
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

void AcDbDatabase::setCoordinateSystem(const wchar_t* wkt) {
    CString text(wkt);
    if (text == m_strCoordinateSystem) {
        return;
    }
    m_pUndo->noteCoordinateSystem();
    m_bHeaderUnsaved = !m_bLoading;
    m_strCoordinateSystem = std::move(text);
}

void AcDbDatabase::markUnsaved(AcDbObject& object) {
    if (!m_bLoading && !object.m_bUnsaved) {
        m_unsaved.push_back(object.m_id);
        object.m_bUnsaved = true;
    }
}

void AcDbDatabase::markSaved() {
    for (const AcDbObjectId id : m_unsaved) {
        object(id)->m_bUnsaved = false;
    }
    m_unsaved.clear();
    m_bHeaderUnsaved = false;
    m_nFirstUnstored = nextId();
    m_pUndo->noteSaved();
}

AcDbHostApplicationServices* acdbHostApplicationServices() {
    static auto* const services = new AcDbHostApplicationServices;
    return services;
}
