#include "platform/win/ErrorText.h"

#include <system_error>

#include "platform/win/CodePage.h"

namespace {

/// Modules go after the thread's own objects have, and still save what they hold; from then on
/// nobody asks for reasons any more.
thread_local bool t_isGone = false;

struct LastError {
    CString text;
    LastError() = default;
    LastError(const LastError&) = delete;
    LastError& operator=(const LastError&) = delete;
    ~LastError() { t_isGone = true; }
};

/// Null once it has gone.
CString* Last() {
    if (t_isGone) {
        return nullptr;
    }
    thread_local LastError last;
    return &last.text;
}

} // namespace

CString LastErrorText() {
    const CString* const pText = Last();
    return pText ? *pText : CString();
}

void SetLastErrorText(CString text) {
    if (CString* const pText = Last()) {
        *pText = std::move(text);
    }
}

void SetLastErrorNumber(int number) {
    SetLastErrorText(Utf8ToWide(std::generic_category().message(number)));
}
