// The drawing's database and the services by which modules reach the current one.
#pragma once

#include "platform/arx/RxObject.h"

/// One drawing's content. Owned by its document. Modules keep what they hold of a drawing
/// beside it, by its address, and drop it when the document is destroyed.
class PLATFORM_API AcDbDatabase : public AcRxObject {
public:
    AcDbDatabase() = default;
    AcDbDatabase(const AcDbDatabase&) = delete;
    AcDbDatabase& operator=(const AcDbDatabase&) = delete;
};

class PLATFORM_API AcDbHostApplicationServices {
public:
    /// The database that operations without a database argument work on; null if no
    /// document is current.
    AcDbDatabase* workingDatabase() const { return m_pWorkingDatabase; }
    void setWorkingDatabase(AcDbDatabase* pDatabase) { m_pWorkingDatabase = pDatabase; }

private:
    AcDbDatabase* m_pWorkingDatabase = nullptr;
};

/// Never null.
PLATFORM_API AcDbHostApplicationServices* acdbHostApplicationServices();
