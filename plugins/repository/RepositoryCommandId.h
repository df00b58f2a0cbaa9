// Ids of the commands of repository families.
#pragma once

#include <optional>

#include "platform/win/String.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane::Repository {

enum class Verb {
    Add,
    Edit,
    Delete,
    Rename,
    Copy,
    SendTo,
    SetAsDefault,
    Run,
    DoubleClick,
    QueryDrop,
    ItemDrop
};

struct RepositoryCommandId {
    Verb verb;
    CString tag;
    enmEntityType entityType; ///< EntityNone where the id names none
    friend bool operator==(const RepositoryCommandId&, const RepositoryCommandId&) = default;
};

/// "EDIT_THEME_2", "RUN_QUERY": what to do, the family, and the kind of entities if the
/// family has a command set for each. Letters count in their case. Nothing for other ids.
std::optional<RepositoryCommandId> ParseRepositoryCommandId(std::wstring_view id);

} // namespace Orvane::Repository
