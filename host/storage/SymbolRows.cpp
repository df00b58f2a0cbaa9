#include "host/storage/SymbolRows.h"

#include <map>
#include <ogrsf_frmts.h>

#include "host/storage/Columns.h"
#include "host/storage/OpenGeoPackage.h"
#include "platform/arx/DbDictionary.h"
#include "platform/arx/DbSymbolTables.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

using Values = std::initializer_list<std::pair<const char*, AcDbValue>>;

OGRFeatureUniquePtr RowOf(OGRLayer& table, Values values) {
    OGRFeatureUniquePtr row{OGRFeature::CreateFeature(table.GetLayerDefn())};
    for (const auto& [field, value] : values) {
        const int index = row->GetFieldIndex(field);
        if (index >= 0) {
            SetFieldValue(*row, index, value);
        }
    }
    return row;
}

/// Into the row of that number, or a new one.
bool PutRow(OGRLayer& table, std::int64_t fid, Values values, bool isNewFile) {
    const OGRFeatureUniquePtr row = RowOf(table, values);
    row->SetFID(fid);
    const OGRErr updated = isNewFile ? OGRERR_NON_EXISTING_FEATURE : table.SetFeature(row.get());
    return updated == OGRERR_NONE || (updated == OGRERR_NON_EXISTING_FEATURE &&
                                      table.CreateFeature(row.get()) == OGRERR_NONE);
}

bool DeleteRow(OGRLayer& table, std::int64_t fid) {
    const OGRErr deleted = table.DeleteFeature(fid);
    return deleted == OGRERR_NONE || deleted == OGRERR_NON_EXISTING_FEATURE;
}

struct StoredRecord {
    std::int64_t fid;
    std::string text;
};

bool AddRecord(OGRLayer& table, std::int64_t dictionary, const std::string& name,
               const std::string& text) {
    const OGRFeatureUniquePtr row = RowOf(table, {{"dictionary", dictionary},
                                                  {"name", std::string_view(name)},
                                                  {"text", std::string_view(text)}});
    return table.CreateFeature(row.get()) == OGRERR_NONE;
}

std::multimap<std::string, StoredRecord> StoredRecords(OGRLayer& table, std::int64_t dictionary) {
    std::multimap<std::string, StoredRecord> stored;
    table.SetAttributeFilter(("dictionary = " + std::to_string(dictionary)).c_str());
    table.ResetReading();
    while (const OGRFeatureUniquePtr row{table.GetNextFeature()}) {
        stored.emplace(FieldText(*row, "name"),
                       StoredRecord{row->GetFID(), FieldText(*row, "text")});
    }
    table.SetAttributeFilter(nullptr);
    return stored;
}

/// Only records that differ are written: a dictionary may hold thousands of long ones.
bool WriteRecords(OGRLayer& table, const AcDbDictionary& dictionary, bool isNewFile) {
    const std::int64_t number = dictionary.objectId().number();
    std::multimap<std::string, StoredRecord> stored;
    if (!isNewFile) {
        stored = StoredRecords(table, number);
    }
    for (const auto& [wideName, wideText] : dictionary.records()) {
        if (dictionary.isErased()) {
            break;
        }
        const std::string name = WideToUtf8(wideName.View());
        const std::string text = WideToUtf8(wideText.View());
        const auto found = stored.find(name);
        bool isDone = true;
        if (found == stored.end()) {
            isDone = AddRecord(table, number, name, text);
        } else if (found->second.text != text) {
            isDone = DeleteRow(table, found->second.fid) && AddRecord(table, number, name, text);
        }
        if (!isDone) {
            return false;
        }
        if (found != stored.end()) {
            stored.erase(found);
        }
    }
    for (const auto& [name, record] : stored) {
        if (!DeleteRow(table, record.fid)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool WriteSymbol(OpenGeoPackage& file, const AcDbObject& object, bool isNewFile) {
    const std::int64_t fid = object.objectId().number();
    const auto* pLayer = dynamic_cast<const AcDbLayerTableRecord*>(&object);
    const auto* pBlock = dynamic_cast<const AcDbBlockTableRecord*>(&object);
    const auto* pDictionary = dynamic_cast<const AcDbDictionary*>(&object);
    OGRLayer* pTable = file.Table(pLayer ? kLayerTable : pBlock ? kBlockTable : kDictionaryTable);
    OGRLayer* pRecords = file.Table(kRecordTable);
    if (!pTable || !pRecords) {
        return false;
    }
    if (pDictionary && !WriteRecords(*pRecords, *pDictionary, isNewFile)) {
        return false;
    }
    if (object.isErased()) {
        return isNewFile || DeleteRow(*pTable, fid);
    }
    const CString& name = pLayer   ? pLayer->getName()
                          : pBlock ? pBlock->getName()
                                   : pDictionary->name();
    const std::string utf8 = WideToUtf8(name.View());
    if (pLayer) {
        return PutRow(*pTable, fid,
                      {{"name", std::string_view(utf8)},
                       {"color", pLayer->colorIndex()},
                       {"off", pLayer->isOff() ? 1 : 0}},
                      isNewFile);
    }
    return PutRow(*pTable, fid, {{"name", std::string_view(utf8)}}, isNewFile);
}

bool AddNote(OpenGeoPackage& file, const char* table, Values values) {
    OGRLayer* pTable = file.Table(table);
    return pTable && pTable->CreateFeature(RowOf(*pTable, values).get()) == OGRERR_NONE;
}

} // namespace Tessaly
