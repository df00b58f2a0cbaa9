// Settings stored in a drawing as records of one of its dictionaries.
#pragma once

#include "platform/arx/DbDatabase.h"
#include "siblings/giscore/Api.h"

namespace Orvane::System {

/// One dictionary of a drawing, which need not exist yet.
class GISCORE_API DrawingRecords {
public:
    DrawingRecords(AcDbDatabase& database, const CString& dictionary)
        : m_database(database), m_strDictionary(dictionary) {}

    /// Null if the dictionary does not exist.
    const AcDbDictionary* Dictionary() const;
    /// Empty if there is no such record.
    CString Get(const wchar_t* record) const;
    int GetInt(const wchar_t* record, int otherwise) const;

    /// Creates the dictionary if necessary and skips writing an unchanged text. Returns false if
    /// the dictionary is open elsewhere.
    bool Set(const wchar_t* record, const CString& text);
    bool Set(const wchar_t* record, int number);
    bool Remove(const wchar_t* record);
    /// Erases the whole dictionary.
    bool Erase();

private:
    template <class Change>
    bool Write(AcDbObjectId id, Change change);

    AcDbDatabase& m_database;
    CString m_strDictionary;
};

} // namespace Orvane::System
