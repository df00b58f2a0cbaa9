// Access to the drawing's dictionaries, for modules that store texts in a drawing.
#pragma once

#include "platform/arx/AcadStatus.h"
#include "platform/win/String.h"
#include "siblings/cadwrapper/Api.h"

class AcDbDatabase;

namespace Orvane {

/// The dictionaries of the working database, opened in one mode. Writing through an object opened
/// for reading opens the target for writing during that call only. Closed by the destructor at
/// the latest.
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
    /// \param bAppend append to the record instead of replacing its contents
    /// \param bCreate create a missing dictionary; otherwise a missing one gives eKeyNotFound
    /// \param nType type of the record; only 1 (text) exists
    Acad::ErrorStatus dctWrite(const wchar_t* dictionary, const wchar_t* record,
                               const wchar_t* text, bool bAppend, bool bCreate, int nType);
    /// Reads a text of any length. Returns eKeyNotFound and leaves the text untouched if there is
    /// no such record.
    Acad::ErrorStatus dctReadBigString(const wchar_t* dictionary, const wchar_t* record,
                                       CString& text) const;
    Acad::ErrorStatus dctWriteBigString(const wchar_t* dictionary, const wchar_t* record,
                                        const wchar_t* text);
    /// Erases a dictionary and its records.
    Acad::ErrorStatus dctErase(const wchar_t* dictionary);

private:
    AcDbDatabase* m_pDatabase;
    AcDb::OpenMode m_mode;
};

} // namespace Orvane
