// Objects of a drawing's database, and how they are opened.
//
//     AcDbPolyline* pLine = nullptr;
//     if (acdbOpenObject(pLine, id, AcDb::kForWrite) == Acad::eOk) {
//         pLine->setVertices(...);
//         pLine->close();
//     }
//
// An object belongs to its database. It may be open for reading any number of times or for writing
// once, and each opening must be closed. Changing an object that is not open for writing throws
// std::logic_error, as it is a programming error.
#pragma once

#include <compare>
#include <cstdint>
#include <functional>
#include <memory>

#include "platform/arx/AcadStatus.h"
#include "platform/arx/RxObject.h"

class AcDbDatabase;
class AcDbEntity;

/// Names an object of one database; kept in the drawing's file. Given again only after neither
/// undo nor redo can bring the object back, and if no file has it.
class AcDbObjectId {
public:
    AcDbObjectId() = default;
    explicit AcDbObjectId(std::uint32_t number) : m_nNumber(number) {}
    bool isNull() const { return m_nNumber == 0; }
    std::uint32_t number() const { return m_nNumber; }
    friend bool operator==(AcDbObjectId left, AcDbObjectId right) = default;
    friend std::strong_ordering operator<=>(AcDbObjectId left, AcDbObjectId right) {
        return left.m_nNumber <=> right.m_nNumber;
    }

private:
    std::uint32_t m_nNumber = 0;
};

template <>
struct std::hash<AcDbObjectId> {
    std::size_t operator()(AcDbObjectId id) const { return id.number(); }
};

class PLATFORM_API AcDbObject : public AcRxObject {
public:
    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }

    AcDbObjectId objectId() const { return m_id; }
    /// Null until added to a database.
    AcDbDatabase* database() const { return m_pDatabase; }
    bool isErased() const { return m_bErased; }
    /// True if derived from AcDbEntity; saves a cast when iterating over millions.
    bool isEntity() const { return m_bEntity; }
    bool isReadEnabled() const { return m_nReaders > 0 || m_bWriter; }
    bool isWriteEnabled() const { return m_bWriter || !m_pDatabase; }

    /// Ends one opening; reactors are then notified of the changes. eInvalidInput if it is not
    /// open.
    Acad::ErrorStatus close();
    /// Changes from reading to writing; requires that there is only one reader. eWasOpenForWrite,
    /// without any effect, if it is already open for writing.
    Acad::ErrorStatus upgradeOpen();
    Acad::ErrorStatus downgradeOpen();
    /// Erases or restores an object that is open for writing. eInvalidInput if other objects depend
    /// on it (layer "0", the model space, a layer or block with entities that are not erased), and
    /// when restoring an entity whose layer or block is erased. eWasErased if it is already erased.
    Acad::ErrorStatus erase(bool bErasing = true);

    /// A copy of the content only: without an id and in no database.
    virtual std::unique_ptr<AcDbObject> clone() const = 0;
    /// About what it takes in memory, without the book-keeping of the heap.
    std::size_t bytes() const;

protected:
    AcDbObject() = default;
    /// Copies the content only; the copy is not in a database.
    AcDbObject(const AcDbObject& other) : AcRxObject(other), m_bEntity(other.m_bEntity) {}
    AcDbObject& operator=(const AcDbObject&) = delete;

    /// Must be called by every operation before it changes the body, that is, what swapBody
    /// exchanges.
    void assertWriteEnabled();
    /// A copy of the body, as recorded in the undo history. The body does not include an entity's
    /// layer, colour and attributes or a dictionary's records; their changes are recorded
    /// separately.
    virtual std::unique_ptr<AcDbObject> cloneBody() const { return clone(); }
    /// Exchanges the body with another object of the same class.
    virtual void swapBody(AcDbObject& other) = 0;
    /// The part of bytes() that a copy of the body takes.
    virtual std::size_t bodyBytes() const;

private:
    friend class AcDbDatabase;
    friend class AcDbDictionary;
    friend class AcDbEntity;
    friend class AcDbUndo;

    /// Throws unless it is open for writing or in no database. True if it is in a database, whose
    /// undo history must then record the change.
    bool beginChange();

    AcDbDatabase* m_pDatabase = nullptr;
    AcDbObjectId m_id;
    // Bit fields, as a drawing holds millions of objects.
    std::uint32_t m_nReaders : 20 = 0;
    std::uint32_t m_bWriter : 1 = false;
    std::uint32_t m_bErased : 1 = false;
    std::uint32_t m_bEntity : 1 = false; ///< derived from AcDbEntity
    /// Reactors must be notified of this when the object is closed.
    std::uint32_t m_bChanged : 1 = false;
    std::uint32_t m_bWasErased : 1 = false;
    std::uint32_t m_bTouched : 1 = false; ///< changed by the undo or redo in progress
    /// Differs from the drawing's file.
    std::uint32_t m_bUnsaved : 1 = false;
    /// The body (properties) as of before the open undo group is already recorded in the history.
    std::uint32_t m_bBodyNoted : 1 = false;
    std::uint32_t m_bPropertiesNoted : 1 = false;
    /// The history contains a record of this kind.
    std::uint32_t m_bBodyInHistory : 1 = false;
    std::uint32_t m_bPropertiesInHistory : 1 = false;
};

/// Opens an object, looked up in the given database or else in the working database. pObject is
/// null unless the result is eOk. Errors: eNoDatabase, eNullObjectId, eUnknownObject, eWasErased,
/// eWasOpenForRead, eWasOpenForWrite, and eInvalidInput for an invalid mode.
PLATFORM_API Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& pObject, AcDbObjectId id,
                                                  AcDb::OpenMode mode, bool openErased = false,
                                                  AcDbDatabase* pDatabase = nullptr);

/// The same for an object of a given class; eInvalidInput if it is of another class.
template <class T>
Acad::ErrorStatus acdbOpenObject(T*& pObject, AcDbObjectId id, AcDb::OpenMode mode,
                                 bool openErased = false, AcDbDatabase* pDatabase = nullptr) {
    pObject = nullptr;
    AcDbObject* pAny = nullptr;
    const Acad::ErrorStatus status = acdbOpenAcDbObject(pAny, id, mode, openErased, pDatabase);
    if (status != Acad::eOk) {
        return status;
    }
    pObject = dynamic_cast<T*>(pAny);
    if (pAny && !pObject) {
        pAny->close();
        return Acad::eInvalidInput;
    }
    return Acad::eOk;
}
