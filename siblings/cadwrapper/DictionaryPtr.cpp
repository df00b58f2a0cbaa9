#include "siblings/cadwrapper/DictionaryPtr.h"

#include "platform/arx/DbDatabase.h"

namespace Orvane {

namespace {

constexpr int kTextRecord = 1;

/// Opens a dictionary of the drawing for the duration of a call.
template <class Use>
Acad::ErrorStatus WithDictionary(AcDbDatabase& database, AcDbObjectId id, AcDb::OpenMode mode,
                                 Use use) {
    if (id.isNull()) {
        return Acad::eKeyNotFound;
    }
    AcDbDictionary* pDictionary = nullptr;
    const Acad::ErrorStatus opened = acdbOpenObject(pDictionary, id, mode, false, &database);
    if (opened != Acad::eOk) {
        return opened;
    }
    const Acad::ErrorStatus status = use(*pDictionary);
    pDictionary->close();
    return status;
}

} // namespace

CORVCDictionaryPtr::CORVCDictionaryPtr(AcDb::OpenMode mode)
    : m_pDatabase(acdbHostApplicationServices()->workingDatabase()), m_mode(mode) {}

Acad::ErrorStatus CORVCDictionaryPtr::openStatus() const {
    return m_pDatabase ? Acad::eOk : Acad::eNoDatabase;
}

Acad::ErrorStatus CORVCDictionaryPtr::upgradeOpen() {
    if (!m_pDatabase) {
        return Acad::eNoDatabase;
    }
    if (m_mode == AcDb::kForWrite) {
        return Acad::eWasOpenForWrite;
    }
    m_mode = AcDb::kForWrite;
    return Acad::eOk;
}

Acad::ErrorStatus CORVCDictionaryPtr::close() {
    m_pDatabase = nullptr;
    return Acad::eOk;
}

Acad::ErrorStatus CORVCDictionaryPtr::dctWrite(const wchar_t* dictionary, const wchar_t* record,
                                               const wchar_t* text, bool bAppend, bool bCreate,
                                               int nType) {
    if (!m_pDatabase) {
        return Acad::eNoDatabase;
    }
    if (nType != kTextRecord) {
        return Acad::eInvalidInput;
    }
    const AcDbObjectId id =
        bCreate ? m_pDatabase->dictionary(dictionary) : m_pDatabase->findDictionary(dictionary);
    return WithDictionary(*m_pDatabase, id, AcDb::kForWrite, [&](AcDbDictionary& target) {
        const CString* const pBefore = target.getAt(record);
        const CString after = bAppend && pBefore ? *pBefore + text : CString(text);
        // Rewriting identical data must not mark the drawing as changed.
        if (!pBefore || *pBefore != after) {
            target.setAt(record, after);
        }
        return Acad::eOk;
    });
}

Acad::ErrorStatus CORVCDictionaryPtr::dctReadBigString(const wchar_t* dictionary,
                                                       const wchar_t* record, CString& text) const {
    if (!m_pDatabase) {
        return Acad::eNoDatabase;
    }
    return WithDictionary(*m_pDatabase, m_pDatabase->findDictionary(dictionary), AcDb::kForRead,
                          [&](const AcDbDictionary& source) {
                              const CString* const pText = source.getAt(record);
                              if (!pText) {
                                  return Acad::eKeyNotFound;
                              }
                              text = *pText;
                              return Acad::eOk;
                          });
}

Acad::ErrorStatus CORVCDictionaryPtr::dctWriteBigString(const wchar_t* dictionary,
                                                        const wchar_t* record,
                                                        const wchar_t* text) {
    return dctWrite(dictionary, record, text, false, true, kTextRecord);
}

Acad::ErrorStatus CORVCDictionaryPtr::dctErase(const wchar_t* dictionary) {
    if (!m_pDatabase) {
        return Acad::eNoDatabase;
    }
    return WithDictionary(*m_pDatabase, m_pDatabase->findDictionary(dictionary), AcDb::kForWrite,
                          [](AcDbDictionary& target) { return target.erase(); });
}

} // namespace Orvane
