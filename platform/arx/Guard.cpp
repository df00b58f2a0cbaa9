#include "platform/arx/Guard.h"

#include <exception>

#include "platform/arx/EdPrompt.h"
#include "platform/win/CodePage.h"
#include "platform/win/PlatformTexts.h"

CString CaughtReason() {
    try {
        throw;
    } catch (const std::exception& error) {
        return Utf8ToWide(error.what());
    } catch (...) {
        return MessageText(PlatformMsg::UnknownException);
    }
}

void ReportCaught(const wchar_t* what) noexcept {
    try {
        const CString reason = CaughtReason();
        const CString activity = TakeInterruptedActivity();
        acutPrintf(L"\n%s\n",
                   MessageText(PlatformMsg::Failed,
                               activity.IsEmpty() ? what : activity.GetString(), reason));
    } catch (...) {
        // Out of memory, or no place to print.
        return;
    }
}
