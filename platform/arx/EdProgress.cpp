#include "platform/arx/EdProgress.h"

#include "platform/arx/HostPort.h"

namespace {

int s_nShown = 0;

/// An operation in progress.
class Shown {
public:
    explicit Shown(const wchar_t* what) : m_strWhat(what) {
        ++s_nShown;
        // Immediately: the user may want to stop before the first step is done.
        Show(0);
    }
    ~Shown() {
        if (--s_nShown == 0) {
            HostPort().EndProgress();
        }
    }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

    bool Show(int percent) const { return HostPort().ShowProgress(m_strWhat.View(), percent); }

private:
    CString m_strWhat;
};

} // namespace

AcDbProgress acedProgress(const wchar_t* what) {
    return
        [shown = std::make_shared<const Shown>(what)](int percent) { return shown->Show(percent); };
}
