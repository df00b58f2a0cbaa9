// The wait cursor for long operations.
#pragma once

#include "platform/Api.h"

/// Shows the wait cursor from construction to destruction. May be nested.
class PLATFORM_API CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

private:
    bool m_shown;
};
