// How operations on the drawing's database end.
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
    eWasOpenForRead = 82,  ///< somebody reads it, so it cannot be written
    eWasOpenForWrite = 83, ///< somebody writes it already
};
} // namespace Acad

namespace AcDb {
enum OpenMode : int { kForRead = 0, kForWrite = 1 };
} // namespace AcDb
