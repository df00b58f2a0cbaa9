#include "platform/arx/DbObject.h"

#include <stdexcept>

#include "platform/arx/DbClass.h"
#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"

AcRxClass* AcDbObject::desc() {
    static AcRxClass* const pClass = acdbRegisterClass(L"AcDbObject", AcRxObject::desc());
    return pClass;
}

Acad::ErrorStatus AcDbObject::close() {
    if (!m_pDatabase) {
        return Acad::eNoDatabase;
    }
    if (m_bWriter) {
        --m_pDatabase->m_nOpen;
        m_pDatabase->endWriting(*this);
        return Acad::eOk;
    }
    if (m_nReaders == 0) {
        return Acad::eInvalidInput;
    }
    --m_nReaders;
    if (m_nReaders == 0) {
        --m_pDatabase->m_nOpen;
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::upgradeOpen() {
    if (!m_pDatabase) {
        return Acad::eNoDatabase;
    }
    if (m_bWriter) {
        return Acad::eWasOpenForWrite;
    }
    if (m_nReaders != 1) {
        return m_nReaders == 0 ? Acad::eInvalidInput : Acad::eWasOpenForRead;
    }
    m_nReaders = 0;
    m_pDatabase->startWriting(*this);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::downgradeOpen() {
    if (!m_pDatabase) {
        return Acad::eNoDatabase;
    }
    if (!m_bWriter) {
        return Acad::eNotOpenForWrite;
    }
    m_nReaders = 1;
    m_pDatabase->endWriting(*this);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbObject::erase(bool bErasing) {
    if (!m_pDatabase) {
        return Acad::eNoDatabase;
    }
    if (!m_bWriter) {
        return Acad::eNotOpenForWrite;
    }
    if (m_bErased == bErasing) {
        return bErasing ? Acad::eWasErased : Acad::eOk;
    }
    const Acad::ErrorStatus status = m_pDatabase->mayErase(*this, bErasing);
    if (status != Acad::eOk) {
        return status;
    }
    m_pDatabase->undo().noteErased(*this, bErasing);
    m_pDatabase->setErased(*this, bErasing);
    return Acad::eOk;
}

std::size_t AcDbObject::bytes() const {
    const std::size_t attributes =
        m_bEntity ? static_cast<const AcDbEntity&>(*this).attributes().bytes() : 0;
    return bodyBytes() + attributes;
}

std::size_t AcDbObject::bodyBytes() const {
    return sizeof(AcDbEntity);
}

bool AcDbObject::beginChange() {
    if (!m_pDatabase) {
        return false;
    }
    if (!m_bWriter) {
        throw std::logic_error("An object of the drawing was changed without being open for "
                               "writing (object " +
                               std::to_string(m_id.number()) + ").");
    }
    m_bChanged = true;
    m_pDatabase->markUnsaved(*this);
    return true;
}

void AcDbObject::assertWriteEnabled() {
    if (beginChange()) {
        m_pDatabase->undo().noteBody(*this);
    }
}

Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& pObject, AcDbObjectId id, AcDb::OpenMode mode,
                                     bool openErased, AcDbDatabase* pDatabase) {
    pObject = nullptr;
    if (!pDatabase) {
        pDatabase = acdbHostApplicationServices()->workingDatabase();
    }
    return pDatabase ? pDatabase->open(pObject, id, mode, openErased) : Acad::eNoDatabase;
}
