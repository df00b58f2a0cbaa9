// The wait cursor while work goes on.
#pragma once

#include "platform/Api.h"

/// Shown from construction to destruction; they may nest.
class PLATFORM_API CWaitCursor {
public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;

private:
    bool m_shown;
};
