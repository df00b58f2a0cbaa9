// Document lock for work on a drawing.
#pragma once

#include "siblings/cadwrapper/Api.h"

class AcApDocument;

namespace Orvane {

/// Prevents the current document from being closed during its lifetime; locks nest. Does nothing
/// if no document is open.
class CADWRAPPER_API CORVCDocLock {
public:
    CORVCDocLock();
    ~CORVCDocLock();
    CORVCDocLock(const CORVCDocLock&) = delete;
    CORVCDocLock& operator=(const CORVCDocLock&) = delete;

private:
    AcApDocument* m_pDocument;
};

} // namespace Orvane
