// Something that is to be done once, a while after the first of several reasons for it.
#pragma once

#include <functional>
#include <memory>

#include "platform/Api.h"

/// Called from the message loop. Its end takes the call back.
class PLATFORM_API DelayedCall {
public:
    DelayedCall(int milliseconds, std::function<void()> call);
    ~DelayedCall();
    DelayedCall(const DelayedCall&) = delete;
    DelayedCall& operator=(const DelayedCall&) = delete;

    /// Until the call has come, asking again changes nothing. Does nothing before the toolkit
    /// is alive.
    void Ask();
    void Cancel();

private:
    struct Timer;
    int m_nMilliseconds;
    std::function<void()> m_call;
    std::unique_ptr<Timer> m_pTimer;
};
