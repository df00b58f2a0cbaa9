#include "host/storage/Columns.h"

#include <algorithm>
#include <array>
#include <ogrsf_frmts.h>
#include <optional>

#include "host/storage/OpenGeoPackage.h"
#include "platform/win/CodePage.h"

namespace Tessaly {

namespace {

using Type = AttributeColumn::Type;
using Kind = AcDbValue::Kind;

/// A column that is no attribute, and the one table that has it if not all do.
struct FixedColumn {
    const char* name;
    OGRFieldType type;
    std::optional<EntityKind> only;
};
constexpr std::array<FixedColumn, 7> kFixedColumns = {{
    {kLayerColumn, OFTString, {}},
    {kColorColumn, OFTInteger64, {}},
    {kBlockColumn, OFTString, {}},
    {kExtraColumn, OFTString, {}},
    {kClosedColumn, OFTInteger64, EntityKind::Section},
    {kTextColumn, OFTString, EntityKind::Text},
    {kHeightColumn, OFTReal, EntityKind::Text},
}};
/// Names by which the database reaches a row's number or its geometry.
constexpr std::array kReservedColumns = {"fid", "geom", "rowid", "oid", "_rowid_"};
/// SQLite allows 2,000; what is left is for others.
constexpr std::size_t kMostAttributes = 1000;
constexpr std::size_t kLongestColumn = 60;
/// What a GeoPackage calls plane coordinates of which no more is known. Without it GDAL
/// would take them for degrees.
constexpr const char* kUnknownSystem =
    "LOCAL_CS[\"Undefined Cartesian SRS\",UNIT[\"metre\",1],AXIS[\"x\",EAST],AXIS[\"y\",NORTH]]";

Type TypeOf(OGRFieldType type) {
    switch (type) {
    case OFTInteger:
        return Type::Integer;
    case OFTInteger64:
        return Type::Integer64;
    case OFTReal:
        return Type::Real;
    case OFTString:
        return Type::Text;
    default:
        return Type::Other;
    }
}

OGRFieldType FieldTypeOf(Kind kind) {
    return kind == Kind::Integer ? OFTInteger64 : kind == Kind::Real ? OFTReal : OFTString;
}

/// Days and times as the file has them, not in GDAL's own spelling.
bool AppendDateTime(std::string& text, const OGRFeature& row, int field, OGRFieldType type) {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int zone = 0;
    float second = 0;
    if (!row.GetFieldAsDateTime(field, &year, &month, &day, &hour, &minute, &second, &zone)) {
        return false;
    }
    if (type != OFTTime) {
        text += CPLSPrintf("%04d-%02d-%02d", year, month, day);
    }
    if (type == OFTDateTime) {
        text += 'T';
    }
    if (type != OFTDate) {
        text += CPLSPrintf("%02d:%02d:%06.3f", hour, minute, static_cast<double>(second));
    }
    if (type == OFTDateTime && zone == 100) {
        text += 'Z';
    }
    return true;
}

AcDbValue OtherValue(const OGRFeature& row, int field, std::string& scratch) {
    const OGRFieldType type = row.GetDefnRef()->GetFieldDefn(field)->GetType();
    scratch.clear();
    const bool isTime = type == OFTDate || type == OFTTime || type == OFTDateTime;
    if (!isTime || !AppendDateTime(scratch, row, field, type)) {
        scratch = row.GetFieldAsString(field);
    }
    return std::string_view(scratch);
}

/// The attribute's name as far as a column can bear it.
std::string Sanitized(std::string_view attribute) {
    std::string name(attribute.substr(0, kLongestColumn));
    name.resize(FinishedUtf8Length(name));
    // An ill-formed name comes back with marks in place of what is wrong.
    name = WideToUtf8(Utf8ToWide(name));
    for (char& c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte == 0x7F || c == '"' || c == '\'' || c == '`') {
            c = '_';
        }
    }
    return name.empty() ? "_" : name;
}

const FixedColumn* FindFixed(const char* name) {
    const auto found =
        std::find_if(kFixedColumns.begin(), kFixedColumns.end(),
                     [&](const FixedColumn& column) { return EQUAL(name, column.name); });
    return found != kFixedColumns.end() ? &*found : nullptr;
}

bool IsReserved(const std::string& name) {
    return FindFixed(name.c_str()) ||
           std::any_of(kReservedColumns.begin(), kReservedColumns.end(),
                       [&](const char* reserved) { return EQUAL(name.c_str(), reserved); });
}

/// Makes GDAL hand values on as they are: it would clamp numbers to the width that a column
/// states, and write days and times in its own spelling.
void Loosen(OGRFieldDefn& field, const FixedColumn* pFixed) {
    const OGRFieldType type = pFixed ? pFixed->type : field.GetType();
    if (type == OFTBinary) {
        return;
    }
    field.SetSubType(OFSTNone);
    field.SetWidth(0);
    field.SetType(type == OFTInteger || type == OFTInteger64 ? OFTInteger64
                  : type == OFTReal                          ? OFTReal
                                                             : OFTString);
}

bool AddField(OGRLayer& layer, const char* name, OGRFieldType type) {
    OGRFieldDefn field(name, type);
    return layer.CreateField(&field) == OGRERR_NONE;
}

OGRwkbGeometryType GeometryOf(EntityKind kind) {
    switch (kind) {
    case EntityKind::Section:
        return wkbLineString;
    case EntityKind::Polygon:
        return wkbMultiPolygon;
    default:
        return wkbPoint;
    }
}

/// A name that no table or view of the file has yet.
bool FreeTableName(OpenGeoPackage& file, std::string& name) {
    const std::string plain = name;
    for (int number = 1;; ++number) {
        bool isTaken = false;
        if (!file.Query("SELECT 1 AS found FROM sqlite_master WHERE lower(name) = lower(" +
                            QuoteText(name) + ")",
                        [&](const OGRFeature&) { isTaken = true; })) {
            return false;
        }
        if (!isTaken) {
            return true;
        }
        name = plain + "_" + std::to_string(number);
    }
}

} // namespace

Kind AttributeColumn::Kind() const {
    switch (type) {
    case Type::Integer:
    case Type::Integer64:
        return AcDbValue::Kind::Integer;
    case Type::Real:
        return AcDbValue::Kind::Real;
    default:
        return AcDbValue::Kind::Text;
    }
}

std::vector<AttributeColumn> AttributeColumns(const OGRFeatureDefn& definition,
                                              std::vector<std::string>& passedOver) {
    std::vector<AttributeColumn> columns;
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        const OGRFieldDefn& field = *definition.GetFieldDefn(i);
        if (field.GetType() == OFTBinary) {
            passedOver.emplace_back(field.GetNameRef());
        } else {
            columns.push_back({i, AcDbInternForeign(field.GetNameRef()), TypeOf(field.GetType())});
        }
    }
    return columns;
}

AcDbValue FieldValue(const OGRFeature& row, const AttributeColumn& column, std::string& scratch) {
    if (!row.IsFieldSetAndNotNullUnsafe(column.field)) {
        return {};
    }
    switch (column.type) {
    case Type::Integer:
        return row.GetFieldAsIntegerUnsafe(column.field);
    case Type::Integer64:
        return std::int64_t{row.GetFieldAsInteger64Unsafe(column.field)};
    case Type::Real:
        return row.GetFieldAsDoubleUnsafe(column.field);
    case Type::Text:
        return row.GetFieldAsStringUnsafe(column.field);
    default:
        return OtherValue(row, column.field, scratch);
    }
}

void SetFieldValue(OGRFeature& row, int field, const AcDbValue& value) {
    if (field < 0) {
        return;
    }
    switch (value.kind()) {
    case Kind::Integer:
        row.SetField(field, static_cast<GIntBig>(*value.asInteger()));
        break;
    case Kind::Real:
        row.SetField(field, *value.asReal());
        break;
    case Kind::Text: {
        // Handed over as it is: setting it the plain way would look for its end twice.
        const std::string_view text = value.asText();
        auto* pCopy = static_cast<char*>(CPLMalloc(text.size() + 1));
        std::copy(text.begin(), text.end(), pCopy);
        pCopy[text.size()] = '\0';
        row.UnsetField(field);
        row.SetFieldSameTypeUnsafe(field, pCopy);
        break;
    }
    default:
        // Not "unset": an update would leave what the file has.
        row.SetFieldNull(field);
    }
}

EntityTable::EntityTable(OGRLayer& layer, EntityKind kind, const Schema& schema)
    : m_pLayer(&layer), m_kind(kind) {
    OGRFeatureDefn& definition = *layer.GetLayerDefn();
    const auto find = [&](const char* name) { return definition.GetFieldIndex(name); };
    m_fixed = {find(kLayerColumn),  find(kColorColumn), find(kBlockColumn), find(kExtraColumn),
               find(kClosedColumn), find(kTextColumn),  find(kHeightColumn)};
    for (int i = 0; i < definition.GetFieldCount(); ++i) {
        OGRFieldDefn& field = *definition.GetFieldDefn(i);
        Loosen(field, FindFixed(field.GetNameRef()));
    }
    std::vector<std::string> binary;
    for (AttributeColumn column : AttributeColumns(definition, binary)) {
        const std::string name = definition.GetFieldDefn(column.field)->GetNameRef();
        if (FindFixed(name.c_str())) {
            continue;
        }
        column.name = AcDbIntern(name); // our own names are ours here
        for (const ColumnName& noted : schema.columns) {
            if (noted.column == name && noted.table == layer.GetName()) {
                column.name = AcDbIntern(noted.attribute);
            }
        }
        Index(column, m_attributes.size());
        m_attributes.push_back(column);
    }
}

void EntityTable::Index(const AttributeColumn& column, std::size_t position) {
    const auto number = static_cast<std::size_t>(column.name);
    if (number >= m_byName.size()) {
        m_byName.resize(number + 1, -1);
    }
    m_byName[number] = static_cast<int>(position);
}

const AttributeColumn* EntityTable::Find(AcDbNameId name) const {
    const auto number = static_cast<std::size_t>(name);
    const int position = number < m_byName.size() ? m_byName[number] : -1;
    return position < 0 ? nullptr : &m_attributes[static_cast<std::size_t>(position)];
}

std::string EntityTable::FreeColumnName(std::string_view attribute) const {
    const std::string plain = Sanitized(attribute);
    std::string name = plain;
    for (int number = 1;
         IsReserved(name) || m_pLayer->GetLayerDefn()->GetFieldIndex(name.c_str()) >= 0; ++number) {
        name = plain + "_" + std::to_string(number);
    }
    return name;
}

bool EntityTable::Add(AcDbNameId name, AcDbValue::Kind kind, Schema& schema) {
    if (m_attributes.size() >= kMostAttributes) {
        return true;
    }
    const std::string_view attribute = AcDbNameOf(name);
    const std::string column = FreeColumnName(attribute);
    if (!AddField(*m_pLayer, column.c_str(), FieldTypeOf(kind))) {
        return false;
    }
    const int field = m_pLayer->GetLayerDefn()->GetFieldCount() - 1;
    const AttributeColumn added{field, name, TypeOf(FieldTypeOf(kind))};
    Index(added, m_attributes.size());
    m_attributes.push_back(added);
    if (column != attribute) {
        schema.columns.push_back({m_pLayer->GetName(), column, std::string(attribute)});
    }
    return true;
}

OGRLayer* CreateEntityTable(OpenGeoPackage& file, EntityKind kind, const std::string& wkt,
                            std::string& name) {
    name = kEntityTables[static_cast<std::size_t>(kind)];
    if (!FreeTableName(file, name)) {
        return nullptr;
    }
    OGRSpatialReference reference;
    if (wkt.empty() || reference.importFromWkt(wkt.c_str()) != OGRERR_NONE) {
        reference.importFromWkt(kUnknownSystem);
    }
    reference.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    // An index would make writing three times as slow; who wants one adds it in a GIS, and
    // it is kept up to date from then on.
    static const char* const kOptions[] = {"SPATIAL_INDEX=NO", "FID=fid", "GEOMETRY_NAME=geom",
                                           nullptr};
    OGRLayer* pLayer = file.Dataset().CreateLayer(name.c_str(), &reference, GeometryOf(kind),
                                                  const_cast<char**>(kOptions));
    return pLayer && CompleteEntityTable(*pLayer, kind) ? pLayer : nullptr;
}

bool CompleteEntityTable(OGRLayer& layer, EntityKind kind) {
    for (const FixedColumn& column : kFixedColumns) {
        const bool isWanted = !column.only || column.only == kind;
        if (isWanted && layer.GetLayerDefn()->GetFieldIndex(column.name) < 0 &&
            !AddField(layer, column.name, column.type)) {
            return false;
        }
    }
    return true;
}

} // namespace Tessaly
