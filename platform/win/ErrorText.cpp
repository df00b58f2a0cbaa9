#include "platform/win/ErrorText.h"

#include <system_error>

#include "platform/win/CodePage.h"

namespace {

/// Outlives the text: files are still written when a module goes with the process, and by
/// then the main thread has destroyed what was its own.
thread_local bool t_bGone = false;

struct LastError {
    CString strText;
    ~LastError() { t_bGone = true; }
};
thread_local LastError t_lastError;

} // namespace

CString LastErrorText() {
    return t_bGone ? CString() : t_lastError.strText;
}

void SetLastErrorText(CString text) {
    if (!t_bGone) {
        t_lastError.strText = std::move(text);
    }
}

void SetLastErrorNumber(int number) {
    SetLastErrorText(Utf8ToWide(std::generic_category().message(number)));
}
