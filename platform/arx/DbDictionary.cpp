#include "platform/arx/DbDictionary.h"

#include "platform/arx/DbClass.h"
#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"

AcRxClass* AcDbDictionary::desc() {
    static AcRxClass* const pClass = acdbRegisterClass(L"AcDbDictionary", AcDbObject::desc());
    return pClass;
}

const CString* AcDbDictionary::getAt(const wchar_t* record) const {
    const auto hit = m_records.find(std::wstring_view(record ? record : L""));
    return hit == m_records.end() ? nullptr : &hit->second;
}

void AcDbDictionary::noteRecord(const CString& record) {
    if (beginChange()) {
        database()->undo().noteRecord(*this, record);
    }
}

void AcDbDictionary::setAt(const wchar_t* record, const wchar_t* text) {
    CString name(record);
    CString copy(text); // copied before the change is recorded: it may be the stored text itself
    noteRecord(name);
    m_records[std::move(name)] = std::move(copy);
}

Acad::ErrorStatus AcDbDictionary::remove(const wchar_t* record) {
    const CString name(record);
    const auto hit = m_records.find(name);
    if (hit == m_records.end()) {
        return Acad::eKeyNotFound;
    }
    noteRecord(name);
    m_records.erase(hit);
    return Acad::eOk;
}

void AcDbDictionary::removeAll() {
    for (const auto& [name, text] : m_records) {
        database()->undo().noteRecord(*this, name);
    }
    m_records.clear();
}

std::unique_ptr<AcDbObject> AcDbDictionary::clone() const {
    return std::make_unique<AcDbDictionary>(*this);
}

std::unique_ptr<AcDbObject> AcDbDictionary::cloneBody() const {
    return std::make_unique<AcDbDictionary>(m_strName);
}

void AcDbDictionary::swapBody(AcDbObject&) {
    // Records are recorded in the history one by one.
}

std::size_t AcDbDictionary::bodyBytes() const {
    std::size_t letters = 0;
    for (const auto& [name, text] : m_records) {
        letters +=
            static_cast<std::size_t>(name.GetLength()) + static_cast<std::size_t>(text.GetLength());
    }
    return sizeof(*this) + m_records.size() * sizeof(Records::value_type) +
           letters * sizeof(wchar_t);
}
