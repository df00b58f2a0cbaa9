// The topologies that a command or a tree item belongs to.
#pragma once

#include <boost/shared_ptr.hpp>
#include <map>
#include <vector>

#include "workspacecore/commands/WsTopologyData.h"

namespace Orvane::Workspace {

/// Records in order of adding, and the first one of each topology and function by its key.
/// The two are filled and emptied together here, but both are handed out, and readers of
/// files fill the first one alone.
struct WORKSPACE_API CWsTopologyDataSet {
    using Ptr = boost::shared_ptr<CWsTopologyData>;
    using Vector = std::vector<Ptr>;
    using Map = std::map<CString, Ptr, CStringLess>;

    /// Null is passed over.
    void Add(const Ptr& data);
    /// Takes the record out of the vector, by pointer, and its key out of the map.
    void Remove(const Ptr& data);
    bool Contains(const CString& key) const { return map.contains(key); }

    Vector vector;
    Map map;
};

} // namespace Orvane::Workspace
