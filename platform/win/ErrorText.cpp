#include "platform/win/ErrorText.h"

#include <cerrno>
#include <system_error>

#include "platform/win/PlatformTexts.h"

namespace {

/// True once the thread's own objects have been destroyed. Modules are unloaded later and still
/// save their data, but errors are no longer reported then.
thread_local bool t_isGone = false;

struct LastError {
    CString text;
    LastError() = default;
    LastError(const LastError&) = delete;
    LastError& operator=(const LastError&) = delete;
    ~LastError() { t_isGone = true; }
};

/// Null after its destruction.
CString* Last() {
    if (t_isGone) {
        return nullptr;
    }
    thread_local LastError last;
    return &last.text;
}

struct ErrorName {
    int number;
    PlatformMsg text;
};
/// Translated here, since the system's own texts follow its locale instead of the program's
/// language.
constexpr ErrorName kErrors[] = {
    {ENOENT, PlatformMsg::NoSuchFile},        {EACCES, PlatformMsg::NoPermission},
    {EPERM, PlatformMsg::NoPermission},       {EISDIR, PlatformMsg::IsFolder},
    {ENOTDIR, PlatformMsg::IsNotFolder},      {EEXIST, PlatformMsg::Exists},
    {ENOSPC, PlatformMsg::DiskFull},          {EROFS, PlatformMsg::ReadOnly},
    {ENAMETOOLONG, PlatformMsg::NameTooLong}, {EIO, PlatformMsg::InputOutput},
    {ELOOP, PlatformMsg::TooManyLinks},       {EMFILE, PlatformMsg::TooManyFiles},
    {EFBIG, PlatformMsg::TooLarge},           {EBUSY, PlatformMsg::Busy},
    {ENOTEMPTY, PlatformMsg::NotEmpty},
};

} // namespace

CString ErrorNumberText(int number) {
    for (const ErrorName& error : kErrors) {
        if (error.number == number) {
            return MessageText(error.text);
        }
    }
    return MessageText(PlatformMsg::OtherError, number, std::generic_category().message(number));
}

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
    SetLastErrorText(ErrorNumberText(number));
}
