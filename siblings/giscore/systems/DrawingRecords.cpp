#include "siblings/giscore/systems/DrawingRecords.h"

#include "siblings/giscore/utility/WholeNumber.h"

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

template <class Change>
bool DrawingRecords::Write(AcDbObjectId id, Change change) {
    AcDbDictionary* pDictionary = nullptr;
    if (acdbOpenObject(pDictionary, id, AcDb::kForWrite, false, &m_database) != Acad::eOk) {
        return false;
    }
    const Acad::ErrorStatus status = change(*pDictionary);
    pDictionary->close();
    return status == Acad::eOk;
}

bool DrawingRecords::Set(const wchar_t* record, const CString& text) {
    const AcDbDictionary* const pBefore = Dictionary();
    const CString* const pText = pBefore ? pBefore->getAt(record) : nullptr;
    if (pText && *pText == text) {
        return true;
    }
    return Write(m_database.dictionary(m_strDictionary), [&](AcDbDictionary& dictionary) {
        dictionary.setAt(record, text);
        return Acad::eOk;
    });
}

bool DrawingRecords::Set(const wchar_t* record, int number) {
    CString text;
    text.Format(L"%d", number);
    return Set(record, text);
}

bool DrawingRecords::Remove(const wchar_t* record) {
    return Write(m_database.findDictionary(m_strDictionary),
                 [&](AcDbDictionary& dictionary) { return dictionary.remove(record); });
}

bool DrawingRecords::Erase() {
    return Write(m_database.findDictionary(m_strDictionary),
                 [](AcDbDictionary& dictionary) { return dictionary.erase(); });
}

} // namespace Orvane::System
