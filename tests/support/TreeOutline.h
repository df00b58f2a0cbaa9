// Text form of tree templates, so that a test looks like the tree it expects.
#pragma once

#include <boost/make_shared.hpp>
#include <string>

#include "platform/win/CodePage.h"
#include "workspacecore/core/WsManager.h"

namespace Orvane::Workspace {

inline std::string Narrow(const CString& text) {
    return WideToUtf8(text.Str());
}

/// The id, indented by depth; then "+" and the kind of configuration for a place to add one, and
/// "e" with the entity type of an entity-specific one; "?" marks a wrong parent link.
inline std::string Outline(const CWsTreeTemplate& node, int depth = 0) {
    std::string line(static_cast<std::size_t>(depth) * 2, ' ');
    line += node.GetItemDefinition() ? Narrow(node.GetItemDefinition()->GetId()) : "(none)";
    if (node.IsPlaceToAddConfiguration()) {
        const auto& configuration = node.GetConfigurationDefinition();
        line += " +" + (configuration ? std::to_string(configuration->GetWsItemType()) + "/" +
                                            std::to_string(configuration->GetEntityType())
                                      : std::string("-"));
    }
    if (node.IsEntitySpecificConfiguration()) {
        line += " e" + std::to_string(node.GetConfigurationEntityType());
    }
    line += "\n";
    for (const auto& child : *node.GetChildren()) {
        line += (child->GetParentItem().get() == &node ? "" : "?") + Outline(*child, depth + 1);
    }
    return line;
}

inline std::string Outline(const CWsTreeTemplate::Ptr& node) {
    return node ? Outline(*node) : "null";
}

/// Breaks the reference cycles of a template, which would be leaks in a test.
inline void TakeApart(const CWsTreeTemplate::Ptr& node) {
    if (node) {
        const CWsTreeTemplate::Children children = std::move(*node->GetChildren());
        node->GetChildren()->clear();
        for (const auto& child : children) {
            TakeApart(child);
        }
    }
}

} // namespace Orvane::Workspace
