#include "platform/arx/DbClass.h"
#include "platform/arx/DbEntity.h"

AcRxClass* AcDbPoint::desc() {
    static AcRxClass* const pClass = acdbRegisterClass(L"AcDbPoint", AcDbEntity::desc());
    return pClass;
}

void AcDbPoint::setPosition(const AcGePoint3d& position) {
    assertWriteEnabled();
    m_position = position;
}

AcGeExtents2d AcDbPoint::extents() const {
    AcGeExtents2d box;
    box.add(m_position);
    return box;
}

std::unique_ptr<AcDbObject> AcDbPoint::clone() const {
    return std::make_unique<AcDbPoint>(*this);
}

std::unique_ptr<AcDbObject> AcDbPoint::cloneBody() const {
    return std::make_unique<AcDbPoint>(m_position);
}

void AcDbPoint::swapBody(AcDbObject& other) {
    std::swap(m_position, static_cast<AcDbPoint&>(other).m_position);
}

std::size_t AcDbPoint::bodyBytes() const {
    return sizeof(*this);
}

AcRxClass* AcDbPolyline::desc() {
    static AcRxClass* const pClass = acdbRegisterClass(L"AcDbPolyline", AcDbEntity::desc());
    return pClass;
}

void AcDbPolyline::setVertices(std::span<const AcGePoint3d> vertices) {
    assertWriteEnabled();
    // Copied first: the new vertices may be part of the current ones.
    m_vertices = std::vector<AcGePoint3d>(vertices.begin(), vertices.end());
}

void AcDbPolyline::setClosed(bool closed) {
    assertWriteEnabled();
    m_bClosed = closed;
}

AcGeExtents2d AcDbPolyline::extents() const {
    AcGeExtents2d box;
    for (const AcGePoint3d& point : m_vertices) {
        box.add(point);
    }
    return box;
}

std::unique_ptr<AcDbObject> AcDbPolyline::clone() const {
    return std::make_unique<AcDbPolyline>(*this);
}

std::unique_ptr<AcDbObject> AcDbPolyline::cloneBody() const {
    auto copy = std::make_unique<AcDbPolyline>(m_vertices);
    copy->m_bClosed = m_bClosed;
    return copy;
}

void AcDbPolyline::swapBody(AcDbObject& other) {
    auto& line = static_cast<AcDbPolyline&>(other);
    m_vertices.swap(line.m_vertices);
    std::swap(m_bClosed, line.m_bClosed);
}

std::size_t AcDbPolyline::bodyBytes() const {
    return sizeof(*this) + m_vertices.capacity() * sizeof(AcGePoint3d);
}

AcRxClass* AcDbMPolygon::desc() {
    static AcRxClass* const pClass = acdbRegisterClass(L"AcDbMPolygon", AcDbEntity::desc());
    return pClass;
}

void AcDbMPolygon::setRings(std::vector<Ring> rings) {
    assertWriteEnabled();
    m_rings = std::move(rings);
}

AcGeExtents2d AcDbMPolygon::extents() const {
    AcGeExtents2d box;
    for (const Ring& ring : m_rings) {
        for (const AcGePoint3d& point : ring.points) {
            box.add(point);
        }
    }
    return box;
}

std::unique_ptr<AcDbObject> AcDbMPolygon::clone() const {
    return std::make_unique<AcDbMPolygon>(*this);
}

std::unique_ptr<AcDbObject> AcDbMPolygon::cloneBody() const {
    return std::make_unique<AcDbMPolygon>(m_rings);
}

void AcDbMPolygon::swapBody(AcDbObject& other) {
    m_rings.swap(static_cast<AcDbMPolygon&>(other).m_rings);
}

std::size_t AcDbMPolygon::bodyBytes() const {
    std::size_t sum = sizeof(*this) + m_rings.capacity() * sizeof(Ring);
    for (const Ring& ring : m_rings) {
        sum += ring.points.capacity() * sizeof(AcGePoint3d);
    }
    return sum;
}

AcRxClass* AcDbText::desc() {
    static AcRxClass* const pClass = acdbRegisterClass(L"AcDbText", AcDbEntity::desc());
    return pClass;
}

void AcDbText::setPosition(const AcGePoint3d& position) {
    assertWriteEnabled();
    m_position = position;
}

void AcDbText::setText(std::string_view utf8) {
    assertWriteEnabled();
    m_text = utf8;
}

void AcDbText::setHeight(double height) {
    assertWriteEnabled();
    m_dHeight = height;
}

AcGeExtents2d AcDbText::extents() const {
    AcGeExtents2d box;
    box.add(m_position);
    return box;
}

std::unique_ptr<AcDbObject> AcDbText::clone() const {
    return std::make_unique<AcDbText>(*this);
}

std::unique_ptr<AcDbObject> AcDbText::cloneBody() const {
    auto copy = std::make_unique<AcDbText>(m_position, m_text);
    copy->m_dHeight = m_dHeight;
    return copy;
}

void AcDbText::swapBody(AcDbObject& other) {
    auto& text = static_cast<AcDbText&>(other);
    std::swap(m_position, text.m_position);
    m_text.swap(text.m_text);
    std::swap(m_dHeight, text.m_dHeight);
}

std::size_t AcDbText::bodyBytes() const {
    return sizeof(*this) + m_text.capacity();
}
