// What has been read of a drawing, until all of it is known to be good.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/arx/DbDatabase.h"

namespace Tessaly {

/// Gives out ids, and finds layers and blocks by their names. What every database has, layer
/// "0" and the model space, has the ids that an empty one gives them.
class LoadedObjects {
public:
    /// `nextId` is the file's; 0 for a file that states none.
    LoadedObjects(const AcDbDatabase& empty, std::uint32_t nextId);

    /// The id of that number, if it can be one and is not taken; else the null id.
    AcDbObjectId Take(std::int64_t number);
    AcDbObjectId TakeNew();
    /// Ids from here on have not been given out.
    std::uint32_t NextId() const { return m_nNextId; }

    void AddEntity(AcDbObjectId id, std::unique_ptr<AcDbEntity> entity, AcDbObjectId block) {
        m_objects.push_back({id, block, std::move(entity)});
    }
    // Rows of a file: one whose name is there already is passed over, and gives null.
    AcDbLayerTableRecord* AddLayer(std::int64_t number, const CString& name);
    AcDbBlockTableRecord* AddBlock(std::int64_t number, const CString& name);
    AcDbDictionary* AddDictionary(std::int64_t number, const CString& name);

    /// By a name in UTF-8; made if there is none. No name is layer "0", and the model space.
    AcDbObjectId Layer(const char* name);
    AcDbObjectId Block(const char* name);
    /// Objects that have ids which the file does not know.
    const std::vector<AcDbObjectId>& Made() const { return m_made; }

    void MoveInto(AcDbDatabase& database, const wchar_t* coordinateSystem);

private:
    struct Object {
        AcDbObjectId id;
        AcDbObjectId block;
        std::unique_ptr<AcDbObject> object;
    };
    using Names = std::map<std::wstring, AcDbObjectId>; ///< lower case

    AcDbObjectId TakeOrMake(std::int64_t number);
    template <class Symbol>
    Symbol* AddSymbol(Names& names, std::int64_t number, const CString& name);

    std::uint32_t m_nNextId;
    std::vector<bool> m_taken;
    AcDbObjectId m_modelSpace;
    AcDbObjectId m_layerZero;
    Names m_layers;
    Names m_blocks;
    std::set<std::wstring> m_dictionaries;
    std::unordered_map<std::string, AcDbObjectId> m_layersAsWritten;
    std::string m_strLastLayer;
    AcDbObjectId m_lastLayer;
    std::vector<AcDbObjectId> m_made;
    std::vector<Object> m_objects;
};

} // namespace Tessaly
