// Objects of a drawing's database, and how they are opened.
//
//     AcDbPolyline* pLine = nullptr;
//     if (acdbOpenObject(pLine, id, AcDb::kForWrite) == Acad::eOk) {
//         pLine->setVertices(...);
//         pLine->close();
//     }
//
// An object belongs to its database. It is opened for reading any number of times, or for
// writing once; what was opened must be closed. Changing an object that is not open for
// writing throws std::logic_error: it is a mistake of the program.
#pragma once

#include <compare>
#include <cstdint>
#include <functional>
#include <memory>

#include "platform/arx/AcadStatus.h"
#include "platform/arx/RxObject.h"

class AcDbDatabase;
class AcDbEntity;

/// Names an object of one database. Never used again after the object was erased; kept in
/// the drawing's file.
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
    /// Null until it was added to a database.
    AcDbDatabase* database() const { return m_pDatabase; }
    bool isErased() const { return m_bErased; }
    /// Derived from AcDbEntity; spares a cast where millions are looked at.
    bool isEntity() const { return m_bEntity; }
    bool isReadEnabled() const { return m_nReaders > 0 || m_bWriter; }
    bool isWriteEnabled() const { return m_bWriter || !m_pDatabase; }

    /// Ends one opening; reactors then hear what was changed. eInvalidInput if it is not open.
    Acad::ErrorStatus close();
    /// From reading to writing; only for the one reader. eWasOpenForWrite if it is open for
    /// writing already, which changes nothing.
    Acad::ErrorStatus upgradeOpen();
    Acad::ErrorStatus downgradeOpen();
    /// Erases, or brings back, an object that is open for writing. eInvalidInput for what
    /// others stand on: layer "0", the model space, a layer or block with entities that are
    /// not erased; and for bringing back an entity whose layer or block is erased. eWasErased
    /// if it was already.
    Acad::ErrorStatus erase(bool bErasing = true);

    /// A copy of the content alone: no id, in no database.
    virtual std::unique_ptr<AcDbObject> clone() const = 0;

protected:
    AcDbObject() = default;
    /// Content only: a copy starts outside every database.
    AcDbObject(const AcDbObject& other) : AcRxObject(other), m_bEntity(other.m_bEntity) {}
    AcDbObject& operator=(const AcDbObject&) = delete;

    /// To be called by every operation before it changes the body: what swapBody exchanges.
    void assertWriteEnabled();
    /// A copy of the body, which is what one note in the undo history holds. An entity's
    /// layer, colour and attributes, and a dictionary's records, are no part of it: their
    /// changes are noted apart.
    virtual std::unique_ptr<AcDbObject> cloneBody() const { return clone(); }
    /// Exchanges the body with another object of the same class.
    virtual void swapBody(AcDbObject& other) = 0;

private:
    friend class AcDbDatabase;
    friend class AcDbDictionary;
    friend class AcDbEntity;
    friend class AcDbUndo;

    /// Throws unless it may be changed. True if it is in a database, whose undo history then
    /// has to be told.
    bool beginChange();

    AcDbDatabase* m_pDatabase = nullptr;
    AcDbObjectId m_id;
    // Bits, as a drawing holds millions of these.
    std::uint32_t m_nReaders : 20 = 0;
    std::uint32_t m_bWriter : 1 = false;
    std::uint32_t m_bErased : 1 = false;
    std::uint32_t m_bEntity : 1 = false; ///< derived from AcDbEntity
    /// What reactors have to hear of once it is closed.
    std::uint32_t m_bChanged : 1 = false;
    std::uint32_t m_bWasErased : 1 = false;
    std::uint32_t m_bTouched : 1 = false; ///< the undo or redo going on changed it
    /// Differs from what the drawing's file holds.
    std::uint32_t m_bUnsaved : 1 = false;
    /// The state of its body (properties) before the open undo group is in the history.
    std::uint32_t m_bBodyNoted : 1 = false;
    std::uint32_t m_bPropertiesNoted : 1 = false;
    /// The history has something of the kind.
    std::uint32_t m_bBodyInHistory : 1 = false;
    std::uint32_t m_bPropertiesInHistory : 1 = false;
};

/// Opens an object of the database that the id is looked up in: the given one, or the
/// working database. Null in pObject unless the result is eOk: eNoDatabase, eNullObjectId,
/// eUnknownObject, eWasErased, eWasOpenForRead, eWasOpenForWrite, or eInvalidInput for a mode
/// that is none.
PLATFORM_API Acad::ErrorStatus acdbOpenAcDbObject(AcDbObject*& pObject, AcDbObjectId id,
                                                  AcDb::OpenMode mode, bool openErased = false,
                                                  AcDbDatabase* pDatabase = nullptr);

/// The same for an object of a class; eInvalidInput if it is of another one.
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
