// Rules for naming unnamed entities.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/win/IniFile.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane::Topology {

/// A name pattern: a prefix, a number and a suffix.
struct NamePattern {
    std::string prefix; ///< UTF-8
    std::string suffix;
    int width = 0; ///< minimum number of digits, zero-padded

    std::string Name(int number) const;
    /// Parses "J%d" or "J%04d/A": exactly one placeholder, at most nine digits wide.
    static std::optional<NamePattern> Read(const CString& text);
};

/// The rules of a file with sections "line.1" (topology and function), "line" (all other
/// functions of a topology) and "default", each with the keys node, section and polygon. Falls
/// back to built-in rules.
class NameRules {
public:
    NameRules() = default;
    /// Problems are appended as "file:line: reason".
    NameRules(const IniFile& file, const wchar_t* fileName, std::vector<CString>& problems);

    const NamePattern& Find(enmTopologyType topology, int function, enmEntityType type) const;
    /// The key of a kind of entity, such as "node"; also the name of its counter.
    static const wchar_t* WordOf(enmEntityType type);

private:
    /// Topology and function (0: any), and kind of entity.
    using Key = std::array<int, 3>;
    std::map<Key, NamePattern> m_patterns;
};

} // namespace Orvane::Topology
