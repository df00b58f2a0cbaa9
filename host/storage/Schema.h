// How a drawing lies in its GeoPackage: the tables, and what is noted about them.
//
//   nodes, sections,     feature tables: a row is an entity, its fid the object's id, its
//   polygons, texts      columns the attributes, and those of kColumns
//   orv_meta             key and value: "version", "next_id", "srs", for each of the feature
//                        tables that there are "table.nodes", "last.nodes", and which file it
//                        is in which state: "guid", "revision", "save_id"
//   orv_layers           fid is the object's id in this and the next two
//   orv_blocks
//   orv_dictionaries
//   orv_records          dictionary (its id), name, text
//   orv_columns          columns that are not named as the attribute that they hold
//   orv_foreign          rows of others' tables that the drawing replaced or erased
//   orv_ids              runs of ids that the entities of others' tables have
//   orv_saves            the last saves: who and when, and the ids of the objects that were
//                        written or erased; see SaveHistory.h
#pragma once

#include <array>
#include <cstdint>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "host/storage/SaveHistory.h"
#include "platform/win/String.h"

class OGRFeature;

namespace Tessaly {

class OpenGeoPackage;

inline constexpr int kSchemaVersion = 1;
/// A file that states a higher next id is damaged: the database holds a place for each.
inline constexpr std::int64_t kHighestId = 100'000'000;

inline constexpr const char* kMetaTable = "orv_meta";
inline constexpr const char* kLayerTable = "orv_layers";
inline constexpr const char* kBlockTable = "orv_blocks";
inline constexpr const char* kDictionaryTable = "orv_dictionaries";
inline constexpr const char* kRecordTable = "orv_records";
inline constexpr const char* kColumnTable = "orv_columns";
inline constexpr const char* kForeignTable = "orv_foreign";
inline constexpr const char* kIdTable = "orv_ids";
inline constexpr const char* kSaveTable = "orv_saves";

/// Kinds of entities, one feature table each.
enum class EntityKind : std::uint8_t { Node, Section, Polygon, Text };
inline constexpr std::size_t kEntityKinds = 4;
inline constexpr std::array<const char*, kEntityKinds> kEntityTables = {"nodes", "sections",
                                                                        "polygons", "texts"};

/// Columns of the feature tables that are no attributes.
inline constexpr const char* kLayerColumn = "orv_layer";   ///< name; none: layer "0"
inline constexpr const char* kColorColumn = "orv_color";   ///< none: the layer's
inline constexpr const char* kBlockColumn = "orv_block";   ///< name; none: the drawing itself
inline constexpr const char* kExtraColumn = "orv_extra";   ///< see ExtraText.h
inline constexpr const char* kClosedColumn = "orv_closed"; ///< 1: the last point repeats the first
inline constexpr const char* kTextColumn = "orv_text";
inline constexpr const char* kHeightColumn = "orv_height";

/// A row of a table that is not ours; a row with several parts makes an entity of each.
using ForeignKey = std::tuple<std::string, std::int64_t, std::int64_t>; // table, fid, part

/// The entities of a table from a place in it on have these ids.
struct IdRun {
    std::string table;
    std::int64_t place = 0; ///< entities of the table before the run
    std::uint32_t firstId = 0;
    std::uint32_t count = 0;
};

struct ColumnName {
    std::string table;
    std::string column;
    std::string attribute;
};

/// What a file notes about itself.
struct Schema {
    bool exists = false;
    std::uint32_t nextId = 0;
    FileIdentity identity;
    std::string coordinateSystem;
    /// Real names: another one where the plain one was taken. Empty: not made yet.
    std::array<std::string, kEntityKinds> tables;
    /// Highest row number that we gave out in each; higher ones are from other programs.
    std::array<std::int64_t, kEntityKinds> lastFids{};
    std::vector<ColumnName> columns;
    std::set<ForeignKey> foreign;
    std::vector<IdRun> runs;
    /// Tables that the file has had, and that somebody has dropped.
    std::vector<std::string> missing;

    bool IsOurs(const std::string& table) const;
};

/// Empty on success. A file without our tables is a success that leaves `exists` false.
CString LoadSchema(OpenGeoPackage& file, Schema& schema);

/// Makes the tables that are missing, except those of entities.
bool CreateSchema(OpenGeoPackage& file);
/// Takes what the file notes about its missing tables out of it, so that they can be made anew.
bool ForgetMissingTables(OpenGeoPackage& file, Schema& schema);
bool WriteMeta(OpenGeoPackage& file, const std::string& key, const std::string& value);

/// A field's text; empty where there is none.
std::string FieldText(const OGRFeature& row, const char* field);

} // namespace Tessaly
