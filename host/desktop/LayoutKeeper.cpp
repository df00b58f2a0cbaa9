#include "host/desktop/LayoutKeeper.h"

#include "platform/win/FolderLock.h"

namespace Tessaly {

namespace {

constexpr int kInterval = 800; // milliseconds: a second with the writing

} // namespace

LayoutKeeper::LayoutKeeper(CString path, std::function<Layout()> current)
    : m_strPath(std::move(path)), m_current(std::move(current)) {}

void LayoutKeeper::Start(std::function<void(const CString& problem)> onProblem) {
    CString ignored; // it was reported when the layout was restored
    m_isMissing = !ReadLayout(m_strPath, ignored);
    m_base = m_current();
    QObject::connect(&m_timer, &QTimer::timeout, [this, onProblem = std::move(onProblem)] {
        const CString problem = Save();
        if (!problem.IsEmpty() && !m_isReported) {
            onProblem(problem);
        }
        m_isReported = !problem.IsEmpty();
    });
    m_timer.start(kInterval);
}

CString LayoutKeeper::Save() {
    const Layout ours = m_current();
    if (ours == m_base && !m_isMissing) {
        return {};
    }
    const FolderLock lock(m_strPath);
    CString ignored; // a damaged file is replaced
    const std::optional<Layout> theirs = ReadLayout(m_strPath, ignored);
    CString problem = WriteLayout(m_strPath, theirs ? MergedLayout(m_base, ours, *theirs) : ours);
    if (problem.IsEmpty()) {
        m_base = ours;
        m_isMissing = false;
    }
    return problem;
}

} // namespace Tessaly
