// The topologies that a user's systems can have.
#pragma once

#include <functional>
#include <vector>

#include "siblings/giscore/topology/Topology.h"

namespace Orvane {

namespace System {
class CGisSystem;
}

/// Read from a settings file with a section for each topology. Without a file, or with one
/// that holds no topology, it is the configuration that the product is delivered with. A
/// line that makes no sense is left out and noted among the problems.
class GISCORE_API CTopologyConfiguration {
public:
    /// Names may stand in the file as numbers of messages; `message` gives their texts.
    CTopologyConfiguration(const wchar_t* path, const std::function<CString(int)>& message);
    ~CTopologyConfiguration();
    CTopologyConfiguration(const CTopologyConfiguration&) = delete;
    CTopologyConfiguration& operator=(const CTopologyConfiguration&) = delete;

    /// In the order of the file.
    const std::vector<CTopology>& GetTopologyVector() const { return m_topologies; }
    /// Null if the configuration has no such topology.
    const CTopology* GetTopologyByTopologyType(enmTopologyType type) const;

    /// The name of a kind of entity in a system, or, without one, in the first topology
    /// that has such entities. Empty for an unknown kind.
    CString GetEntityTypeName(enmEntityType type, const System::CGisSystem* pSystem) const;

    /// "file:line: reason" for every line that was left out, or why the file could not be read.
    const std::vector<CString>& GetProblems() const { return m_problems; }

private:
    std::vector<CTopology> m_topologies;
    std::vector<CString> m_problems;
};

} // namespace Orvane
