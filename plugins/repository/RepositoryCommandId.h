// Parses the command ids of repository families.
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
    enmEntityType entityType; ///< EntityNone if the id has none
    friend bool operator==(const RepositoryCommandId&, const RepositoryCommandId&) = default;
};

/// Parses ids such as "EDIT_THEME_2" and "RUN_QUERY" into verb, family and, if the family has a
/// command set per entity type, that type. Case-sensitive. Nothing for other ids.
std::optional<RepositoryCommandId> ParseRepositoryCommandId(std::wstring_view id);

} // namespace Orvane::Repository
