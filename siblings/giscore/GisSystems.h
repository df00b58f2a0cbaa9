// The systems of one drawing.
#pragma once

#include <memory>
#include <vector>

#include "siblings/giscore/GisSystem.h"

namespace Orvane::System {

/// Kept by CSystemManager beside the drawing; goes with the document.
class GISCORE_API CGisSystems {
public:
    explicit CGisSystems(AcDbDatabase* pDatabase) : m_pDatabase(pDatabase) {}
    CGisSystems(const CGisSystems&) = delete;
    CGisSystems& operator=(const CGisSystems&) = delete;

    /// In the order of creation. A copy, so that systems may come and go during a walk.
    std::vector<CGisSystem*> GetSystemList() const;
    int GetCount() const { return static_cast<int>(m_systems.size()); }

    // Null for an unknown one.
    CGisSystem* GetSystemById(int id) const;
    CGisSystem* GetSystemByGuid(const wchar_t* guid) const;
    /// Without regard to case.
    CGisSystem* GetSystemByName(const wchar_t* name) const;

    /// Null if no system is active.
    CGisSystem* GetActiveSystem() const { return m_pActive; }
    AcDbDatabase* GetDatabase() const { return m_pDatabase; }

private:
    friend class CSystemManager;

    AcDbDatabase* m_pDatabase;
    std::vector<std::unique_ptr<CGisSystem>> m_systems;
    CGisSystem* m_pActive = nullptr;
    int m_nLastId = 0;
};

} // namespace Orvane::System
