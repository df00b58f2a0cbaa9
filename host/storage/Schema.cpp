#include "host/storage/Schema.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <map>
#include <ogrsf_frmts.h>

#include "host/Texts.h"
#include "host/storage/OpenGeoPackage.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

struct Column {
    const char* name;
    OGRFieldType type;
};

struct Table {
    const char* name;
    std::vector<Column> columns;
};

const std::vector<Table>& Tables() {
    static const std::vector<Table> tables = {
        {kMetaTable, {{"key", OFTString}, {"value", OFTString}}},
        {kLayerTable, {{"name", OFTString}, {"color", OFTInteger64}, {"off", OFTInteger64}}},
        {kBlockTable, {{"name", OFTString}}},
        {kDictionaryTable, {{"name", OFTString}}},
        {kRecordTable, {{"dictionary", OFTInteger64}, {"name", OFTString}, {"text", OFTString}}},
        {kColumnTable,
         {{"table_name", OFTString}, {"column_name", OFTString}, {"attribute", OFTString}}},
        {kForeignTable,
         {{"table_name", OFTString}, {"row_fid", OFTInteger64}, {"part", OFTInteger64}}},
        {kIdTable,
         {{"table_name", OFTString},
          {"place", OFTInteger64},
          {"first_id", OFTInteger64},
          {"count", OFTInteger64}}},
        {kSaveTable,
         {{"revision", OFTInteger64},
          {"save_id", OFTString},
          {"saved_by", OFTString},
          {"host", OFTString},
          {"program", OFTString},
          {"saved_at", OFTString},
          {"changed", OFTString}}},
    };
    return tables;
}

bool ForEachRow(OpenGeoPackage& file, const char* table,
                const std::function<void(const OGRFeature&)>& visit) {
    OGRLayer* pLayer = file.Table(table);
    if (!pLayer) {
        return true;
    }
    CPLErrorReset();
    pLayer->ResetReading();
    while (const OGRFeatureUniquePtr row{pLayer->GetNextFeature()}) {
        visit(*row);
    }
    return CPLGetLastErrorType() < CE_Failure;
}

std::int64_t Whole(const OGRFeature& row, const char* field) {
    const int index = row.GetFieldIndex(field);
    return index < 0 ? 0 : row.GetFieldAsInteger64(index);
}

std::int64_t WholeOf(const std::string& text) {
    std::int64_t value = -1;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

CString CheckVersion(const std::string& version) {
    const std::int64_t number = WholeOf(version);
    if (number < 1) {
        return Text(Msg::SchemaWithoutVersion);
    }
    return number > kSchemaVersion ? Text(Msg::SchemaIsNewer, number, kSchemaVersion) : CString();
}

bool LoadNotes(OpenGeoPackage& file, Schema& schema) {
    const bool columns = ForEachRow(file, kColumnTable, [&](const OGRFeature& row) {
        schema.columns.push_back({FieldText(row, "table_name"), FieldText(row, "column_name"),
                                  FieldText(row, "attribute")});
    });
    const bool foreign = ForEachRow(file, kForeignTable, [&](const OGRFeature& row) {
        schema.foreign.emplace(FieldText(row, "table_name"), Whole(row, "row_fid"),
                               Whole(row, "part"));
    });
    const bool runs = ForEachRow(file, kIdTable, [&](const OGRFeature& row) {
        const std::int64_t first = Whole(row, "first_id");
        const std::int64_t count = Whole(row, "count");
        // Others may have written here: a run that cannot be is no run.
        if (first > 0 && count > 0 && first < schema.nextId && count <= schema.nextId - first) {
            schema.runs.push_back({FieldText(row, "table_name"), Whole(row, "place"),
                                   static_cast<std::uint32_t>(first),
                                   static_cast<std::uint32_t>(count)});
        }
    });
    return columns && foreign && runs;
}

bool CreateTable(OpenGeoPackage& file, const Table& table) {
    OGRLayer* pLayer = file.Dataset().CreateLayer(table.name, nullptr, wkbNone, nullptr);
    if (!pLayer) {
        return false;
    }
    for (const Column& column : table.columns) {
        OGRFieldDefn field(column.name, column.type);
        if (pLayer->CreateField(&field) != OGRERR_NONE) {
            return false;
        }
    }
    return pLayer->SyncToDisk() == OGRERR_NONE;
}

void FindMissingTables(OpenGeoPackage& file, Schema& schema) {
    for (const Table& table : Tables()) {
        // A file that no save has marked never had the notes about saves.
        const bool isExpected =
            table.name != std::string_view(kSaveTable) || !schema.identity.guid.empty();
        if (isExpected && !file.Table(table.name)) {
            schema.missing.emplace_back(table.name);
        }
    }
    for (const std::string& table : schema.tables) {
        if (!table.empty() && !file.Table(table)) {
            schema.missing.push_back(table);
        }
    }
}

/// A dictionary's records are looked up whenever it is written.
bool CreateIndex(OpenGeoPackage& file) {
    return file.Execute("CREATE INDEX IF NOT EXISTS orv_records_by_dictionary ON orv_records "
                        "(dictionary, name)");
}

} // namespace

bool Schema::IsOurs(const std::string& table) const {
    for (const Table& own : Tables()) {
        if (table == own.name) {
            return true;
        }
    }
    for (const std::string& own : tables) {
        if (table == own) {
            return true;
        }
    }
    return false;
}

CString LoadSchema(OpenGeoPackage& file, Schema& schema) {
    schema = Schema();
    if (!file.Table(kMetaTable)) {
        return {};
    }
    std::map<std::string, std::string> meta;
    CString damaged = Text(Msg::SchemaUnreadable);
    if (!ForEachRow(file, kMetaTable, [&](const OGRFeature& row) {
            meta[FieldText(row, "key")] = FieldText(row, "value");
        })) {
        return damaged;
    }
    CString version = CheckVersion(meta["version"]);
    if (!version.IsEmpty()) {
        return version;
    }
    const std::int64_t nextId = WholeOf(meta["next_id"]);
    if (nextId < 1 || nextId > kHighestId) {
        return Text(Msg::SchemaNextId);
    }
    schema.exists = true;
    schema.nextId = static_cast<std::uint32_t>(nextId);
    schema.identity = {meta["guid"], std::max<std::int64_t>(WholeOf(meta["revision"]), 0),
                       meta["save_id"]};
    schema.coordinateSystem = meta["srs"];
    for (std::size_t i = 0; i < kEntityKinds; ++i) {
        schema.tables[i] = meta[std::string("table.") + kEntityTables[i]];
        schema.lastFids[i] = WholeOf(meta[std::string("last.") + kEntityTables[i]]);
    }
    FindMissingTables(file, schema);
    return LoadNotes(file, schema) ? CString() : damaged;
}

bool CreateSchema(OpenGeoPackage& file) {
    for (const Table& table : Tables()) {
        if (!file.Table(table.name) && !CreateTable(file, table)) {
            return false;
        }
    }
    return CreateIndex(file);
}

bool ForgetMissingTables(OpenGeoPackage& file, Schema& schema) {
    for (const std::string& table : schema.missing) {
        // The one that the others point to comes last.
        for (const char* list :
             {"gpkg_geometry_columns", "gpkg_ogr_contents", "gpkg_extensions", "gpkg_contents"}) {
            bool isThere = false;
            if (!file.Query("SELECT name FROM sqlite_master WHERE name = " + QuoteText(list),
                            [&isThere](const OGRFeature&) { isThere = true; }) ||
                (isThere && !file.Execute("DELETE FROM " + std::string(list) +
                                          " WHERE table_name = " + QuoteText(table)))) {
                return false;
            }
        }
    }
    for (std::size_t i = 0; i < kEntityKinds; ++i) {
        std::string& table = schema.tables[i];
        if (std::find(schema.missing.begin(), schema.missing.end(), table) !=
            schema.missing.end()) {
            table.clear();
            if (!file.Execute("DELETE FROM orv_meta WHERE key = " +
                              QuoteText(std::string("table.") + kEntityTables[i]))) {
                return false;
            }
        }
    }
    return true;
}

bool WriteMeta(OpenGeoPackage& file, const std::string& key, const std::string& value) {
    const std::string where = " WHERE key = " + QuoteText(key);
    return file.Execute("DELETE FROM orv_meta" + where) &&
           file.Execute("INSERT INTO orv_meta (key, value) VALUES (" + QuoteText(key) + ", " +
                        QuoteText(value) + ")");
}

std::string FieldText(const OGRFeature& row, const char* field) {
    const int index = row.GetFieldIndex(field);
    return index < 0 || !row.IsFieldSetAndNotNull(index) ? std::string()
                                                         : row.GetFieldAsString(index);
}

} // namespace Tessaly
