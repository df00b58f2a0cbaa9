// The systems created by an import: all or none.
#pragma once

#include "platform/win/String.h"
#include "plugins/common/NetworkGeometry.h"
#include "plugins/network/ImportProgress.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Network {

/// The systems an import created; null if it had no entities of that kind.
struct ImportedSystems {
    System::CGisSystem* pNetwork = nullptr;
    System::CGisSystem* pPolygons = nullptr;
};

/// Creates an import's systems in the current drawing and deletes them in the destructor unless
/// Keep() was called.
class SystemsInMaking {
public:
    SystemsInMaking() = default;
    ~SystemsInMaking();
    SystemsInMaking(const SystemsInMaking&) = delete;
    SystemsInMaking& operator=(const SystemsInMaking&) = delete;

    /// Creates a network with this function and a polygon system, named "<name> polygons" beside a
    /// network, else just "<name>".
    /// \return an empty string, or the reason why nothing was created
    CString Make(const CString& name, int function, bool hasNetwork, bool hasPolygons);
    const ImportedSystems& Systems() const { return m_systems; }
    void Keep() { m_bKept = true; }

private:
    ImportedSystems m_systems;
    bool m_bKept = false;
};

} // namespace Orvane::Network
