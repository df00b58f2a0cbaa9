// Texts stored by name in a drawing: dictionaries and their records.
#pragma once

#include <map>
#include <string>

#include "platform/arx/DbObject.h"

/// A named dictionary of the drawing. Dictionary and record names are case-sensitive; texts may
/// have any length.
class PLATFORM_API AcDbDictionary final : public AcDbObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    explicit AcDbDictionary(CString name) : m_strName(std::move(name)) {}

    const CString& name() const { return m_strName; }
    using Records = std::map<CString, CString, CStringLess>;
    const Records& records() const { return m_records; }
    /// Null if the record does not exist.
    const CString* getAt(const wchar_t* record) const;
    void setAt(const wchar_t* record, const wchar_t* text);
    /// eKeyNotFound if the record does not exist.
    Acad::ErrorStatus remove(const wchar_t* record);

    std::unique_ptr<AcDbObject> clone() const override;

protected:
    std::unique_ptr<AcDbObject> cloneBody() const override;
    void swapBody(AcDbObject& other) override;
    std::size_t bodyBytes() const override;

private:
    friend class AcDbUndo;
    friend class AcDbDatabase;
    void noteRecord(const CString& record);
    void removeAll();

    CString m_strName;
    Records m_records;
};
