#include "platform/arx/DbSymbolTables.h"

#include "platform/arx/DbClass.h"

AcRxClass* AcDbLayerTableRecord::desc() {
    static AcRxClass* const pClass = acdbRegisterClass(L"AcDbLayerTableRecord", AcDbObject::desc());
    return pClass;
}

void AcDbLayerTableRecord::setColorIndex(int index) {
    constexpr int kWhite = 7;
    assertWriteEnabled();
    m_nColorIndex = index >= 0 && index <= 255 ? index : kWhite;
}

void AcDbLayerTableRecord::setIsOff(bool off) {
    assertWriteEnabled();
    m_bOff = off;
}

std::unique_ptr<AcDbObject> AcDbLayerTableRecord::clone() const {
    return std::make_unique<AcDbLayerTableRecord>(*this);
}

void AcDbLayerTableRecord::swapBody(AcDbObject& other) {
    auto& layer = static_cast<AcDbLayerTableRecord&>(other);
    std::swap(m_nColorIndex, layer.m_nColorIndex);
    std::swap(m_bOff, layer.m_bOff);
}

AcRxClass* AcDbBlockTableRecord::desc() {
    static AcRxClass* const pClass = acdbRegisterClass(L"AcDbBlockTableRecord", AcDbObject::desc());
    return pClass;
}

std::unique_ptr<AcDbObject> AcDbBlockTableRecord::clone() const {
    return std::make_unique<AcDbBlockTableRecord>(m_strName);
}

void AcDbBlockTableRecord::swapBody(AcDbObject&) {
    // Entities are only ever appended; each stores its own erased flag.
}
