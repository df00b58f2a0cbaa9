// How entities without a name are named.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/win/IniFile.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane::Topology {

/// A text around a number.
struct NamePattern {
    std::string prefix; ///< UTF-8
    std::string suffix;
    int width = 0; ///< the number is filled with zeros up to so many digits

    std::string Name(int number) const;
    /// Reads "J%d" or "J%04d/A": exactly one place for the number, at most nine digits wide.
    static std::optional<NamePattern> Read(const CString& text);
};

/// The rules of a file with sections "line.1" (topology and function), "line" (all other
/// functions of a topology) and "default", each with the keys node, section and polygon.
/// Where the file says nothing, the rules of the product stand.
class NameRules {
public:
    NameRules() = default;
    /// Problems found on the way are appended as "file:line: reason".
    NameRules(const IniFile& file, const wchar_t* fileName, std::vector<CString>& problems);

    const NamePattern& Find(enmTopologyType topology, int function, enmEntityType type) const;
    /// The word for a kind of entity, as "node"; also the name of its counter.
    static const wchar_t* WordOf(enmEntityType type);

private:
    /// Topology, function (0: any of either) and kind of entity.
    using Key = std::array<int, 3>;
    std::map<Key, NamePattern> m_patterns;
};

} // namespace Orvane::Topology
