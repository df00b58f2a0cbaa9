#include "platform/arx/HostPort.h"

#include <cstdio>

#include "platform/win/CodePage.h"

namespace {

class StandardOutputPort final : public IHostPort {
public:
    void Print(std::wstring_view text) override {
        const std::string utf8 = WideToUtf8(text);
        std::fwrite(utf8.data(), 1, utf8.size(), stdout);
    }
    PromptEnd GetString(bool, std::wstring_view, CString&) override { return PromptEnd::Cancelled; }
    void Alert(std::wstring_view text, std::wstring_view) override {
        Print(text);
        Print(L"\n");
    }
    void Escape() override {}
};

IHostPort*& Current() {
    static StandardOutputPort fallback;
    static IHostPort* pCurrent = &fallback;
    if (!pCurrent) {
        pCurrent = &fallback;
    }
    return pCurrent;
}

} // namespace

IHostPort* SetHostPort(IHostPort* pPort) {
    IHostPort* const pBefore = Current();
    Current() = pPort;
    return pBefore;
}

IHostPort& HostPort() {
    return *Current();
}
