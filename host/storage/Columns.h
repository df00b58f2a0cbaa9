// The columns of a table that are attributes of entities.
#pragma once

#include <string>
#include <vector>

#include "host/storage/Schema.h"
#include "platform/arx/DbAttributes.h"

class AcDbEntity;
class OGRFeature;
class OGRFeatureDefn;
class OGRLayer;

namespace Tessaly {

/// A column that is an attribute.
struct AttributeColumn {
    enum class Type : std::uint8_t { Integer, Integer64, Real, Text, Other };
    int field = -1;
    AcDbNameId name{};
    Type type = Type::Text;

    AcDbValue::Kind Kind() const;
};

/// Columns of a table of others. Names of those that no attribute can hold go to `passedOver`.
std::vector<AttributeColumn> AttributeColumns(const OGRFeatureDefn& definition,
                                              std::vector<std::string>& passedOver);

/// What a row has in a column; null if nothing. A text belongs to the row or to `scratch`.
AcDbValue FieldValue(const OGRFeature& row, const AttributeColumn& column, std::string& scratch);
/// Sets a field to a value that its column's kind can hold, or to nothing. A field of -1 is
/// passed over.
void SetFieldValue(OGRFeature& row, int field, const AcDbValue& value);

/// One of our feature tables: where the fixed columns and the attributes are.
class EntityTable {
public:
    EntityTable(OGRLayer& layer, EntityKind kind, const Schema& schema);

    OGRLayer& Layer() const { return *m_pLayer; }
    EntityKind Kind() const { return m_kind; }
    const std::vector<AttributeColumn>& Attributes() const { return m_attributes; }
    /// Null if no column holds attributes of the name.
    const AttributeColumn* Find(AcDbNameId name) const;
    /// Adds a column for an attribute. False on failure; true without a column once there
    /// are so many that the rest has to go to the extra text. A column with another name
    /// than its attribute is noted in `schema`.
    bool Add(AcDbNameId name, AcDbValue::Kind kind, Schema& schema);

    /// Indices of fields; -1 where a table lacks them.
    struct Fixed {
        int layer, color, block, extra, closed, text, height;
    };
    const Fixed& Fields() const { return m_fixed; }

private:
    void Index(const AttributeColumn& column, std::size_t position);
    std::string FreeColumnName(std::string_view attribute) const;

    OGRLayer* m_pLayer;
    EntityKind m_kind;
    Fixed m_fixed;
    std::vector<AttributeColumn> m_attributes;
    std::vector<int> m_byName; ///< by the name's number: position in m_attributes, or -1
};

/// Makes the feature table of a kind without attributes, under a name that is free.
/// `name` is given the table's name. Null on failure.
OGRLayer* CreateEntityTable(OpenGeoPackage& file, EntityKind kind, const std::string& wkt,
                            std::string& name);
/// Adds the columns that another program has taken away. False on failure.
bool CompleteEntityTable(OGRLayer& layer, EntityKind kind);

} // namespace Tessaly
