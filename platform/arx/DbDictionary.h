// Texts kept in a drawing under names: a dictionary holds records.
#pragma once

#include <map>
#include <string>

#include "platform/arx/DbObject.h"

/// One named dictionary of the drawing. Names of dictionaries and records are told apart by
/// case; texts may be of any length.
class PLATFORM_API AcDbDictionary final : public AcDbObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    explicit AcDbDictionary(CString name) : m_strName(std::move(name)) {}

    const CString& name() const { return m_strName; }
    using Records = std::map<CString, CString, CStringLess>;
    const Records& records() const { return m_records; }
    /// Null if there is no record of the name.
    const CString* getAt(const wchar_t* record) const;
    void setAt(const wchar_t* record, const wchar_t* text);
    /// eKeyNotFound if there is no record of the name.
    Acad::ErrorStatus remove(const wchar_t* record);

    std::unique_ptr<AcDbObject> clone() const override;

protected:
    std::unique_ptr<AcDbObject> cloneBody() const override;
    void swapBody(AcDbObject& other) override;

private:
    friend class AcDbUndo;
    friend class AcDbDatabase;
    void noteRecord(const CString& record);
    void removeAll();

    CString m_strName;
    Records m_records;
};
