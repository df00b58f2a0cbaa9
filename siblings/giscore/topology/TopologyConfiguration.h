// The topologies available to the user.
#pragma once

#include <functional>
#include <vector>

#include "siblings/giscore/topology/Topology.h"

namespace Orvane {

namespace System {
class CGisSystem;
}

/// Read from a settings file with one section per topology. Without a file, or with one that
/// contains no topology, the built-in default applies. Invalid lines are skipped and reported as
/// problems.
class GISCORE_API CTopologyConfiguration {
public:
    /// A name may be a message id; `message` returns its text.
    CTopologyConfiguration(const wchar_t* path, const std::function<CString(int)>& message);
    ~CTopologyConfiguration();
    CTopologyConfiguration(const CTopologyConfiguration&) = delete;
    CTopologyConfiguration& operator=(const CTopologyConfiguration&) = delete;

    /// In the order of the file.
    const std::vector<CTopology>& GetTopologyVector() const { return m_topologies; }
    /// Null if the configuration has no such topology.
    const CTopology* GetTopologyByTopologyType(enmTopologyType type) const;

    /// Display name of a kind of entity in a system or, without a system, in the first topology
    /// that has such entities. Empty for an unknown kind.
    CString GetEntityTypeName(enmEntityType type, const System::CGisSystem* pSystem) const;

    /// "file:line: reason" for every skipped line, or the reason why the file could not be read.
    const std::vector<CString>& GetProblems() const { return m_problems; }

private:
    std::vector<CTopology> m_topologies;
    std::vector<CString> m_problems;
};

} // namespace Orvane
