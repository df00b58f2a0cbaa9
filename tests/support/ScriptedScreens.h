// A desktop of a script: monitors, cursor and the order of windows as a test sets them.
#pragma once

#include <utility>

#include "platform/win/Screens.h"

/// In force while it lives.
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
