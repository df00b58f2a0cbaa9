#include "platform/arx/HostOptions.h"

#include <map>

namespace {

std::map<CString, CString, CStringLess>& Options() {
    static auto* const options = new std::map<CString, CString, CStringLess>;
    return *options;
}

} // namespace

void SetHostOption(const wchar_t* name, const wchar_t* value) {
    Options()[CString(name)] = value;
}

CString GetHostOption(const wchar_t* name) {
    const auto hit = Options().find(std::wstring_view(name));
    return hit == Options().end() ? CString() : hit->second;
}
