// The drawing's dictionaries, for whoever keeps texts in a drawing.
#pragma once

#include "platform/arx/AcadStatus.h"
#include "platform/win/String.h"
#include "siblings/cadwrapper/Api.h"

class AcDbDatabase;

namespace Orvane {

/// The dictionaries of the working database, opened in a mode. Writing through one that was
/// opened for reading opens what it writes to for that moment. Closed at the end at the
/// latest.
class CADWRAPPER_API CORVCDictionaryPtr {
public:
    explicit CORVCDictionaryPtr(AcDb::OpenMode mode);
    ~CORVCDictionaryPtr() { close(); }
    CORVCDictionaryPtr(const CORVCDictionaryPtr&) = delete;
    CORVCDictionaryPtr& operator=(const CORVCDictionaryPtr&) = delete;

    /// eOk, or eNoDatabase if there is no working database.
    Acad::ErrorStatus openStatus() const;
    bool isOpen() const { return m_pDatabase != nullptr; }
    /// eWasOpenForWrite if it is open for writing already.
    Acad::ErrorStatus upgradeOpen();
    Acad::ErrorStatus close();

    /// Writes a record of a dictionary.
    /// \param bAppend behind what the record holds, instead of in its place
    /// \param bCreate makes the dictionary if there is none; otherwise that is eKeyNotFound
    /// \param nType kind of the record; 1, a text, is the only one
    Acad::ErrorStatus dctWrite(const wchar_t* dictionary, const wchar_t* record,
                               const wchar_t* text, bool bAppend, bool bCreate, int nType);
    /// Texts of any length. eKeyNotFound, and the text untouched, if there is no such record.
    Acad::ErrorStatus dctReadBigString(const wchar_t* dictionary, const wchar_t* record,
                                       CString& text) const;
    Acad::ErrorStatus dctWriteBigString(const wchar_t* dictionary, const wchar_t* record,
                                        const wchar_t* text);
    /// Erases a dictionary with its records.
    Acad::ErrorStatus dctErase(const wchar_t* dictionary);

private:
    AcDbDatabase* m_pDatabase;
    AcDb::OpenMode m_mode;
};

} // namespace Orvane
