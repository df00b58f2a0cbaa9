// The systems that an import makes, all or none, and how their entities are described.
#pragma once

#include "platform/win/String.h"
#include "plugins/common/NetworkGeometry.h"
#include "plugins/network/ImportProgress.h"

namespace Orvane::System {
class CGisSystem;
}

namespace Orvane::Network {

/// The reason of an import that the user ended.

/// What an import added. Null where there was nothing of the kind.
struct ImportedSystems {
    System::CGisSystem* pNetwork = nullptr;
    System::CGisSystem* pPolygons = nullptr;
};

/// Makes the systems of an import in the current drawing, and removes them again at its end
/// unless they are kept.
class SystemsInMaking {
public:
    SystemsInMaking() = default;
    ~SystemsInMaking();
    SystemsInMaking(const SystemsInMaking&) = delete;
    SystemsInMaking& operator=(const SystemsInMaking&) = delete;

    /// A network of a function, and a system of polygons: "<name> polygons" beside a
    /// network, else of the plain name.
    /// \return an empty text, or the reason why nothing was made
    CString Make(const CString& name, int function, bool hasNetwork, bool hasPolygons);
    const ImportedSystems& Systems() const { return m_systems; }
    void Keep() { m_bKept = true; }

private:
    ImportedSystems m_systems;
    bool m_bKept = false;
};

} // namespace Orvane::Network
