#include "platform/win/ErrorText.h"

#include <system_error>

#include "platform/win/CodePage.h"

namespace {
thread_local CString t_strLastError;
}

CString LastErrorText() {
    return t_strLastError;
}

void SetLastErrorText(CString text) {
    t_strLastError = std::move(text);
}

void SetLastErrorNumber(int number) {
    t_strLastError = Utf8ToWide(std::generic_category().message(number));
}
