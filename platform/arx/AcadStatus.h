// Status codes of database operations.
#pragma once

namespace Acad {
enum ErrorStatus : int {
    eOk = 0,
    eInvalidInput = 3,
    eNullObjectId = 4,
    eUnknownObject = 5,
    eWasErased = 6,
    eKeyNotFound = 7,
    eDuplicateKey = 8,
    eNoDatabase = 9,
    eNotOpenForWrite = 10,
    eWasOpenForRead = 82,  ///< open for reading elsewhere, so not writable
    eWasOpenForWrite = 83, ///< already open for writing
};
} // namespace Acad

namespace AcDb {
enum OpenMode : int { kForRead = 0, kForWrite = 1 };
} // namespace AcDb
