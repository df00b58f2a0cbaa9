#include "siblings/cadwrapper/DocLock.h"

#include "platform/arx/ApDocManager.h"

namespace Orvane {

CORVCDocLock::CORVCDocLock() : m_pDocument(acDocManagerPtr()->curDocument()) {
    if (m_pDocument) {
        m_pDocument->lock();
    }
}

CORVCDocLock::~CORVCDocLock() {
    if (m_pDocument) {
        m_pDocument->unlock();
    }
}

} // namespace Orvane
