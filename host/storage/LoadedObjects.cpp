#include "host/storage/LoadedObjects.h"

#include <algorithm>

#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

constexpr const wchar_t* kLayerZero = L"0";
/// No row has it: the object is new to the file.
constexpr std::int64_t kNoNumber = 0;

std::wstring Lower(const CString& name) {
    CString lower = name;
    return lower.MakeLower().Str();
}

} // namespace

LoadedObjects::LoadedObjects(const AcDbDatabase& empty, std::uint32_t nextId)
    : m_nNextId(std::max(nextId, empty.nextId())), m_taken(m_nNextId),
      m_modelSpace(empty.modelSpace()), m_layerZero(empty.findLayer(kLayerZero)) {
    m_taken[m_modelSpace.number()] = true;
    m_taken[m_layerZero.number()] = true;
}

AcDbObjectId LoadedObjects::Take(std::int64_t number) {
    if (number <= 0 || number >= std::int64_t{m_nNextId}) {
        return {};
    }
    const auto index = static_cast<std::uint32_t>(number);
    if (m_taken[index]) {
        return {};
    }
    m_taken[index] = true;
    return AcDbObjectId(index);
}

AcDbObjectId LoadedObjects::TakeNew() {
    m_taken.push_back(true);
    return AcDbObjectId(m_nNextId++);
}

AcDbObjectId LoadedObjects::TakeOrMake(std::int64_t number) {
    AcDbObjectId id = Take(number);
    if (id.isNull()) {
        id = TakeNew();
        m_made.push_back(id);
    }
    return id;
}

template <class Symbol>
Symbol* LoadedObjects::AddSymbol(Names& names, std::int64_t number, const CString& name) {
    const auto [place, isNew] = names.try_emplace(Lower(name));
    if (!isNew) {
        return nullptr;
    }
    if (name.CompareNoCase(kLayerZero) == 0 && &names == &m_layers) {
        place->second = m_layerZero;
    } else if (name.CompareNoCase(kModelSpace) == 0 && &names == &m_blocks) {
        place->second = m_modelSpace;
    } else {
        place->second = TakeOrMake(number);
    }
    auto symbol = std::make_unique<Symbol>(name);
    Symbol* pSymbol = symbol.get();
    m_objects.push_back({place->second, {}, std::move(symbol)});
    return pSymbol;
}

AcDbLayerTableRecord* LoadedObjects::AddLayer(std::int64_t number, const CString& name) {
    return AddSymbol<AcDbLayerTableRecord>(m_layers, number, name);
}

AcDbBlockTableRecord* LoadedObjects::AddBlock(std::int64_t number, const CString& name) {
    return AddSymbol<AcDbBlockTableRecord>(m_blocks, number, name);
}

AcDbDictionary* LoadedObjects::AddDictionary(std::int64_t number, const CString& name) {
    if (!m_dictionaries.insert(name.Str()).second) {
        return nullptr;
    }
    auto dictionary = std::make_unique<AcDbDictionary>(name);
    AcDbDictionary* pDictionary = dictionary.get();
    m_objects.push_back({TakeOrMake(number), {}, std::move(dictionary)});
    return pDictionary;
}

AcDbObjectId LoadedObjects::Layer(const char* name) {
    if (!name || !*name) {
        return m_layerZero;
    }
    // Neighbours in a table tend to lie on one layer.
    if (m_strLastLayer == name) {
        return m_lastLayer;
    }
    m_strLastLayer = name;
    const auto [written, isNew] = m_layersAsWritten.try_emplace(m_strLastLayer);
    if (isNew) {
        const CString wide = Utf8ToWide(name);
        AddLayer(kNoNumber, wide);
        written->second = m_layers[Lower(wide)];
    }
    return m_lastLayer = written->second;
}

AcDbObjectId LoadedObjects::Block(const char* name) {
    if (!name || !*name) {
        return m_modelSpace;
    }
    const CString wide = Utf8ToWide(name);
    AddBlock(kNoNumber, wide);
    return m_blocks[Lower(wide)];
}

void LoadedObjects::MoveInto(AcDbDatabase& database, const wchar_t* coordinateSystem) {
    AddLayer(kNoNumber, kLayerZero);
    AddBlock(kNoNumber, kModelSpace);
    try {
        database.beginLoading(m_nNextId);
        for (Object& object : m_objects) {
            database.load(object.id, std::move(object.object), object.block);
        }
        database.setCoordinateSystem(coordinateSystem);
        database.endLoading();
    } catch (...) {
        database.cancelLoading();
        throw;
    }
}

} // namespace Tessaly
