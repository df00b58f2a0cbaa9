// What is drawn: points, lines, areas and texts.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/arx/DbAttributes.h"
#include "platform/arx/DbObject.h"
#include "platform/arx/GePoint.h"

/// Takes the colour of its layer.
inline constexpr int kColorByLayer = 256;

class PLATFORM_API AcDbEntity : public AcDbObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }

    AcDbObjectId layerId() const { return m_layer; }
    /// Name of its layer; empty if it is in no database.
    CString layer() const;
    /// Throws std::logic_error if the database has no such layer, or it is erased. The id is
    /// taken as it is while the entity is in no database.
    void setLayer(AcDbObjectId layer);
    /// The block table record that it stands in.
    AcDbObjectId blockId() const { return m_block; }
    /// Index of the standard 255-colour table, or kColorByLayer, which any number outside
    /// that table is taken for.
    int colorIndex() const { return m_nColorIndex; }
    void setColorIndex(int index);

    const AcDbAttributes& attributes() const { return m_attributes; }
    AcDbValue attribute(AcDbNameId name) const { return m_attributes.get(name); }
    void setAttribute(AcDbNameId name, const AcDbValue& value);
    /// Makes room; for whoever knows how many will be set.
    void reserveAttributes(std::size_t count) { m_attributes.reserve(count); }
    /// False if there was none.
    bool removeAttribute(AcDbNameId name);

    /// The upright box around it; empty (low above high) if it has no place.
    virtual AcGeExtents2d extents() const = 0;

protected:
    AcDbEntity() { m_bEntity = true; }
    AcDbEntity(const AcDbEntity& other);

private:
    friend class AcDbDatabase;
    friend class AcDbUndo;
    // The smallest member last: a derived class may use the room behind it.
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

private:
    AcGePoint3d m_position;
};

/// A line of straight segments.
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

private:
    bool m_bClosed = false; // in front, where it costs no room
    std::vector<AcGePoint3d> m_vertices;
};

/// Areas with holes: rings in the order of the file, each an outer one or a hole of the
/// last outer one before it. The first point of a ring is not repeated at its end.
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
    /// Drawing units; 0 for the view's own choice.
    double height() const { return m_dHeight; }
    void setHeight(double height);
    /// The position alone: how far a text reaches is known to the view.
    AcGeExtents2d extents() const override;
    std::unique_ptr<AcDbObject> clone() const override;

protected:
    std::unique_ptr<AcDbObject> cloneBody() const override;
    void swapBody(AcDbObject& other) override;

private:
    AcGePoint3d m_position;
    std::string m_text;
    double m_dHeight = 0;
};
