// Settings that are kept in a drawing, as records of one of its dictionaries.
#pragma once

#include "platform/arx/DbDatabase.h"
#include "siblings/giscore/Api.h"

namespace Orvane::System {

/// One dictionary of a drawing, which need not be there yet.
class GISCORE_API DrawingRecords {
public:
    DrawingRecords(AcDbDatabase& database, const CString& dictionary)
        : m_database(database), m_strDictionary(dictionary) {}

    /// Null without the dictionary.
    const AcDbDictionary* Dictionary() const;
    /// Empty if there is no such record.
    CString Get(const wchar_t* record) const;
    int GetInt(const wchar_t* record, int otherwise) const;

    /// Makes the dictionary if there is none. What stands there already is not written
    /// again. False if somebody else has the dictionary open.
    bool Set(const wchar_t* record, const CString& text);
    bool Set(const wchar_t* record, int number);
    bool Remove(const wchar_t* record);
    /// The whole dictionary.
    bool Erase();

private:
    template <class Change>
    bool Write(AcDbObjectId id, Change change);

    AcDbDatabase& m_database;
    CString m_strDictionary;
};

} // namespace Orvane::System
