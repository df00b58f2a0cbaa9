// The lock around work on a drawing.
#pragma once

#include "siblings/cadwrapper/Api.h"

class AcApDocument;

namespace Orvane {

/// Keeps the current document from being closed while it lives; locks nest. Without a
/// document it does nothing.
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
