// Layers and blocks of a drawing.
#pragma once

#include <span>
#include <vector>

#include "platform/arx/DbObject.h"

class PLATFORM_API AcDbLayerTableRecord final : public AcDbObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    explicit AcDbLayerTableRecord(CString name) : m_strName(std::move(name)) {}

    /// Unique in the drawing; not case-sensitive.
    const CString& getName() const { return m_strName; }
    /// Index into the standard 255-colour table; defaults to 7, which also replaces invalid
    /// numbers.
    int colorIndex() const { return m_nColorIndex; }
    void setColorIndex(int index);
    /// Entities on a layer that is off are hidden.
    bool isOff() const { return m_bOff; }
    void setIsOff(bool off);

    std::unique_ptr<AcDbObject> clone() const override;

protected:
    void swapBody(AcDbObject& other) override;

private:
    CString m_strName;
    int m_nColorIndex = 7;
    bool m_bOff = false;
};

/// A block: an ordered set of entities. The drawing itself is the block "*Model_Space".
class PLATFORM_API AcDbBlockTableRecord final : public AcDbObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    explicit AcDbBlockTableRecord(CString name) : m_strName(std::move(name)) {}

    const CString& getName() const { return m_strName; }
    /// Ids of its entities in the order of adding, erased ones included.
    std::span<const AcDbObjectId> entityIds() const { return m_entities; }

    /// Copies the name only: the new block is empty.
    std::unique_ptr<AcDbObject> clone() const override;

protected:
    void swapBody(AcDbObject& other) override;

private:
    friend class AcDbDatabase;
    CString m_strName;
    std::vector<AcDbObjectId> m_entities;
};

inline constexpr const wchar_t* kModelSpace = L"*Model_Space";
