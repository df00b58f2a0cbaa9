// The topologies to which a command or a tree item applies.
#pragma once

#include <boost/shared_ptr.hpp>
#include <map>
#include <vector>

#include "workspacecore/commands/WsTopologyData.h"

namespace Orvane::Workspace {

/// Records in order of insertion, and a map with the first record of each topology and function.
/// Add and Remove keep both in sync, but both are public, and code that reads files fills only
/// the vector.
struct WORKSPACE_API CWsTopologyDataSet {
    using Ptr = boost::shared_ptr<CWsTopologyData>;
    using Vector = std::vector<Ptr>;
    using Map = std::map<CString, Ptr, CStringLess>;

    /// Null is ignored.
    void Add(const Ptr& data);
    /// Removes the record from the vector, by pointer, and its key from the map.
    void Remove(const Ptr& data);
    bool Contains(const CString& key) const { return map.contains(key); }

    Vector vector;
    Map map;
};

} // namespace Orvane::Workspace
