// A fake desktop whose monitors, cursor and stacking order are set by the test.
#pragma once

#include <utility>

#include "platform/win/Screens.h"

/// The desktop in use during its lifetime.
class ScriptedScreens final : public IScreens {
public:
    explicit ScriptedScreens(std::vector<Monitor> all) : monitors(std::move(all)) {
        m_pBefore = SetScreens(this);
    }
    ~ScriptedScreens() override { SetScreens(m_pBefore); }
    ScriptedScreens(const ScriptedScreens&) = delete;
    ScriptedScreens& operator=(const ScriptedScreens&) = delete;

    std::vector<Monitor> Monitors() const override { return monitors; }
    CPoint Cursor() const override { return cursor; }
    std::vector<HWND> Stacking() const override { return stacking; }

    std::vector<Monitor> monitors;
    CPoint cursor;
    std::vector<HWND> stacking;

private:
    IScreens* m_pBefore;
};
