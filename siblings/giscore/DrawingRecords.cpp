#include "siblings/giscore/DrawingRecords.h"

#include "siblings/giscore/WholeNumber.h"

namespace Orvane::System {

const AcDbDictionary* DrawingRecords::Dictionary() const {
    return static_cast<const AcDbDictionary*>(
        m_database.peek(m_database.findDictionary(m_strDictionary)));
}

CString DrawingRecords::Get(const wchar_t* record) const {
    const AcDbDictionary* const pDictionary = Dictionary();
    const CString* const pText = pDictionary ? pDictionary->getAt(record) : nullptr;
    return pText ? *pText : CString();
}

int DrawingRecords::GetInt(const wchar_t* record, int otherwise) const {
    return WholeNumber(Get(record).View()).value_or(otherwise);
}

bool DrawingRecords::Set(const wchar_t* record, const CString& text) {
    const AcDbDictionary* const pBefore = Dictionary();
    const CString* const pText = pBefore ? pBefore->getAt(record) : nullptr;
    if (pText && *pText == text) {
        return true;
    }
    AcDbDictionary* pDictionary = nullptr;
    const AcDbObjectId id = m_database.dictionary(m_strDictionary);
    if (acdbOpenObject(pDictionary, id, AcDb::kForWrite, false, &m_database) != Acad::eOk) {
        return false;
    }
    pDictionary->setAt(record, text);
    pDictionary->close();
    return true;
}

bool DrawingRecords::Set(const wchar_t* record, int number) {
    CString text;
    text.Format(L"%d", number);
    return Set(record, text);
}

bool DrawingRecords::Erase() {
    AcDbDictionary* pDictionary = nullptr;
    const AcDbObjectId id = m_database.findDictionary(m_strDictionary);
    if (acdbOpenObject(pDictionary, id, AcDb::kForWrite, false, &m_database) != Acad::eOk) {
        return false;
    }
    const Acad::ErrorStatus erased = pDictionary->erase();
    pDictionary->close();
    return erased == Acad::eOk;
}

} // namespace Orvane::System
