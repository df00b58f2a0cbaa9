// Drawable objects: points, lines, areas and texts.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/arx/DbAttributes.h"
#include "platform/arx/DbObject.h"
#include "platform/arx/GePoint.h"

/// Colour index of entities that use the colour of their layer.
inline constexpr int kColorByLayer = 256;

class PLATFORM_API AcDbEntity : public AcDbObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }

    AcDbObjectId layerId() const { return m_layer; }
    /// Name of its layer; empty if it is not in a database.
    CString layer() const;
    /// Throws std::logic_error if the layer is not in the entity's database or is erased. The id is
    /// not checked while the entity is not in a database.
    void setLayer(AcDbObjectId layer);
    /// The block table record that contains it.
    AcDbObjectId blockId() const { return m_block; }
    /// Index into the standard 255-colour table, or kColorByLayer, which replaces any number
    /// outside the table.
    int colorIndex() const { return m_nColorIndex; }
    void setColorIndex(int index);

    const AcDbAttributes& attributes() const { return m_attributes; }
    AcDbValue attribute(AcDbNameId name) const { return m_attributes.get(name); }
    void setAttribute(AcDbNameId name, const AcDbValue& value);
    /// Reserves memory for the given number of attributes.
    void reserveAttributes(std::size_t count) { m_attributes.reserve(count); }
    /// False if the attribute did not exist.
    bool removeAttribute(AcDbNameId name);

    /// The axis-aligned bounding box; empty (minimum above maximum) if it has no position.
    virtual AcGeExtents2d extents() const = 0;

protected:
    AcDbEntity() { m_bEntity = true; }
    AcDbEntity(const AcDbEntity& other);

private:
    friend class AcDbDatabase;
    friend class AcDbUndo;
    // The smallest member last: a derived class may use the padding after it.
    AcDbAttributes m_attributes;
    AcDbObjectId m_layer;
    AcDbObjectId m_block;
    std::int16_t m_nColorIndex = kColorByLayer;
};

class PLATFORM_API AcDbPoint final : public AcDbEntity {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    AcDbPoint() = default;
    explicit AcDbPoint(const AcGePoint3d& position) : m_position(position) {}
    const AcGePoint3d& position() const { return m_position; }
    void setPosition(const AcGePoint3d& position);
    AcGeExtents2d extents() const override;
    std::unique_ptr<AcDbObject> clone() const override;

protected:
    std::unique_ptr<AcDbObject> cloneBody() const override;
    void swapBody(AcDbObject& other) override;
    std::size_t bodyBytes() const override;

private:
    AcGePoint3d m_position;
};

/// A polyline of straight segments.
class PLATFORM_API AcDbPolyline final : public AcDbEntity {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    AcDbPolyline() = default;
    explicit AcDbPolyline(std::span<const AcGePoint3d> vertices)
        : m_vertices(vertices.begin(), vertices.end()) {}
    std::span<const AcGePoint3d> vertices() const { return m_vertices; }
    void setVertices(std::span<const AcGePoint3d> vertices);
    bool isClosed() const { return m_bClosed; }
    void setClosed(bool closed);
    AcGeExtents2d extents() const override;
    std::unique_ptr<AcDbObject> clone() const override;

protected:
    std::unique_ptr<AcDbObject> cloneBody() const override;
    void swapBody(AcDbObject& other) override;
    std::size_t bodyBytes() const override;

private:
    bool m_bClosed = false; // first, where it uses existing padding
    std::vector<AcGePoint3d> m_vertices;
};

/// An area with holes. Rings are in file order: each is an outer ring or a hole of the last outer
/// ring before it. The first point of a ring is not repeated at its end.
class PLATFORM_API AcDbMPolygon final : public AcDbEntity {
public:
    struct Ring {
        std::vector<AcGePoint3d> points;
        bool isHole = false;
    };
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    AcDbMPolygon() = default;
    explicit AcDbMPolygon(std::vector<Ring> rings) : m_rings(std::move(rings)) {}
    const std::vector<Ring>& rings() const { return m_rings; }
    void setRings(std::vector<Ring> rings);
    AcGeExtents2d extents() const override;
    std::unique_ptr<AcDbObject> clone() const override;

protected:
    std::unique_ptr<AcDbObject> cloneBody() const override;
    void swapBody(AcDbObject& other) override;
    std::size_t bodyBytes() const override;

private:
    std::vector<Ring> m_rings;
};

class PLATFORM_API AcDbText final : public AcDbEntity {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    AcDbText() = default;
    AcDbText(const AcGePoint3d& position, std::string_view utf8)
        : m_position(position), m_text(utf8) {}
    const AcGePoint3d& position() const { return m_position; }
    void setPosition(const AcGePoint3d& position);
    std::string_view textUtf8() const { return m_text; }
    void setText(std::string_view utf8);
    /// In drawing units; 0 lets the view choose.
    double height() const { return m_dHeight; }
    void setHeight(double height);
    /// Only the insertion point: the extent of a text is known to the view alone.
    AcGeExtents2d extents() const override;
    std::unique_ptr<AcDbObject> clone() const override;

protected:
    std::unique_ptr<AcDbObject> cloneBody() const override;
    void swapBody(AcDbObject& other) override;
    std::size_t bodyBytes() const override;

private:
    AcGePoint3d m_position;
    std::string m_text;
    double m_dHeight = 0;
};
