// Writes the layout of the desktop whenever it has changed.
#pragma once

#include <functional>

#include <QTimer>

#include "host/desktop/LayoutFile.h"

namespace Tessaly {

/// What other programs write into the same file is kept, value by value.
class LayoutKeeper {
public:
    /// \param current gives the layout as it is now
    LayoutKeeper(CString path, std::function<Layout()> current);

    /// From now on looks for changes, which are in the file a second later. A problem is
    /// handed on once, until writing has worked again.
    void Start(std::function<void(const CString& problem)> onProblem);
    /// Writes what has changed. An empty text, or why it was not written.
    CString Save();

private:
    CString m_strPath;
    std::function<Layout()> m_current;
    Layout m_base; ///< ours when it was last written
    QTimer m_timer;
    bool m_isMissing = false; ///< there is no whole layout in the file
    bool m_isReported = false;
};

} // namespace Tessaly
